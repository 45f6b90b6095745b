#include "toolkit/layout/LayoutDialog.h"

#include "framework/include/afxres.h"
#include "framework/window/MessageMap.h"
#include "toolkit/layout/SizingFrame.h"

namespace LayoutManagement
{

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
        TakeSizingFrame(*this);
        MatchSystemMenu();
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
    if (m_statusBar.Create(this, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM | grip, AFX_IDW_STATUS_BAR))
    {
        m_statusBar.SetIndicators(&pane, 1);
        RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
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
        RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
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
