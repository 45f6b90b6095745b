#include "toolkit/layout/LayoutDialog.h"

#include "framework/window/MessageMap.h"

namespace LayoutManagement
{
namespace
{

constexpr UINT kFirstBar = 0xE800;
constexpr UINT kStatusBar = 0xE801;
constexpr UINT kLastBar = 0xE8FF;

} // namespace

IMPLEMENT_DYNAMIC(LayoutDialog, ToolTipDlg)

BEGIN_MESSAGE_MAP(LayoutDialog, ToolTipDlg)
ON_WM_SIZE()
ON_WM_GETMINMAXINFO()
ON_WM_ERASEBKGND()
ON_WM_SHOWWINDOW()
ON_WM_DESTROY()
END_MESSAGE_MAP()

LayoutDialog::LayoutDialog(UINT nIDTemplate, CWnd* parent, LPCSTR section, bool bStatusBar, bool bResizable)
    : ToolTipDlg(nIDTemplate, parent), LayoutMgr(this), m_strSection(section), m_bStatusBar(bStatusBar),
      m_bResizable(bResizable)
{
}

LayoutDialog::LayoutDialog(LPCTSTR templateName, CWnd* parent, LPCSTR section, bool bStatusBar, bool bResizable)
    : ToolTipDlg(templateName, parent), LayoutMgr(this), m_strSection(section), m_bStatusBar(bStatusBar),
      m_bResizable(bResizable)
{
}

LayoutDialog::~LayoutDialog()
{
    if (m_hWnd != nullptr)
    {
        DestroyWindow(); // while OnDestroy still has the section's name
    }
}

BOOL LayoutDialog::OnInitDialog()
{
    ToolTipDlg::OnInitDialog();
    if (m_bResizable)
    {
        TakeSizingFrame();
    }
    if (m_bStatusBar)
    {
        AddStatusBar();
    }
    if (!m_strSection.IsEmpty())
    {
        Load(m_strSection);
    }
    return TRUE;
}

/// The frame is thicker than the template's; the client area keeps its size.
void LayoutDialog::TakeSizingFrame()
{
    CRect before;
    GetClientRect(&before);
    ModifyStyle(0, WS_THICKFRAME);
    ModifyStyleEx(WS_EX_DLGMODALFRAME, 0, SWP_FRAMECHANGED);
    SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    CRect window;
    CRect after;
    GetWindowRect(&window);
    GetClientRect(&after);
    SetWindowPos(nullptr, 0, 0, window.Width() + before.Width() - after.Width(),
                 window.Height() + before.Height() - after.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    MatchSystemMenu();
}

/// The menu was made for the template's frame.
void LayoutDialog::MatchSystemMenu()
{
    ::GetSystemMenu(m_hWnd, TRUE);
    const HMENU menu = ::GetSystemMenu(m_hWnd, FALSE);
    const auto match = [this, menu](UINT command, DWORD style)
    {
        const UINT state = (GetStyle() & style) != 0 ? MF_ENABLED : MF_GRAYED;
        ::EnableMenuItem(menu, command, MF_BYCOMMAND | state);
    };
    match(SC_SIZE, WS_THICKFRAME);
    match(SC_MAXIMIZE, WS_MAXIMIZEBOX);
}

void LayoutDialog::AddStatusBar()
{
    const DWORD grip = m_bResizable ? SBARS_SIZEGRIP : 0;
    const UINT pane = 0;
    if (m_statusBar.Create(this, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM | grip, kStatusBar))
    {
        m_statusBar.SetIndicators(&pane, 1);
        RepositionBars(kFirstBar, kLastBar, 0);
    }
}

void LayoutDialog::UpdateLayout(bool bRedraw)
{
    LayoutMgr::UpdateLayout(bRedraw);
    GetToolTipCtrl().UpdateTipRects();
}

CRect LayoutDialog::GetRect()
{
    CRect rect = LayoutMgr::GetRect();
    if (m_statusBar.m_hWnd != nullptr && (m_statusBar.GetStyle() & WS_VISIBLE) != 0)
    {
        CRect bar;
        m_statusBar.GetWindowRect(&bar);
        rect.bottom -= bar.Height();
    }
    return rect;
}

void LayoutDialog::OnSize(UINT type, int cx, int cy)
{
    ToolTipDlg::OnSize(type, cx, cy);
    if (cx != 0 || cy != 0)
    {
        UpdateLayout(false);
        RepositionBars(kFirstBar, kLastBar, 0);
    }
}

void LayoutDialog::OnGetMinMaxInfo(MINMAXINFO* info)
{
    ToolTipDlg::OnGetMinMaxInfo(info);
    LimitTrackSizes(info);
}

BOOL LayoutDialog::OnEraseBkgnd(CDC* dc)
{
    EraseBkgnd(dc);
    return TRUE;
}

/// Not every system tells a dialog its size when it is first shown.
void LayoutDialog::OnShowWindow(BOOL show, UINT status)
{
    ToolTipDlg::OnShowWindow(show, status);
    if (show)
    {
        UpdateLayout(false);
    }
}

void LayoutDialog::OnDestroy()
{
    if (!m_strSection.IsEmpty())
    {
        Save(m_strSection);
    }
    ReleaseRoot();
    ToolTipDlg::OnDestroy();
}

} // namespace LayoutManagement
