#include "apps/sample/preferences/FoldersCategory.h"

#include "apps/sample/preferences/core/Entries.h"
#include "apps/sample/preferences/resource.h"

#include <array>

namespace vorn::preferences
{

namespace
{

constexpr std::array kFolders = {DP_DATA, DP_USER, DP_CHARTS};

constexpr std::array kTips = {
    Tip{IDC_OPT_FOLDER, 1798},        Tip{IDC_OPT_FOLDER + 1, 1798},   Tip{IDC_OPT_FOLDER + 2, 1799},
    Tip{IDC_OPT_FOLDER + 3, 1799},    Tip{IDC_OPT_FOLDER + 4, 1800},   Tip{IDC_OPT_FOLDER + 5, 1800},
    Tip{IDC_OPT_FOLDER_BROWSE, 1801}, Tip{IDC_OPT_FOLDER_RESET, 1802},
};

UINT MarkOf(std::size_t folder)
{
    return IDC_OPT_FOLDER + 2 * static_cast<UINT>(folder);
}

UINT FieldOf(std::size_t folder)
{
    return MarkOf(folder) + 1;
}

PathMgr& Paths()
{
    return *PathMgr::Instance(AfxGetAppName());
}

std::string InForce(DefinedPath path)
{
    return Paths().GetPathInst(path, AfxGetAppName()).GetString();
}

DefinedPathSetting SettingOf(DefinedPath path)
{
    return GetDefinedPathSetting(path, Paths().GetPathCfgVer(AfxGetAppName()));
}

bool IsSame(const std::string& a, const std::string& b)
{
    return lstrcmpi(a.c_str(), b.c_str()) == 0;
}

/// The folders as they are without the user's own choices.
class InstalledFolders : public AppPathData
{
public:
    InstalledFolders() : AppPathData(Paths().GetPathCfgVer(AfxGetAppName()), AfxGetAppName())
    {
        SetPathCfgVer(GetPathCfgVer(), AfxGetAppName()); // again, now by this class's reading
    }

    CString GetProfilePath(const char* key, const char* standard, const char* section) override
    {
        for (const DefinedPath path : kFolders)
        {
            const DefinedPathSetting setting = SettingOf(path);
            if (lstrcmp(setting.key, key) == 0 && lstrcmp(setting.section, section) == 0)
                return Whole(standard);
        }
        return AppPathData::GetProfilePath(key, standard, section);
    }

private:
    CString Whole(const char* standard)
    {
        CString folder(standard);
        if (folder.Right(1) != "\\")
            folder += '\\';
        SimplifyPath(folder);
        return folder;
    }
};

std::string Installed(DefinedPath path)
{
    return InstalledFolders().GetPathInst(path).GetString();
}

/// The installation's folder needs no setting.
bool StoreFolder(DefinedPath path, const std::string& folder)
{
    if (IsSame(folder, InForce(path)))
        return false;
    const DefinedPathSetting setting = SettingOf(path);
    if (IsSame(folder, Installed(path)) && Forget(setting.section, setting.key))
        return true;
    App().WriteSettingString(setting.section, setting.key, folder.c_str());
    return true;
}

} // namespace

FoldersCategory::FoldersCategory() : Category("General|Folders", IDC_OPT_FOLDERS_FIRST, kTips)
{
}

void FoldersCategory::Fill()
{
    for (std::size_t folder = 0; folder < kFolders.size(); ++folder)
        SetText(FieldOf(folder), InForce(kFolders[folder]));
    Mark(0);
}

void FoldersCategory::Arrange(Form& form, Form::Pane& area)
{
    form.Align({MarkOf(0), MarkOf(1), MarkOf(2)});
    for (std::size_t folder = 0; folder < kFolders.size(); ++folder)
        area << form.Field(MarkOf(folder), FieldOf(folder), 100);
    area << (form.Line() << form.Fixed(IDC_OPT_FOLDER_BROWSE) << form.Fixed(IDC_OPT_FOLDER_RESET))
         << form.Whole(IDC_OPT_FOLDER_NOTE);
}

std::optional<Fault> FoldersCategory::Check() const
{
    for (std::size_t folder = 0; folder < kFolders.size(); ++folder)
    {
        const std::string text = FolderText(TextAt(FieldOf(folder)));
        const std::string why = IsSame(text, InForce(kFolders[folder])) ? std::string() : FolderFault(text);
        if (!why.empty())
            return Fault{FieldOf(folder), why};
    }
    return std::nullopt;
}

bool FoldersCategory::Store()
{
    bool stored = false;
    for (std::size_t folder = 0; folder < kFolders.size(); ++folder)
        stored = StoreFolder(kFolders[folder], FolderText(TextAt(FieldOf(folder)))) || stored;
    if (stored)
        Paths().SetPathCfgVer(Paths().GetPathCfgVer(AfxGetAppName()), AfxGetAppName());
    return stored;
}

bool FoldersCategory::OnControl(UINT id, UINT code)
{
    for (std::size_t folder = 0; code == EN_SETFOCUS && folder < kFolders.size(); ++folder)
    {
        if (id == FieldOf(folder))
            Mark(folder);
    }
    if (code == BN_CLICKED && id == IDC_OPT_FOLDER_BROWSE)
        Browse();
    if (code == BN_CLICKED && id == IDC_OPT_FOLDER_RESET)
        SetText(FieldOf(Marked()), Installed(kFolders[Marked()]));
    return code == EN_CHANGE;
}

std::size_t FoldersCategory::Marked() const
{
    std::size_t marked = 0;
    for (std::size_t folder = 0; folder < kFolders.size(); ++folder)
        marked = IsChecked(MarkOf(folder)) ? folder : marked;
    return marked;
}

void FoldersCategory::Mark(std::size_t folder) const
{
    for (std::size_t each = 0; each < kFolders.size(); ++each)
        SetCheck(MarkOf(each), each == folder);
}

void FoldersCategory::Browse()
{
    CString folder = TextAt(FieldOf(Marked())).c_str();
    std::string title = "Choose the folder";
    if (BrowseForDirectory(folder, title.data(), &Dialog()))
        SetText(FieldOf(Marked()), folder.GetString());
}

} // namespace vorn::preferences
