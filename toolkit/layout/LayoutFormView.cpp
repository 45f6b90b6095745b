#include "toolkit/layout/LayoutFormView.h"

#include "framework/include/afxres.h"
#include "framework/window/MessageMap.h"

namespace LayoutManagement
{

IMPLEMENT_DYNAMIC(LayoutFormView, CFormView)

BEGIN_MESSAGE_MAP(LayoutFormView, CFormView)
ON_WM_SIZE()
ON_WM_GETMINMAXINFO()
ON_WM_ERASEBKGND()
ON_WM_DESTROY()
END_MESSAGE_MAP()

LayoutFormView::LayoutFormView(UINT nIDTemplate, LPCSTR section)
    : CFormView(nIDTemplate), LayoutMgr(this), m_strSection(section)
{
}

LayoutFormView::~LayoutFormView()
{
    // A view that is deleted before its window hears no OnDestroy().
    if (m_hWnd != nullptr && KeepsPlacement())
    {
        Save(m_strSection);
    }
}

bool LayoutFormView::KeepsPlacement() const
{
    return !m_strSection.IsEmpty() && (GetStyle() & WS_CHILD) == 0;
}

void LayoutFormView::OnInitialUpdate()
{
    CFormView::OnInitialUpdate();
    if (KeepsPlacement())
    {
        Load(m_strSection);
    }
}

CRect LayoutFormView::GetRect()
{
    return LayoutMgr::GetRect();
}

void LayoutFormView::OnSize(UINT type, int cx, int cy)
{
    // There is nothing to scroll over but what the window shows.
    SetScrollSizes(MM_TEXT, SIZE{cx, cy});
    CFormView::OnSize(type, cx, cy);
    if (cx != 0 || cy != 0)
    {
        UpdateLayout(false);
        RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
    }
}

void LayoutFormView::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CFormView::OnGetMinMaxInfo(info);
    LimitTrackSizes(info);
}

BOOL LayoutFormView::OnEraseBkgnd(CDC* dc)
{
    EraseBkgnd(dc);
    return TRUE;
}

void LayoutFormView::OnDestroy()
{
    if (KeepsPlacement())
    {
        Save(m_strSection);
    }
    ReleaseRoot();
    CFormView::OnDestroy();
}

HRESULT LayoutFormView::accHitTest(long left, long top, VARIANT* child)
{
    return CFormView::accHitTest(left, top, child);
}

HRESULT LayoutFormView::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    return CFormView::accLocation(left, top, width, height, child);
}

HRESULT LayoutFormView::get_accChild(VARIANT child, IDispatch** dispatch)
{
    return CFormView::get_accChild(child, dispatch);
}

HRESULT LayoutFormView::get_accChildCount(long* count)
{
    return CFormView::get_accChildCount(count);
}

HRESULT LayoutFormView::get_accName(VARIANT child, BSTR* name)
{
    return CFormView::get_accName(child, name);
}

} // namespace LayoutManagement
