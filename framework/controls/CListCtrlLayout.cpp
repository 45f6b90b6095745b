// Where the items of the list view are.
#include "framework/controls/CListCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

BOOL CListCtrl::GetItemRect(int index, LPRECT rect, UINT part) const
{
    rect->left = static_cast<LONG>(part);
    return Ask(*this, LVM_GETITEMRECT, static_cast<WPARAM>(index), rect);
}

BOOL CListCtrl::GetSubItemRect(int index, int subItem, int part, RECT& rect) const
{
    rect.top = subItem;
    rect.left = part;
    return Ask(*this, LVM_GETSUBITEMRECT, static_cast<WPARAM>(index), &rect);
}

int CListCtrl::HitTest(LVHITTESTINFO* info) const
{
    return Ask(*this, LVM_HITTEST, 0, info);
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const
{
    LVHITTESTINFO info{};
    info.pt = point;
    const int index = HitTest(&info);
    if (flags)
        *flags = info.flags;
    return index;
}

int CListCtrl::SubItemHitTest(LVHITTESTINFO* info) const
{
    return Ask(*this, LVM_SUBITEMHITTEST, 0, info);
}

BOOL CListCtrl::EnsureVisible(int index, BOOL partialIsEnough)
{
    return Ask(*this, LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), MAKELPARAM(partialIsEnough, 0));
}

int CListCtrl::GetTopIndex() const
{
    return Ask(*this, LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const
{
    return Ask(*this, LVM_GETCOUNTPERPAGE);
}

BOOL CListCtrl::RedrawItems(int first, int last)
{
    return Ask(*this, LVM_REDRAWITEMS, static_cast<WPARAM>(first), static_cast<LPARAM>(last));
}

BOOL CListCtrl::Update(int index)
{
    return Ask(*this, LVM_UPDATE, static_cast<WPARAM>(index));
}
