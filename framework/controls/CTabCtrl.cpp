#include "framework/controls/CTabCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CTabCtrl::CTabCtrl() = default;

BOOL CTabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    vorn::EnsureCommonControls();
    return CWnd::Create(WC_TABCONTROLA, nullptr, style, rect, parent, id);
}

int CTabCtrl::GetItemCount() const
{
    return Ask(*this, TCM_GETITEMCOUNT);
}

BOOL CTabCtrl::GetItem(int index, TCITEM* item) const
{
    return Ask(*this, TCM_GETITEMA, static_cast<WPARAM>(index), item);
}

BOOL CTabCtrl::SetItem(int index, TCITEM* item)
{
    return Ask(*this, TCM_SETITEMA, static_cast<WPARAM>(index), item);
}

LONG CTabCtrl::InsertItem(int index, TCITEM* item)
{
    return Ask(*this, TCM_INSERTITEMA, static_cast<WPARAM>(index), item);
}

LONG CTabCtrl::InsertItem(int index, LPCTSTR text)
{
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<LPTSTR>(text); // only read
    return InsertItem(index, &item);
}

BOOL CTabCtrl::DeleteItem(int index)
{
    return Ask(*this, TCM_DELETEITEM, static_cast<WPARAM>(index));
}

BOOL CTabCtrl::DeleteAllItems()
{
    return Ask(*this, TCM_DELETEALLITEMS);
}

int CTabCtrl::GetCurSel() const
{
    return Ask(*this, TCM_GETCURSEL);
}

int CTabCtrl::SetCurSel(int index)
{
    return Ask(*this, TCM_SETCURSEL, static_cast<WPARAM>(index));
}

int CTabCtrl::GetCurFocus() const
{
    return Ask(*this, TCM_GETCURFOCUS);
}

void CTabCtrl::SetCurFocus(int index)
{
    Ask(*this, TCM_SETCURFOCUS, static_cast<WPARAM>(index));
}

BOOL CTabCtrl::GetItemRect(int index, LPRECT rect) const
{
    return Ask(*this, TCM_GETITEMRECT, static_cast<WPARAM>(index), rect);
}

int CTabCtrl::GetRowCount() const
{
    return Ask(*this, TCM_GETROWCOUNT);
}

int CTabCtrl::HitTest(TCHITTESTINFO* hitTest) const
{
    return Ask(*this, TCM_HITTEST, 0, hitTest);
}

void CTabCtrl::AdjustRect(BOOL larger, LPRECT rect)
{
    Ask(*this, TCM_ADJUSTRECT, static_cast<WPARAM>(larger), rect);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    return CSize(static_cast<DWORD>(Ask(*this, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy))));
}

void CTabCtrl::SetPadding(CSize size)
{
    Ask(*this, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy));
}
