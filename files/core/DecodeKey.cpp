#include "files/core/DecodeKey.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace vorn
{
namespace
{
using Word = std::uint64_t;

// A key this long is worked through in few rounds even for short keys.
constexpr std::size_t kLeastSize = 256;

void XorWords(char* bytes, const char* key, std::size_t count)
{
    std::size_t at = 0;
    for (; at + sizeof(Word) <= count; at += sizeof(Word))
    {
        Word value;
        Word mask;
        std::memcpy(&value, bytes + at, sizeof(value));
        std::memcpy(&mask, key + at, sizeof(mask));
        value ^= mask;
        std::memcpy(bytes + at, &value, sizeof(value));
    }
    for (; at < count; ++at)
        bytes[at] = static_cast<char>(bytes[at] ^ key[at]);
}
} // namespace

void DecodeKey::Set(std::span<const char> key)
{
    std::vector<char> expanded;
    if (!key.empty())
    {
        const std::size_t times = (kLeastSize + key.size() - 1) / key.size();
        expanded.reserve(key.size() * times);
        for (std::size_t i = 0; i < times; ++i)
            expanded.insert(expanded.end(), key.begin(), key.end());
    }
    m_expanded = std::move(expanded);
}

void DecodeKey::Apply(char* bytes, std::size_t count) const
{
    while (count > 0 && IsSet())
    {
        const std::size_t piece = std::min(count, m_expanded.size());
        XorWords(bytes, m_expanded.data(), piece);
        bytes += piece;
        count -= piece;
    }
}
} // namespace vorn
