#include "config/Registry.h"
#include "config/RegistryCall.h"
#include "config/RegistryWriteTime.h"

#include <cstring>

bool Registry::QueryInfo()
{
    char className[2048] = {};
    DWORD classSize = sizeof className;
    FILETIME written = {};
    Facts facts;
    if (!Record(RegQueryInfoKeyA(Key(), className, &classSize, nullptr, &facts.subkeys, &facts.longestSubkeyName,
                                 &facts.longestClassName, &facts.values, &facts.longestValueName,
                                 &facts.longestValueData, &facts.securitySize, &written)))
    {
        return false;
    }
    facts.lastWrite = vorn::WriteTime(written);
    m_facts = facts;
    return Record(vorn::CodeOf(
        [&]() -> LSTATUS
        {
            m_className.SetString(className, static_cast<int>(strnlen(className, sizeof className)));
            return ERROR_SUCCESS;
        }));
}

const CString& Registry::KeyClass() const
{
    return m_className;
}

DWORD Registry::SubkeyCount() const
{
    return m_facts.subkeys;
}

DWORD Registry::LongestSubkeyName() const
{
    return m_facts.longestSubkeyName;
}

DWORD Registry::LongestClassName() const
{
    return m_facts.longestClassName;
}

DWORD Registry::ValueCount() const
{
    return m_facts.values;
}

DWORD Registry::LongestValueName() const
{
    return m_facts.longestValueName;
}

DWORD Registry::LongestValueData() const
{
    return m_facts.longestValueData;
}

DWORD Registry::SecuritySize() const
{
    return m_facts.securitySize;
}

CTime Registry::LastWriteTime() const
{
    return m_facts.lastWrite;
}
