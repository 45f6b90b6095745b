#include "config/AppRegMgr.h"

#include "config/GlobalRegData.h"
#include "config/HostName.h"
#include "config/IniFile.h"

#include <algorithm>
#include <set>
#include <string>

namespace
{
AppRegMgr* g_instance = nullptr;

/// Names whose settings are shared by the family.
std::set<std::string>& SharedNames()
{
    static std::set<std::string> names{"Global", "Installers"};
    return names;
}

std::shared_ptr<AppRegData> MakeRecord(const CString& name)
{
    std::shared_ptr<AppRegData> record;
    if (SharedNames().count(name.GetString()) != 0)
    {
        record = std::make_shared<GlobalRegData>();
    }
    else
    {
        record = std::make_shared<AppRegData>();
    }
    record->SetModName(name);
    return record;
}
} // namespace

AppRegMgr::AppRegMgr()
{
    m_records.push_back(MakeRecord(vorn::HostName().c_str()));
}

AppRegMgr::~AppRegMgr() = default;

AppRegMgr* AppRegMgr::Instance()
{
    if (!g_instance)
    {
        g_instance = new AppRegMgr; // lives until FreeInst, not until the library's end
    }
    return g_instance;
}

void AppRegMgr::FreeInst()
{
    delete g_instance; // a plain pointer: nothing of the library may end by itself while the host unloads
    g_instance = nullptr;
}

int AppRegMgr::AddApp(CString name)
{
    if (name.IsEmpty())
    {
        return 0;
    }
    if (const int index = GetAppRegIndex(name); index >= 0)
    {
        return index;
    }
    m_records.push_back(MakeRecord(name));
    return static_cast<int>(m_records.size()) - 1;
}

AppRegData* AppRegMgr::GetAppRegData(CString name)
{
    return RecordAt(GetAppRegIndex(name));
}

int AppRegMgr::GetAppRegIndex(CString name)
{
    const auto found = std::find_if(m_records.begin(), m_records.end(),
                                    [&](const auto& record)
                                    {
                                        return record->GetModName() == name;
                                    });
    return name.IsEmpty() || found == m_records.end() ? -1 : static_cast<int>(found - m_records.begin());
}

void AppRegMgr::AllowNetwork(bool allow)
{
    m_allowNetwork = allow;
}

bool AppRegMgr::AllowNetwork()
{
    return m_allowNetwork;
}

void AppRegMgr::UseGlobalRegForApp(const CString& name)
{
    SharedNames().insert(name.GetString());
}

bool AppRegMgr::IsGlobalSet(CString& iniPath)
{
    const bool exists = GetFileAttributesA(iniPath) != INVALID_FILE_ATTRIBUTES;
    return exists && vorn::IniValue(iniPath.GetString(), "Registry Settings", "Local Machine", 9) == "1";
}

AppRegData* AppRegMgr::RecordAt(int index) const
{
    const bool known = index >= 0 && index < static_cast<int>(m_records.size());
    return known ? m_records[static_cast<std::size_t>(index)].get() : nullptr;
}

AppRegData* AppRegMgr::RecordOf(const char* name) const
{
    if (!name || !*name)
    {
        return RecordAt(0);
    }
    const auto found = std::find_if(m_records.begin(), m_records.end(),
                                    [=](const auto& record)
                                    {
                                        return record->GetModName() == name;
                                    });
    return found == m_records.end() ? nullptr : found->get();
}
