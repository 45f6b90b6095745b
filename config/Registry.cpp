#include "config/Registry.h"

#include "config/RegistryCall.h"
#include "config/core/RegistryPath.h"
#include "config/core/RegistryRoots.h"

Registry::Registry() = default;
Registry::Registry(const Registry& other) = default;
Registry& Registry::operator=(const Registry& other) = default;
Registry::~Registry() = default;

void Registry::Initialize()
{
    *this = Registry();
}

bool Registry::KeyToStr(HKEY root, CString& name)
{
    const auto found = vorn::RootName(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(root)));
    if (found)
    {
        name.SetString(found->data(), static_cast<int>(found->size()));
    }
    return found.has_value();
}

HKEY Registry::StrToKey(const CString& name)
{
    const auto found = vorn::RootNamed({name.GetString(), static_cast<std::size_t>(name.GetLength())});
    return found ? reinterpret_cast<HKEY>(std::uintptr_t{*found}) : nullptr;
}

void Registry::NormalizeKey(CString& key, bool rootAllowed)
{
    const std::string normalized(vorn::NormalizedKey(key.GetString(), rootAllowed));
    key = normalized.c_str();
}

CString Registry::ConcatenateKeys(const char* parent, const char* child)
{
    return vorn::JoinedKeys(parent != nullptr ? parent : "", child != nullptr ? child : "").c_str();
}

bool Registry::Record(LSTATUS status)
{
    m_lastError = static_cast<DWORD>(status);
    return status == ERROR_SUCCESS;
}

DWORD Registry::GetLastError() const
{
    return m_lastError;
}

HKEY Registry::Key() const
{
    return m_key.Get();
}

HKEY Registry::Root() const
{
    return m_root.Get();
}

const CString& Registry::KeyName() const
{
    return m_keyName;
}

const CString& Registry::RootName() const
{
    return m_rootName;
}

const CString& Registry::MachineName() const
{
    return m_machineName;
}

bool Registry::IsRemote() const
{
    return m_isRemote;
}
