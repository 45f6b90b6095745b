#include "apps/sample/pages/FoldersPage.h"

#include "apps/sample/model/SettingsInForce.h"
#include "apps/sample/ui/TableCard.h"

namespace
{

constexpr int kGap = 14; // pixels at 96 dpi

bool IsMoved(const DefinedPathSetting& setting)
{
    return setting.key != nullptr && SourceOfSetting(setting.section, setting.key) != SettingSource::Default;
}

// The key behind a folder, marked when it is set; both layouts mostly share one.
std::string OriginOf(DefinedPath path, bool& moved)
{
    const DefinedPathSetting legacy = GetDefinedPathSetting(path, PCV_LEGACY);
    const DefinedPathSetting user = GetDefinedPathSetting(path, PCV_VISTA);
    moved = IsMoved(legacy) || IsMoved(user);
    const DefinedPathSetting& shown = legacy.key != nullptr ? legacy : user;
    if (shown.key == nullptr)
        return "built in";
    return std::string(shown.key) + (moved ? ": set" : ": default");
}

const char* LayoutInForce()
{
    PathMgr& manager = *PathMgr::Instance(AfxGetAppName());
    return manager.GetPathCfgVer(AfxGetAppName()) == PCV_LEGACY ? "The legacy layout is in force"
                                                                : "The per-user layout is in force";
}

} // namespace

const char* FoldersPage::Name() const
{
    return "Folders";
}

void FoldersPage::Refresh()
{
    m_folders = {"Folders", LayoutInForce(), {{"No."}, {"Setting"}, {"Legacy layout"}, {"Per-user layout"}}, {}};
    // Records of the page's own: the registered one keeps the layout that it chose.
    AppPathData legacy(PCV_LEGACY, AfxGetAppName());
    AppPathData user(PCV_VISTA, AfxGetAppName());
    for (int number = 0; number < DP_COUNT; ++number)
    {
        const DefinedPath path = static_cast<DefinedPath>(number);
        bool moved = false;
        std::string origin = OriginOf(path, moved);
        m_folders.AddRow({std::to_string(number), std::move(origin), legacy.GetPathInst(path).GetString(),
                          user.GetPathInst(path).GetString()},
                         moved ? vorn::Tone::Accent : vorn::Tone::Plain);
    }
}

int FoldersPage::HeightFor(int, const Theme& theme) const
{
    return TableCard(m_folders, theme).Height() + 2 * theme.Px(kGap);
}

void FoldersPage::Paint(CDC& dc, const CRect& area, const Theme& theme) const
{
    CRect card(area);
    card.DeflateRect(theme.Px(kGap), theme.Px(kGap));
    card.bottom = card.top + TableCard(m_folders, theme).Height();
    TableCard(m_folders, theme).Draw(dc, card);
}

std::string FoldersPage::Summary() const
{
    return vorn::ToText(m_folders);
}
