#include "config/core/RegistryRoots.h"

#include <algorithm>
#include <iterator>

namespace vorn
{
namespace
{
struct Root
{
    std::uint32_t handle;
    std::string_view name;
};

// Handle values as the system documents them.
constexpr Root kRoots[] = {
    {0x80000000, "HKEY_CLASSES_ROOT"}, {0x80000001, "HKEY_CURRENT_USER"},   {0x80000002, "HKEY_LOCAL_MACHINE"},
    {0x80000003, "HKEY_USERS"},        {0x80000005, "HKEY_CURRENT_CONFIG"}, {0x80000006, "HKEY_DYN_DATA"},
};
} // namespace

std::optional<std::string_view> RootName(std::uint32_t root)
{
    const auto found = std::ranges::find(kRoots, root, &Root::handle);
    return found == std::end(kRoots) ? std::nullopt : std::optional(found->name);
}

std::optional<std::uint32_t> RootNamed(std::string_view name)
{
    const auto found = std::ranges::find(kRoots, name, &Root::name);
    return found == std::end(kRoots) ? std::nullopt : std::optional(found->handle);
}
} // namespace vorn
