#include "config/core/SharedSections.h"

#include "frame/core/TextCase.h"

#include <algorithm>
#include <utility>

namespace vorn
{
void SharedSections::clear()
{
    m_names.clear();
}

void SharedSections::add(std::string section)
{
    m_names.push_back(std::move(section));
}

bool SharedSections::holds(std::string_view section) const
{
    if (section.empty())
    {
        return false;
    }
    return m_names.empty() || std::any_of(m_names.begin(), m_names.end(),
                                          [=](const auto& name)
                                          {
                                              return equalsNoCase(name, section);
                                          });
}

bool SharedSections::isMachineWide(std::string_view module, std::string_view section) const
{
    const bool userProxy = equalsNoCase(module, "global") && containsNoCase(section, "proxy");
    return !userProxy && holds(section);
}

SharedSections readSharedSections(const ListedValue& value)
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
            sections.add(name);
        }
    }
    return sections;
}
} // namespace vorn
