// Items of the list box: filling, selecting, searching and owner drawing.
#include "framework/controls/CListBox.h"

#include "framework/controls/ControlMessage.h"
#include "framework/controls/ItemOwner.h"

using vorn::Ask;

int CListBox::GetCurSel() const
{
    return Ask(*this, LB_GETCURSEL);
}

int CListBox::SetCurSel(int index)
{
    return Ask(*this, LB_SETCURSEL, static_cast<WPARAM>(index));
}

int CListBox::GetSel(int index) const
{
    return Ask(*this, LB_GETSEL, static_cast<WPARAM>(index));
}

int CListBox::SetSel(int index, BOOL select)
{
    return Ask(*this, LB_SETSEL, static_cast<WPARAM>(select), static_cast<LPARAM>(index));
}

int CListBox::GetSelCount() const
{
    return Ask(*this, LB_GETSELCOUNT);
}

int CListBox::GetSelItems(int maxItems, LPINT indices) const
{
    return Ask(*this, LB_GETSELITEMS, static_cast<WPARAM>(maxItems), indices);
}

int CListBox::SelItemRange(BOOL select, int first, int last)
{
    return Ask(*this, LB_SELITEMRANGE, static_cast<WPARAM>(select), MAKELPARAM(first, last));
}

void CListBox::SetAnchorIndex(int index)
{
    Ask(*this, LB_SETANCHORINDEX, static_cast<WPARAM>(index));
}

int CListBox::GetAnchorIndex() const
{
    return Ask(*this, LB_GETANCHORINDEX);
}

int CListBox::GetCaretIndex() const
{
    return Ask(*this, LB_GETCARETINDEX);
}

int CListBox::SetCaretIndex(int index, BOOL scroll)
{
    return Ask(*this, LB_SETCARETINDEX, static_cast<WPARAM>(index), MAKELPARAM(scroll, 0));
}

DWORD_PTR CListBox::GetItemData(int index) const
{
    return static_cast<DWORD_PTR>(Ask(*this, LB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CListBox::SetItemData(int index, DWORD_PTR value)
{
    return Ask(*this, LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(value));
}

void* CListBox::GetItemDataPtr(int index) const
{
    return reinterpret_cast<void*>(GetItemData(index));
}

int CListBox::SetItemDataPtr(int index, void* value)
{
    return SetItemData(index, reinterpret_cast<DWORD_PTR>(value));
}

int CListBox::GetText(int index, LPTSTR buffer) const
{
    return Ask(*this, LB_GETTEXT, static_cast<WPARAM>(index), buffer);
}

void CListBox::GetText(int index, CString& text) const
{
    vorn::TakeItemText(
        index, text,
        [this](int item)
        {
            return GetTextLen(item);
        },
        [this](int item, LPTSTR buffer)
        {
            return GetText(item, buffer);
        });
}

int CListBox::GetTextLen(int index) const
{
    return Ask(*this, LB_GETTEXTLEN, static_cast<WPARAM>(index));
}

int CListBox::AddString(LPCTSTR text)
{
    return Ask(*this, LB_ADDSTRING, 0, text);
}

int CListBox::DeleteString(UINT index)
{
    return Ask(*this, LB_DELETESTRING, index);
}

int CListBox::InsertString(int index, LPCTSTR text)
{
    return Ask(*this, LB_INSERTSTRING, static_cast<WPARAM>(index), text);
}

void CListBox::ResetContent()
{
    Ask(*this, LB_RESETCONTENT);
}

int CListBox::Dir(UINT attributes, LPCTSTR wildcard)
{
    return Ask(*this, LB_DIR, attributes, wildcard);
}

int CListBox::FindString(int startAfter, LPCTSTR prefix) const
{
    return Ask(*this, LB_FINDSTRING, static_cast<WPARAM>(startAfter), prefix);
}

int CListBox::FindStringExact(int startAfter, LPCTSTR text) const
{
    return Ask(*this, LB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), text);
}

int CListBox::SelectString(int startAfter, LPCTSTR prefix)
{
    return Ask(*this, LB_SELECTSTRING, static_cast<WPARAM>(startAfter), prefix);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT)
{
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

int CListBox::VKeyToItem(UINT, UINT)
{
    return -1;
}

int CListBox::CharToItem(UINT, UINT)
{
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (vorn::HandleItemMessage(*this, message, lParam, result))
        return TRUE;
    LRESULT answer = 0;
    switch (message)
    {
    case WM_VKEYTOITEM:
        answer = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_CHARTOITEM:
        answer = CharToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
    if (result)
        *result = answer;
    return TRUE;
}
