#include "config/core/SettingsKey.h"

namespace vorn
{
namespace
{
constexpr std::string_view kFamilyKey = "Software\\Vornwald\\";
}

std::string applicationKey(std::string_view application)
{
    std::string key(kFamilyKey);
    key += application;
    return key;
}

std::string sectionKey(std::string_view application, std::string_view section)
{
    std::string key = applicationKey(application);
    if (!section.empty())
    {
        key += '\\';
        key += section;
    }
    return key;
}

bool namesOwnKey(std::string_view section)
{
    return section.find_first_not_of('\\') != std::string_view::npos;
}
} // namespace vorn
