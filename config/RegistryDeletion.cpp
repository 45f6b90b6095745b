#include "config/Registry.h"
#include "config/RegistryCall.h"
#include "config/core/RegistryPath.h"

using vorn::IsNullOrEmpty;
using vorn::RegistryKey;

namespace
{
constexpr REGSAM kDeletionRights = DELETE | KEY_ENUMERATE_SUB_KEYS;

LSTATUS OpenForDeletion(HKEY parent, const char* path, DWORD options, REGSAM view, RegistryKey& key)
{
    HKEY opened = nullptr;
    const LSTATUS status = RegOpenKeyExA(parent, path, options, kDeletionRights | view, &opened);
    key.reset(status == ERROR_SUCCESS ? opened : nullptr);
    return status;
}

/// Deletes keys with all below them. Most keys have none below them: one call is all that they need, and the system
/// refuses it (access denied) for the others.
class TreeDeletion
{
public:
    explicit TreeDeletion(REGSAM view) : m_view(view)
    {
    }

    LSTATUS Delete(HKEY parent, const std::string& name)
    {
        const LSTATUS atOnce = RegDeleteKeyExA(parent, name.c_str(), m_view, 0);
        if (atOnce != ERROR_ACCESS_DENIED)
        {
            return atOnce;
        }
        const LSTATUS below = DeleteBelow(parent, name);
        return below == ERROR_SUCCESS ? RegDeleteKeyExA(parent, name.c_str(), m_view, 0) : below;
    }

private:
    // A key that stays is the first for ever: the first failure ends it. A link is not followed: what it leads to does
    // not stand below it.
    LSTATUS DeleteBelow(HKEY parent, const std::string& name)
    {
        RegistryKey key;
        LSTATUS status = OpenForDeletion(parent, name.c_str(), REG_OPTION_OPEN_LINK, m_view, key);
        while (status == ERROR_SUCCESS)
        {
            auto size = static_cast<DWORD>(m_name.size());
            status = RegEnumKeyExA(key.get(), 0, m_name.data(), &size, nullptr, nullptr, nullptr, nullptr);
            if (status == ERROR_SUCCESS)
            {
                status = Delete(key.get(), std::string(m_name.data(), size));
            }
            else if (status == ERROR_NO_MORE_ITEMS)
            {
                return ERROR_SUCCESS;
            }
        }
        return status;
    }

    REGSAM m_view;
    std::vector<char> m_name = std::vector<char>(3 * 255 + 1); // one for all levels; they copy what they still need
};

LSTATUS DeleteSubkey(HKEY parent, const std::string& name, REGSAM view, bool recursive)
{
    return recursive ? TreeDeletion(view).Delete(parent, name) : RegDeleteKeyExA(parent, name.c_str(), view, 0);
}

LSTATUS DeletePath(HKEY key, std::string_view path, REGSAM view, bool recursive)
{
    const auto [parentPath, name] = vorn::SplitKey(path);
    if (name.empty()) // would be the parent itself
    {
        return ERROR_INVALID_PARAMETER;
    }
    if (parentPath.empty())
    {
        return DeleteSubkey(key, std::string(name), view, recursive);
    }
    RegistryKey parent;
    const LSTATUS status = OpenForDeletion(key, std::string(parentPath).c_str(), 0, view, parent);
    return status == ERROR_SUCCESS ? DeleteSubkey(parent.get(), std::string(name), view, recursive) : status;
}
} // namespace

bool Registry::DeleteKey(const char* key, bool recursive)
{
    if (IsNullOrEmpty(key) || Key() == nullptr)
    {
        return Record(IsNullOrEmpty(key) ? ERROR_INVALID_PARAMETER : ERROR_INVALID_HANDLE);
    }
    return Record(vorn::CodeOf(
        [&]
        {
            return DeletePath(Key(), vorn::NormalizedKey(key, false), m_view, recursive);
        }));
}

bool Registry::DeleteValue(const char* name)
{
    return Record(name == nullptr ? ERROR_INVALID_PARAMETER : RegDeleteValueA(Key(), name));
}
