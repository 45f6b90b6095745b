#include "toolkit/layout/LayoutPropertySheet.h"

#include "framework/controls/CTabCtrl.h"
#include "framework/include/afxres.h"
#include "framework/window/MessageMap.h"
#include "toolkit/layout/LayoutPropertyPage.h"
#include "toolkit/layout/SizingFrame.h"

#include <algorithm>

namespace LayoutManagement
{
namespace
{

constexpr UINT kRedraw = 0x101; ///< RDW_INVALIDATE and RDW_UPDATENOW

/// Messages in whose handling the sheet may come to show another page.
bool MaySwitchPage(UINT message)
{
    constexpr UINT kFirstSheetMessage = PSM_SETCURSEL;
    constexpr UINT kLastSheetMessage = PSM_RECALCPAGESIZES;
    return message == WM_COMMAND || message == WM_NOTIFY ||
           (message >= kFirstSheetMessage && message <= kLastSheetMessage && message != PSM_GETCURRENTPAGEHWND &&
            message != PSM_GETTABCONTROL);
}

} // namespace

IMPLEMENT_DYNAMIC(LayoutPropertySheet, CPropertySheet)

BEGIN_MESSAGE_MAP(LayoutPropertySheet, CPropertySheet)
ON_WM_SIZE()
ON_WM_GETMINMAXINFO()
ON_WM_ERASEBKGND()
ON_WM_SHOWWINDOW()
ON_WM_DESTROY()
END_MESSAGE_MAP()

LayoutPropertySheet::LayoutPropertySheet(UINT nIDCaption, CWnd* parent, UINT selectPage, LPCSTR section,
                                         bool bRepositionBars)
    : CPropertySheet(nIDCaption, parent, selectPage), LayoutMgr(this)
{
    Init(section, bRepositionBars);
}

LayoutPropertySheet::LayoutPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage, LPCSTR section,
                                         bool bRepositionBars)
    : CPropertySheet(caption, parent, selectPage), LayoutMgr(this)
{
    Init(section, bRepositionBars);
}

LayoutPropertySheet::~LayoutPropertySheet()
{
    m_bAutoDestroy = false; // which is happening
    if (m_hWnd != nullptr)
    {
        DestroyWindow(); // while OnDestroy still has the section's name
    }
}

void LayoutPropertySheet::Init(LPCSTR section, bool bRepositionBars)
{
    m_strSection = section;
    m_bRepositionBars = bRepositionBars;
    m_bModelessWithButtons = false;
    m_bAutoDestroy = false;
    m_bAutoDestroyPages = false;
}

void LayoutPropertySheet::ModelessWithButtons(bool bButtons)
{
    m_bModelessWithButtons = bButtons;
}

void LayoutPropertySheet::SetAutoDestroy(bool bDestroy)
{
    m_bAutoDestroy = bDestroy;
}

void LayoutPropertySheet::SetAutoDestroyPages(bool bDestroy)
{
    m_bAutoDestroyPages = bDestroy;
}

BOOL LayoutPropertySheet::OnInitDialog()
{
    InitBase();
    if (!HasFlag(PSH_USEHICON | PSH_USEICONID)) // which name one of its own
    {
        m_icons.Put(*this, GetIconID());
    }
    GetWindowRect(&m_rectOpened);
    if (GetTabControl() == nullptr || GetActivePage() == nullptr)
    {
        return TRUE;
    }
    if ((GetStyle() & WS_CHILD) == 0)
    {
        TakeSizingFrame(*this);
    }
    DeclarePanes();
    Open();
    return TRUE;
}

UINT LayoutPropertySheet::GetIconID()
{
    return vorn::kHostIcon;
}

/// The framework's part, which takes the buttons of modeless sheets.
void LayoutPropertySheet::InitBase()
{
    const BOOL isModeless = m_bModeless;
    if (m_bModelessWithButtons)
    {
        m_bModeless = FALSE;
    }
    CPropertySheet::OnInitDialog();
    m_bModeless = isModeless;
}

/// At the size that the system chose for the pages, or larger, or where it was when it was last closed.
void LayoutPropertySheet::Open()
{
    CSize least;
    CSize most;
    CRect window;
    GetWindowRect(&window);
    if (GetTrackSizes(least, most) && (window.Width() < least.cx || window.Height() < least.cy))
    {
        SetWindowPos(nullptr, 0, 0, static_cast<int>(std::max<LONG>(window.Width(), least.cx)),
                     static_cast<int>(std::max<LONG>(window.Height(), least.cy)),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (!m_strSection.IsEmpty())
    {
        Load(m_strSection);
    }
    const CRect client = GetRect();
    Resize(client.Width(), client.Height());
}

CRect LayoutPropertySheet::GetRect()
{
    return LayoutMgr::GetRect();
}

void LayoutPropertySheet::OnSize(UINT type, int cx, int cy)
{
    CPropertySheet::OnSize(type, cx, cy);
    Resize(cx, cy);
}

void LayoutPropertySheet::Resize(int cx, int cy)
{
    if ((cx == 0 && cy == 0) || !m_paneRoot)
    {
        return;
    }
    UpdateLayout(false);
    if (FinishLiesOnNext())
    {
        MoveFinishOntoNext();
    }
    if (m_bRepositionBars)
    {
        RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
    }
    PlaceActivePage();
    RedrawWindow(nullptr, nullptr, kRedraw);
    if (!IsLayoutWizard())
    {
        GetTabControl()->RedrawWindow(nullptr, nullptr, kRedraw);
    }
}

void LayoutPropertySheet::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CPropertySheet::OnGetMinMaxInfo(info);
    LimitTrackSizes(info);
}

BOOL LayoutPropertySheet::OnEraseBkgnd(CDC* dc)
{
    EraseBkgnd(dc);
    return TRUE;
}

/// Not every system tells a sheet its size when it is first shown.
void LayoutPropertySheet::OnShowWindow(BOOL show, UINT status)
{
    CPropertySheet::OnShowWindow(show, status);
    if (show)
    {
        UpdateLayout(false);
    }
}

LRESULT LayoutPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND window = m_hWnd;
    const LRESULT result = CPropertySheet::WindowProc(message, wParam, lParam);
    if (MaySwitchPage(message) && FromHandlePermanent(window) == this)
    {
        PlaceNewPage();
    }
    return result;
}

void LayoutPropertySheet::OnDestroy()
{
    if (!m_strSection.IsEmpty())
    {
        Save(m_strSection);
    }
    ReleaseRoot();
    CPropertySheet::OnDestroy();
}

void LayoutPropertySheet::PostNcDestroy()
{
    CPropertySheet::PostNcDestroy();
    m_hWndPlaced = nullptr;
    if (m_bAutoDestroyPages)
    {
        DeletePages();
    }
    if (m_bAutoDestroy && m_bModeless)
    {
        delete this; // which its maker asked for
    }
}

void LayoutPropertySheet::DeletePages()
{
    while (CPropertyPage* const page = GetPage(0))
    {
        RemovePage(page);
        delete page; // which its maker left to the sheet
    }
}

} // namespace LayoutManagement
