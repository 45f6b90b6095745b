#pragma once

#include <string>
#include <string_view>

/// @file
/// Paths of registry keys: names with backslashes between them.
namespace vorn
{
/// The path without one backslash at its end and, unless `rootAllowed`, without one at its start. What is then empty is
/// "\" when `rootAllowed`. Backslashes beyond the one at each end stay. The result looks into `path` or at a constant.
std::string_view NormalizedKey(std::string_view path, bool rootAllowed);

/// Both paths with exactly one backslash between them, however many stood there. When one is empty, the other alone.
std::string JoinedKeys(std::string_view parent, std::string_view child);

/// A path taken apart at its last backslash.
struct KeyParts
{
    std::string_view parent; ///< empty where the path is one name
    std::string_view name;   ///< empty where the path ends in a backslash
};

KeyParts SplitKey(std::string_view path);
} // namespace vorn
