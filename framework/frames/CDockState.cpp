#include "framework/frames/CDockState.h"
#include "framework/window/CWinApp.h"
#include <cstdio>

IMPLEMENT_DYNAMIC(CDockState, CObject)

namespace
{
constexpr int kMostBars = 256;

CString BarEntry(int index)
{
    CString entry;
    entry.Format("Bar%d", index);
    return entry;
}
} // namespace

CString CControlBarInfo::ToText() const
{
    CString text;
    text.Format("%u,%d,%d,%lu,%ld,%ld,%ld,%ld,%u,%d,%d,%d,%d,%ld,%ld", m_nBarID, m_bVisible ? 1 : 0,
                m_bFloating ? 1 : 0, m_dwAlign, m_rect.left, m_rect.top, m_rect.right, m_rect.bottom, m_dock.dockBar,
                m_dock.row, m_dock.position, m_dock.alone ? 1 : 0, m_bHasFloated ? 1 : 0, m_ptFloat.x, m_ptFloat.y);
    return text;
}

bool CControlBarInfo::FromText(LPCSTR text)
{
    CControlBarInfo read;
    constexpr int kFirstFields = 8;
    constexpr int kAllFields = 15;
    int alone = 1;
    const int fields =
        text ? std::sscanf(text, "%u,%d,%d,%lu,%ld,%ld,%ld,%ld,%u,%d,%d,%d,%d,%ld,%ld", &read.m_nBarID,
                           &read.m_bVisible, &read.m_bFloating, &read.m_dwAlign, &read.m_rect.left, &read.m_rect.top,
                           &read.m_rect.right, &read.m_rect.bottom, &read.m_dock.dockBar, &read.m_dock.row,
                           &read.m_dock.position, &alone, &read.m_bHasFloated, &read.m_ptFloat.x, &read.m_ptFloat.y)
             : 0;
    if (fields < kFirstFields)
        return false;
    read.m_dock.alone = alone != 0;
    if (fields < kAllFields)
    {
        read.m_dock = {};
        read.m_bHasFloated = FALSE;
        read.m_ptFloat = CPoint(0, 0);
    }
    *this = read;
    return true;
}

CDockState::CDockState() = default;

CDockState::~CDockState() = default;

void CDockState::LoadState(LPCTSTR profileName)
{
    Clear();
    CWinApp* app = AfxGetApp();
    if (!app || !profileName || !*profileName)
        return;
    const int count = static_cast<int>(app->GetProfileInt(profileName, "Bars", 0));
    for (int i = 0; i < count && i < kMostBars; ++i)
    {
        CControlBarInfo info;
        if (info.FromText(app->GetProfileString(profileName, BarEntry(i), "")))
            m_bars.push_back(info);
    }
    m_screenSize.cx = static_cast<int>(app->GetProfileInt(profileName, "ScreenCX", 0));
    m_screenSize.cy = static_cast<int>(app->GetProfileInt(profileName, "ScreenCY", 0));
}

void CDockState::SaveState(LPCTSTR profileName) const
{
    CWinApp* app = AfxGetApp();
    if (!app || !profileName || !*profileName)
        return;
    const int former = static_cast<int>(app->GetProfileInt(profileName, "Bars", 0));
    const int count = static_cast<int>(m_bars.size());
    app->WriteProfileInt(profileName, "Bars", count);
    app->WriteProfileInt(profileName, "ScreenCX", m_screenSize.cx);
    app->WriteProfileInt(profileName, "ScreenCY", m_screenSize.cy);
    for (int i = 0; i < count; ++i)
        app->WriteProfileString(profileName, BarEntry(i), m_bars[static_cast<std::size_t>(i)].ToText());
    for (int i = count; i < former && i < kMostBars; ++i)
        app->WriteProfileString(profileName, BarEntry(i), nullptr);
}

void CDockState::Clear()
{
    m_bars.clear();
    m_screenSize = CSize(0, 0);
}

CSize CDockState::GetScreenSize() const
{
    return m_screenSize;
}

void CDockState::SetScreenSize(const CSize& size)
{
    m_screenSize = size;
}
