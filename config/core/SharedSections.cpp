#include "config/core/SharedSections.h"

#include "frame/core/TextCase.h"

#include <algorithm>
#include <utility>

namespace vorn
{
void SharedSections::Add(std::string section)
{
    m_names.push_back(std::move(section));
}

bool SharedSections::Holds(std::string_view section) const
{
    if (section.empty())
    {
        return false;
    }
    return m_names.empty() || std::any_of(m_names.begin(), m_names.end(),
                                          [=](const auto& name)
                                          {
                                              return EqualsNoCase(name, section);
                                          });
}

bool SharedSections::IsMachineWide(std::string_view module, std::string_view section) const
{
    const bool userProxy = EqualsNoCase(module, "global") && ContainsNoCase(section, "proxy");
    return !userProxy && Holds(section);
}

SharedSections ReadSharedSections(const ListedValue& value)
{
    SharedSections sections;
    for (int i = 0; i < kMostSharedSections; ++i)
    {
        const std::string name = value("Name" + std::to_string(i));
        if (name.empty())
        {
            break;
        }
        if (value(name) == "1")
        {
            sections.Add(name);
        }
    }
    return sections;
}
} // namespace vorn
