#include "config/core/RegistryPath.h"

#include <algorithm>

namespace vorn
{
std::string_view NormalizedKey(std::string_view path, bool rootAllowed)
{
    if (path.ends_with('\\'))
    {
        path.remove_suffix(1);
    }
    if (!rootAllowed && path.starts_with('\\'))
    {
        path.remove_prefix(1);
    }
    return rootAllowed && path.empty() ? "\\" : path;
}

std::string JoinedKeys(std::string_view parent, std::string_view child)
{
    if (parent.empty() || child.empty())
    {
        return std::string(parent.empty() ? child : parent);
    }
    parent = parent.substr(0, parent.find_last_not_of('\\') + 1);
    child.remove_prefix(std::min(child.find_first_not_of('\\'), child.size()));
    return std::string(parent).append("\\").append(child);
}

KeyParts SplitKey(std::string_view path)
{
    const std::size_t backslash = path.rfind('\\');
    return backslash == std::string_view::npos ? KeyParts{{}, path}
                                               : KeyParts{path.substr(0, backslash), path.substr(backslash + 1)};
}
} // namespace vorn
