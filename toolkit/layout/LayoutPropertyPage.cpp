#include "toolkit/layout/LayoutPropertyPage.h"

#include "framework/include/afxres.h"
#include "framework/window/MessageMap.h"
#include "toolkit/layout/LayoutPropertySheet.h"

namespace LayoutManagement
{

IMPLEMENT_DYNAMIC(LayoutPropertyPage, ToolTipPropertyPage)

BEGIN_MESSAGE_MAP(LayoutPropertyPage, ToolTipPropertyPage)
ON_WM_SIZE()
ON_WM_GETMINMAXINFO()
ON_WM_ERASEBKGND()
ON_WM_WINDOWPOSCHANGING()
ON_WM_WINDOWPOSCHANGED()
ON_WM_DESTROY()
END_MESSAGE_MAP()

LayoutPropertyPage::LayoutPropertyPage() : LayoutMgr(this)
{
}

LayoutPropertyPage::LayoutPropertyPage(UINT nIDTemplate, UINT nIDCaption)
    : ToolTipPropertyPage(nIDTemplate, nIDCaption), LayoutMgr(this)
{
}

LayoutPropertyPage::LayoutPropertyPage(LPCTSTR templateName, UINT nIDCaption)
    : ToolTipPropertyPage(templateName, nIDCaption), LayoutMgr(this)
{
}

LayoutPropertyPage::~LayoutPropertyPage() = default;

BOOL LayoutPropertyPage::OnInitDialog()
{
    ToolTipPropertyPage::OnInitDialog();
    return TRUE;
}

BOOL LayoutPropertyPage::OnSetActive()
{
    const BOOL result = ToolTipPropertyPage::OnSetActive();
    UpdateLayout(false);
    return result;
}

CRect LayoutPropertyPage::GetRect()
{
    return LayoutMgr::GetRect();
}

void LayoutPropertyPage::OnSize(UINT type, int cx, int cy)
{
    ToolTipPropertyPage::OnSize(type, cx, cy);
    if (cx != 0 || cy != 0)
    {
        UpdateLayout(false);
        RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
    }
}

void LayoutPropertyPage::OnGetMinMaxInfo(MINMAXINFO* info)
{
    ToolTipPropertyPage::OnGetMinMaxInfo(info);
    LimitTrackSizes(info);
}

BOOL LayoutPropertyPage::OnEraseBkgnd(CDC* dc)
{
    EraseBkgnd(dc);
    return TRUE;
}

/// Wherever the system puts the page when it is shown, it stands in the sheet's page area.
void LayoutPropertyPage::OnWindowPosChanging(WINDOWPOS* position)
{
    ToolTipPropertyPage::OnWindowPosChanging(position);
    auto* const sheet = dynamic_cast<LayoutPropertySheet*>(GetParentSheet());
    CRect area;
    if (sheet != nullptr && sheet->GetPageArea(area))
    {
        position->x = static_cast<int>(area.left);
        position->y = static_cast<int>(area.top);
        position->cx = area.Width();
        position->cy = area.Height();
        position->flags &= ~static_cast<UINT>(SWP_NOMOVE | SWP_NOSIZE);
    }
}

void LayoutPropertyPage::OnWindowPosChanged(WINDOWPOS* position)
{
    ToolTipPropertyPage::OnWindowPosChanged(position);
    if ((position->flags & SWP_NOSIZE) == 0)
    {
        UpdateLayout(false);
    }
}

void LayoutPropertyPage::OnDestroy()
{
    ReleaseRoot();
    ToolTipPropertyPage::OnDestroy();
}

} // namespace LayoutManagement
