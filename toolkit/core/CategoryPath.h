#pragma once

#include <string>
#include <string_view>
#include <vector>

/// @file
/// Paths of option categories: levels separated by "|", as in "Chart|Night|Colors".
namespace vorn
{

/// One level of a path.
struct CategoryLevel
{
    std::string text;
    std::string prefix; ///< the path up to this level, it included
};

/// The levels of a path from the top. Empty ones are left out, so "A||B" and "A|B|" are "A|B"; blanks belong to the
/// text.
std::vector<CategoryLevel> CategoryLevels(std::string_view path);

/// The path without empty levels; empty when it has no other.
std::string CategoryKey(std::string_view path);

} // namespace vorn
