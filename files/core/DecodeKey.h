#pragma once

/// @file
/// The key that scrambled tables are read with.
#include <cstddef>
#include <span>
#include <vector>

namespace vorn
{
/// XORs bytes with a repeated key.
class DecodeKey
{
public:
    /// An empty key changes nothing.
    void Set(std::span<const char> key);
    bool IsSet() const
    {
        return !m_expanded.empty();
    }
    /// Decodes bytes, beginning at the key's first one.
    void Apply(char* bytes, std::size_t count) const;

private:
    std::vector<char> m_expanded; ///< Repeated up to a few hundred bytes.
};
} // namespace vorn
