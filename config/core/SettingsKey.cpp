#include "config/core/SettingsKey.h"

namespace vorn
{
namespace
{
constexpr std::string_view kFamilyKey = "Software\\Vornwald\\";
}

std::string ApplicationKey(std::string_view application)
{
    std::string key(kFamilyKey);
    key += application;
    return key;
}

std::string SectionKey(std::string_view application, std::string_view section)
{
    std::string key = ApplicationKey(application);
    if (!section.empty())
    {
        key += '\\';
        key += section;
    }
    return key;
}

bool NamesOwnKey(std::string_view section)
{
    return section.find_first_not_of('\\') != std::string_view::npos;
}
} // namespace vorn
