#include "config/Registry.h"
#include "config/RegistryCall.h"
#include "config/core/RegistryPath.h"

using vorn::SharedKey;

namespace
{
CString LocalMachineName()
{
    char name[260];
    DWORD size = sizeof name;
    return GetComputerNameA(name, &size) != FALSE ? CString(name) : CString();
}

/// Every machine has these two of its own only.
bool IsLocalOnly(HKEY root)
{
    return root == HKEY_CLASSES_ROOT || root == HKEY_CURRENT_USER;
}

REGSAM ViewOf(REGSAM access)
{
    return (access & KEY_WOW64_64KEY) != 0 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
}
} // namespace

bool Registry::Connect(HKEY root, const char* machine)
{
    Close();
    return Record(vorn::CodeOf(
        [&]
        {
            return vorn::IsNullOrEmpty(machine) ? TakeRoot(root) : TakeRemoteRoot(root, machine);
        }));
}

LSTATUS Registry::TakeRoot(HKEY root)
{
    if (root == nullptr)
    {
        return ERROR_INVALID_PARAMETER;
    }
    m_machineName = LocalMachineName();
    KeyToStr(root, m_rootName);
    m_root = SharedKey(root);
    return ERROR_SUCCESS;
}

LSTATUS Registry::TakeRemoteRoot(HKEY root, const char* machine)
{
    if (root == nullptr || IsLocalOnly(root))
    {
        return root == nullptr ? ERROR_INVALID_PARAMETER : ERROR_INVALID_HANDLE;
    }
    HKEY connected = nullptr;
    const LSTATUS status = RegConnectRegistryA(machine, root, &connected);
    if (status == ERROR_SUCCESS)
    {
        m_root = SharedKey(connected);
        m_isRemote = true;
        m_machineName = machine;
        KeyToStr(root, m_rootName);
    }
    return status;
}

LSTATUS Registry::CloseKey()
{
    m_facts = Facts();
    m_className.Empty();
    m_keyName.Empty();
    return m_key.Close();
}

bool Registry::Close()
{
    const LSTATUS keyStatus = CloseKey();
    const LSTATUS rootStatus = m_root.Close();
    Initialize();
    return Record(keyStatus != ERROR_SUCCESS ? keyStatus : rootStatus);
}

// `opening` opens the key of the given path below the root into a handle.
template <class Opening>
bool Registry::OpenWith(const char* key, REGSAM access, Opening opening)
{
    CloseKey();
    const bool opened = Record(vorn::CodeOf(
        [&]() -> LSTATUS
        {
            if (key == nullptr)
            {
                return ERROR_INVALID_PARAMETER;
            }
            const LSTATUS rooted = Root() == nullptr ? TakeRoot(HKEY_CLASSES_ROOT) : ERROR_SUCCESS;
            const std::string path(vorn::NormalizedKey(key, false));
            HKEY handle = nullptr;
            const LSTATUS status =
                rooted == ERROR_SUCCESS ? opening(path.c_str(), access | ViewOf(access), handle) : rooted;
            return status == ERROR_SUCCESS ? TakeKey(handle, path) : status;
        }));
    if (opened)
    {
        m_view = ViewOf(access);
        QueryInfo();
        m_lastError = ERROR_SUCCESS;
    }
    return opened;
}

// Opening a predefined root by an empty path gives the root's own handle: then both are one, closed once.
LSTATUS Registry::TakeKey(HKEY key, const std::string& path)
{
    m_key = key == Root() ? m_root : SharedKey(key);
    m_keyName = path.c_str();
    return ERROR_SUCCESS;
}

bool Registry::Open(const char* key, CreatePermissions access)
{
    return OpenWith(key, access,
                    [this](const char* path, REGSAM rights, HKEY& handle)
                    {
                        return RegOpenKeyExA(Root(), path, 0, rights, &handle);
                    });
}

bool Registry::Create(const char* key, const char* className, CreateOptions options, CreatePermissions access,
                      SECURITY_ATTRIBUTES* security, CreationDisposition* disposition)
{
    DWORD outcome = 0;
    const bool opened = OpenWith(key, access,
                                 [&](const char* path, REGSAM rights, HKEY& handle)
                                 {
                                     std::string writable(className != nullptr ? className : "");
                                     return RegCreateKeyExA(Root(), path, 0, className ? writable.data() : nullptr,
                                                            options, rights, security, &handle, &outcome);
                                 });
    if (opened && disposition != nullptr)
    {
        *disposition = static_cast<CreationDisposition>(outcome);
    }
    return opened;
}

bool Registry::Flush()
{
    return Record(RegFlushKey(Key()));
}
