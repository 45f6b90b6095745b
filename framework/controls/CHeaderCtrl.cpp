#include "framework/controls/CHeaderCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

CHeaderCtrl::CHeaderCtrl() = default;

BOOL CHeaderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    vorn::EnsureCommonControls();
    return CWnd::Create(WC_HEADERA, nullptr, style, rect, parent, id);
}

int CHeaderCtrl::GetItemCount() const
{
    return Ask(*this, HDM_GETITEMCOUNT);
}

BOOL CHeaderCtrl::GetItem(int index, HDITEMA* item) const
{
    return Ask(*this, HDM_GETITEMA, static_cast<WPARAM>(index), item);
}

BOOL CHeaderCtrl::SetItem(int index, HDITEMA* item)
{
    return Ask(*this, HDM_SETITEMA, static_cast<WPARAM>(index), item);
}

int CHeaderCtrl::InsertItem(int index, HDITEMA* item)
{
    return Ask(*this, HDM_INSERTITEMA, static_cast<WPARAM>(index), item);
}

BOOL CHeaderCtrl::DeleteItem(int index)
{
    return Ask(*this, HDM_DELETEITEM, static_cast<WPARAM>(index));
}

BOOL CHeaderCtrl::GetItemRect(int index, LPRECT rect) const
{
    return Ask(*this, HDM_GETITEMRECT, static_cast<WPARAM>(index), rect);
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* layout)
{
    return Ask(*this, HDM_LAYOUT, 0, layout);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT order, int count) const
{
    const int items = count == -1 ? GetItemCount() : count;
    return Ask(*this, HDM_GETORDERARRAY, static_cast<WPARAM>(items), order);
}

BOOL CHeaderCtrl::SetOrderArray(int count, LPINT order)
{
    return Ask(*this, HDM_SETORDERARRAY, static_cast<WPARAM>(count), order);
}

int CHeaderCtrl::OrderToIndex(int position) const
{
    return Ask(*this, HDM_ORDERTOINDEX, static_cast<WPARAM>(position));
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
