#include "apps/briefing/Briefing.h"

#include <array>

namespace
{

struct UnitSettingName
{
    const char* kind;
    const char* key;
    int standard;
};

constexpr std::array kUnits = {
    UnitSettingName{"Distance", "Distance", UNIT_NM},
    UnitSettingName{"Speed", "Speed", UNIT_KTS},
    UnitSettingName{"Short distance", "ShortDist", UNIT_FT},
    UnitSettingName{"Fuel", "Fuel", UNIT_AUTO},
    UnitSettingName{"Mass", "Mass", UNIT_LBS},
    UnitSettingName{"Temperature", "Temp", UNIT_F},
    UnitSettingName{"Pressure", "Pressure", UNIT_INHG},
};

struct FolderName
{
    const char* name;
    DefinedPath path;
};

constexpr std::array kFolders = {
    FolderName{"Program", DP_EXE},
    FolderName{"Data", DP_DATA},
    FolderName{"Common", DP_COMMON},
    FolderName{"User", DP_USER},
    FolderName{"User, hidden", DP_USERHIDDEN},
    FolderName{"Shared, hidden", DP_PUBLICHIDDEN},
    FolderName{"Tracks", DP_TRACK},
};

int Stored(const UnitSettingName& unit, const char* application)
{
    return AppRegMgr::Instance()->ReadVornInt("Units", unit.key, unit.standard, application);
}

std::string NameOf(int unit)
{
    return unit >= UNIT_NM && unit <= UNIT_MM ? gUnitInfo[unit][1] : "automatic";
}

std::string Folder(DefinedPath path, const char* application)
{
    return PathMgr::Instance()->GetPathInst(path, application).GetString();
}

const char* StateOf(Date& expiry)
{
    if (!expiry.isExpired())
        return "in force";
    return expiry.isLate() ? "late" : "expired";
}

BriefingRow RowOf(CStartupDlg::DataInfo& set)
{
    if (!set.expiry.isValid())
        return {set.coverage.GetString(), "no dates", ""};
    const CString expiry = set.kind == 1 ? set.expiry.GetNavExpDate() : set.expiry.GetTermExpDate();
    return {set.coverage.GetString(), expiry.GetString(), StateOf(set.expiry)};
}

/// What the family has in common: one set for all of its programs.
std::string ProxiesText()
{
    ProxySet proxies;
    std::string text;
    LoadProxies(proxies);
    for (int i = 0; i < proxies.GetCount(); ++i)
    {
        const char* const host = proxies.GetAt(i)->mAddress.mpHost;
        text += std::string(i == 0 ? "" : ", ") + (host != nullptr ? host : "no host");
    }
    return text.empty() ? "none" : text;
}

} // namespace

void RegisterFamily()
{
    AppRegMgr::Instance()->AddApp(kSample);
    PathMgr::Instance(kThisProgram)->SetPathCfgVer(PCV_AUTO, kSample);
}

std::vector<BriefingRow> Briefing(Currency currency)
{
    std::vector<BriefingRow> rows = {{"Data sets", "", ""}};
    for (CStartupDlg::DataInfo& set : DataSets(currency))
        rows.push_back(RowOf(set));
    rows.push_back({"Units", "", ""});
    for (const UnitSettingName& unit : kUnits)
        rows.push_back({unit.kind, NameOf(Stored(unit, kThisProgram)), NameOf(Stored(unit, kSample))});
    rows.push_back({"Folders", "", ""});
    for (const FolderName& folder : kFolders)
        rows.push_back({folder.name, Folder(folder.path, kThisProgram), Folder(folder.path, kSample)});
    rows.push_back({"Network", "", ""});
    rows.push_back({"Proxies", ProxiesText(), ProxiesText()});
    return rows;
}

std::string TextOf(const std::vector<BriefingRow>& rows)
{
    std::string text;
    for (const BriefingRow& row : rows)
    {
        const bool heading = row.own.empty() && row.sample.empty();
        text += heading ? row.what + '\n' : "  " + row.what + " | " + row.own + " | " + row.sample + '\n';
    }
    return text;
}

void TakeOverUnits()
{
    for (const UnitSettingName& unit : kUnits)
        AppRegMgr::Instance()->WriteVornInt("Units", unit.key, Stored(unit, kSample), kThisProgram);
}
