// Items of the combo box: filling, selecting, searching and owner drawing.
#include "framework/controls/CComboBox.h"

#include "framework/controls/ControlMessage.h"
#include "framework/controls/ItemOwner.h"

using vorn::Ask;

int CComboBox::GetCount() const
{
    return Ask(*this, CB_GETCOUNT);
}

int CComboBox::GetCurSel() const
{
    return Ask(*this, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int index)
{
    return Ask(*this, CB_SETCURSEL, static_cast<WPARAM>(index));
}

int CComboBox::GetTopIndex() const
{
    return Ask(*this, CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int index)
{
    return Ask(*this, CB_SETTOPINDEX, static_cast<WPARAM>(index));
}

DWORD_PTR CComboBox::GetItemData(int index) const
{
    return static_cast<DWORD_PTR>(Ask(*this, CB_GETITEMDATA, static_cast<WPARAM>(index)));
}

int CComboBox::SetItemData(int index, DWORD_PTR value)
{
    return Ask(*this, CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(value));
}

void* CComboBox::GetItemDataPtr(int index) const
{
    return reinterpret_cast<void*>(GetItemData(index));
}

int CComboBox::SetItemDataPtr(int index, void* value)
{
    return SetItemData(index, reinterpret_cast<DWORD_PTR>(value));
}

int CComboBox::GetLBText(int index, LPTSTR buffer) const
{
    return Ask(*this, CB_GETLBTEXT, static_cast<WPARAM>(index), buffer);
}

void CComboBox::GetLBText(int index, CString& text) const
{
    vorn::TakeItemText(
        index, text,
        [this](int item)
        {
            return GetLBTextLen(item);
        },
        [this](int item, LPTSTR buffer)
        {
            return GetLBText(item, buffer);
        });
}

int CComboBox::GetLBTextLen(int index) const
{
    return Ask(*this, CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
}

int CComboBox::AddString(LPCTSTR text)
{
    return Ask(*this, CB_ADDSTRING, 0, text);
}

int CComboBox::DeleteString(UINT index)
{
    return Ask(*this, CB_DELETESTRING, index);
}

int CComboBox::InsertString(int index, LPCTSTR text)
{
    return Ask(*this, CB_INSERTSTRING, static_cast<WPARAM>(index), text);
}

void CComboBox::ResetContent()
{
    Ask(*this, CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attributes, LPCTSTR wildcard)
{
    return Ask(*this, CB_DIR, attributes, wildcard);
}

int CComboBox::FindString(int startAfter, LPCTSTR prefix) const
{
    return Ask(*this, CB_FINDSTRING, static_cast<WPARAM>(startAfter), prefix);
}

int CComboBox::FindStringExact(int startAfter, LPCTSTR text) const
{
    return Ask(*this, CB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), text);
}

int CComboBox::SelectString(int startAfter, LPCTSTR prefix)
{
    return Ask(*this, CB_SELECTSTRING, static_cast<WPARAM>(startAfter), prefix);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT)
{
}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return vorn::HandleItemMessage(*this, message, lParam, result) ||
           CWnd::OnChildNotify(message, wParam, lParam, result);
}
