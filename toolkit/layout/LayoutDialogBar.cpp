#include "toolkit/layout/LayoutDialogBar.h"

#include "framework/include/afxres.h"
#include "framework/window/MessageMap.h"

#include <algorithm>

namespace LayoutManagement
{

IMPLEMENT_DYNAMIC(LayoutDialogBar, ToolTipDlgBar)

BEGIN_MESSAGE_MAP(LayoutDialogBar, ToolTipDlgBar)
ON_MESSAGE(WM_INITDIALOG, &LayoutDialogBar::OnInitBar)
ON_WM_SIZE()
ON_WM_GETMINMAXINFO()
ON_WM_ERASEBKGND()
ON_WM_DESTROY()
END_MESSAGE_MAP()

LayoutDialogBar::LayoutDialogBar(LPCSTR section) : LayoutMgr(this), m_strSection(section)
{
}

LayoutDialogBar::~LayoutDialogBar()
{
    m_bAutoDelete = FALSE; // the end of the window must not end the object once more
    if (m_hWnd != nullptr)
    {
        DestroyWindow(); // while OnDestroy still has the section's name
    }
}

LRESULT LayoutDialogBar::OnInitBar(WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = HandleInitDialog(wParam, lParam);
    OnInitDialog();
    return result;
}

BOOL LayoutDialogBar::OnInitDialog()
{
    if (!m_strSection.IsEmpty())
    {
        Load(m_strSection);
    }
    return TRUE;
}

CSize LayoutDialogBar::FrameAround()
{
    CRect window;
    GetWindowRect(&window);
    return window.Size() - GetRect().Size();
}

CSize LayoutDialogBar::LayoutMinimum()
{
    CSize least;
    CSize most;
    return GetTrackSizes(least, most) ? least - FrameAround() : CSize(0, 0);
}

CSize LayoutDialogBar::CalcDynamicLayout(int length, DWORD mode)
{
    const CSize size = ToolTipDlgBar::CalcDynamicLayout(length, mode);
    const CSize least = LayoutMinimum();
    if (least == CSize(0, 0))
    {
        return size;
    }
    // The gripper may lie on another side in the state asked about than it does now.
    const CSize grippers = WithGripper({0, 0}, (mode & LM_HORZ) != 0) - WithGripper({0, 0}, IsHorizontal());
    const CSize whole = least + FrameAround() + grippers;
    return {static_cast<int>(std::max(size.cx, whole.cx)), static_cast<int>(std::max(size.cy, whole.cy))};
}

void LayoutDialogBar::UpdateLayout(bool bRedraw)
{
    LayoutMgr::UpdateLayout(bRedraw);
    UpdateToolRects();
}

void LayoutDialogBar::OnSize(UINT type, int cx, int cy)
{
    ToolTipDlgBar::OnSize(type, cx, cy);
    if (cx != 0 || cy != 0)
    {
        UpdateLayout(false);
        RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
    }
}

void LayoutDialogBar::OnGetMinMaxInfo(MINMAXINFO* info)
{
    ToolTipDlgBar::OnGetMinMaxInfo(info);
    LimitTrackSizes(info);
}

BOOL LayoutDialogBar::OnEraseBkgnd(CDC* dc)
{
    EraseBkgnd(dc);
    return TRUE;
}

void LayoutDialogBar::OnDestroy()
{
    if (!m_strSection.IsEmpty())
    {
        Save(m_strSection);
    }
    ReleaseRoot();
    ToolTipDlgBar::OnDestroy();
}

} // namespace LayoutManagement
