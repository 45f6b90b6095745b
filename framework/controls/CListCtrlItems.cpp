// Items of the list view.
#include "framework/controls/CListCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

namespace
{
constexpr UINT kCheckedImage = 2; // state picture 1 is the empty box, 2 the ticked one
constexpr int kFirstTextSize = 128;
constexpr int kLastTextSize = 1 << 20; // an owner that fills every buffer must not keep us growing

/// The list of selected items is walked by item number + 1, so that null can mean "no more".
POSITION PositionOf(int index)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(index + 1));
}
} // namespace

int CListCtrl::GetItemCount() const
{
    return Ask(*this, LVM_GETITEMCOUNT);
}

void CListCtrl::SetItemCount(int items)
{
    Ask(*this, LVM_SETITEMCOUNT, static_cast<WPARAM>(items));
}

BOOL CListCtrl::SetItemCountEx(int items, DWORD flags)
{
    return Ask(*this, LVM_SETITEMCOUNT, static_cast<WPARAM>(items), static_cast<LPARAM>(flags)) != 0;
}

int CListCtrl::InsertItem(const LVITEMA* item)
{
    return Ask(*this, LVM_INSERTITEMA, 0, item);
}

int CListCtrl::InsertItem(int index, LPCTSTR text)
{
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.iItem = index;
    item.pszText = const_cast<LPSTR>(text); // only read
    return InsertItem(&item);
}

int CListCtrl::InsertItem(int index, LPCTSTR text, int image)
{
    LVITEMA item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = index;
    item.pszText = const_cast<LPSTR>(text); // only read
    item.iImage = image;
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int index)
{
    return Ask(*this, LVM_DELETEITEM, static_cast<WPARAM>(index));
}

BOOL CListCtrl::DeleteAllItems()
{
    return Ask(*this, LVM_DELETEALLITEMS);
}

BOOL CListCtrl::GetItem(LVITEMA* item) const
{
    return Ask(*this, LVM_GETITEMA, 0, item);
}

BOOL CListCtrl::SetItem(const LVITEMA* item)
{
    return Ask(*this, LVM_SETITEMA, 0, item);
}

CString CListCtrl::GetItemText(int index, int subItem) const
{
    CString text;
    int size = kFirstTextSize;
    for (;;)
    {
        const int length = GetItemText(index, subItem, text.GetBuffer(size), size);
        text.ReleaseBuffer(length);
        // A result that fills the buffer may have been cut.
        if (length < size - 1 || size >= kLastTextSize)
            return text;
        size *= 2;
    }
}

int CListCtrl::GetItemText(int index, int subItem, LPTSTR text, int size) const
{
    if (!text || size <= 0)
        return 0;
    text[0] = '\0';
    LVITEMA item{};
    item.iSubItem = subItem;
    item.pszText = text;
    item.cchTextMax = size;
    Ask(*this, LVM_GETITEMTEXTA, static_cast<WPARAM>(index), &item);
    // Not the message's answer: for a text that was cut some versions tell its whole length.
    text[size - 1] = '\0';
    return ::lstrlenA(text);
}

BOOL CListCtrl::SetItemText(int index, int subItem, LPCTSTR text)
{
    LVITEMA item{};
    item.iSubItem = subItem;
    item.pszText = const_cast<LPSTR>(text); // only read
    return Ask(*this, LVM_SETITEMTEXTA, static_cast<WPARAM>(index), &item);
}

DWORD_PTR CListCtrl::GetItemData(int index) const
{
    LVITEMA item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int index, DWORD_PTR value)
{
    LVITEMA item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    item.lParam = static_cast<LPARAM>(value);
    return SetItem(&item);
}

UINT CListCtrl::GetItemState(int index, UINT mask) const
{
    return static_cast<UINT>(Ask(*this, LVM_GETITEMSTATE, static_cast<WPARAM>(index), static_cast<LPARAM>(mask)));
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask)
{
    LVITEMA item{};
    item.state = state;
    item.stateMask = mask;
    return Ask(*this, LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
}

BOOL CListCtrl::GetCheck(int index) const
{
    return GetItemState(index, LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(kCheckedImage);
}

BOOL CListCtrl::SetCheck(int index, BOOL check)
{
    return SetItemState(index, INDEXTOSTATEIMAGEMASK(check ? kCheckedImage : 1u), LVIS_STATEIMAGEMASK);
}

int CListCtrl::FindItem(LVFINDINFOA* find, int startAfter) const
{
    return Ask(*this, LVM_FINDITEMA, static_cast<WPARAM>(startAfter), find);
}

int CListCtrl::GetNextItem(int startAfter, int flags) const
{
    return Ask(*this, LVM_GETNEXTITEM, static_cast<WPARAM>(startAfter), MAKELPARAM(flags, 0));
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return Ask(*this, LVM_SORTITEMS, data, compare);
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const
{
    const int index = static_cast<int>(reinterpret_cast<INT_PTR>(position)) - 1;
    position = index < 0 ? nullptr : PositionOf(GetNextItem(index, LVNI_SELECTED));
    return index;
}

UINT CListCtrl::GetSelectedCount() const
{
    return static_cast<UINT>(Ask(*this, LVM_GETSELECTEDCOUNT));
}

int CListCtrl::GetSelectionMark() const
{
    return Ask(*this, LVM_GETSELECTIONMARK);
}

int CListCtrl::SetSelectionMark(int index)
{
    return Ask(*this, LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(index));
}
