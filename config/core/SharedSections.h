#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// Which sections of the family's shared settings are the machine's and which the user's.
namespace vorn
{
/// Settings shared by the family are machine-wide section by section. With no section listed, all are.
class SharedSections
{
public:
    /// Lists a section as machine-wide.
    void Add(std::string section);

    /// False for an empty section; true when nothing is listed; else whether the section is listed, whatever its
    /// case.
    bool Holds(std::string_view section) const;

    /// Whether a section of a shared record is kept for the whole machine. Proxy settings of "Global" may hold a
    /// user's password and always stay with the user.
    bool IsMachineWide(std::string_view module, std::string_view section) const;

    const std::vector<std::string>& Names() const
    {
        return m_names;
    }

private:
    std::vector<std::string> m_names;
};

/// Reads one value of the list's section by its key; an absent one is empty.
using ListedValue = std::function<std::string(const std::string& key)>;

/// Most sections that a list may name.
inline constexpr int kMostSharedSections = 100;

/// Sections that a list makes machine-wide: "Name0", "Name1", ... up to the first gap name the candidates; those
/// whose own key is exactly "1" count.
SharedSections ReadSharedSections(const ListedValue& value);
} // namespace vorn
