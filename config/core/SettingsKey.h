#pragma once

#include <string>
#include <string_view>

/// @file
/// Where settings stand below a root of the registry.
namespace vorn
{
/// Key of an application's settings as a whole, "Software\Vornwald\Application".
std::string ApplicationKey(std::string_view application);

/// Key of one section, "Software\Vornwald\Application\Section". Backslashes in the section make nested keys; an
/// empty section is the application's own key.
std::string SectionKey(std::string_view application, std::string_view section);

/// True for a section that names a key of its own below the application's key. An empty section, or one of
/// backslashes only, would name the application's key itself: deleting it would take every setting along.
bool NamesOwnKey(std::string_view section);
} // namespace vorn
