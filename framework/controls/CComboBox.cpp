#include "framework/controls/CComboBox.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("COMBOBOX", nullptr, style, rect, parent, id);
}

LCID CComboBox::GetLocale() const
{
    return static_cast<LCID>(Ask(*this, CB_GETLOCALE));
}

LCID CComboBox::SetLocale(LCID locale)
{
    return static_cast<LCID>(Ask(*this, CB_SETLOCALE, locale));
}

int CComboBox::InitStorage(int items, UINT bytes)
{
    return Ask(*this, CB_INITSTORAGE, static_cast<WPARAM>(items), static_cast<LPARAM>(bytes));
}

void CComboBox::SetHorizontalExtent(UINT width)
{
    Ask(*this, CB_SETHORIZONTALEXTENT, width);
}

UINT CComboBox::GetHorizontalExtent() const
{
    return static_cast<UINT>(Ask(*this, CB_GETHORIZONTALEXTENT));
}

int CComboBox::SetDroppedWidth(UINT width)
{
    return Ask(*this, CB_SETDROPPEDWIDTH, width);
}

int CComboBox::GetDroppedWidth() const
{
    return Ask(*this, CB_GETDROPPEDWIDTH);
}

DWORD CComboBox::GetEditSel() const
{
    return static_cast<DWORD>(Ask(*this, CB_GETEDITSEL));
}

BOOL CComboBox::LimitText(int limit)
{
    return Ask(*this, CB_LIMITTEXT, static_cast<WPARAM>(limit));
}

BOOL CComboBox::SetEditSel(int start, int end)
{
    return Ask(*this, CB_SETEDITSEL, 0, MAKELPARAM(start, end));
}

void CComboBox::Clear()
{
    Ask(*this, WM_CLEAR);
}

void CComboBox::Copy()
{
    Ask(*this, WM_COPY);
}

void CComboBox::Cut()
{
    Ask(*this, WM_CUT);
}

void CComboBox::Paste()
{
    Ask(*this, WM_PASTE);
}

int CComboBox::SetItemHeight(int index, UINT height)
{
    return Ask(*this, CB_SETITEMHEIGHT, static_cast<WPARAM>(index), MAKELPARAM(height, 0));
}

int CComboBox::GetItemHeight(int index) const
{
    return Ask(*this, CB_GETITEMHEIGHT, static_cast<WPARAM>(index));
}

int CComboBox::SetExtendedUI(BOOL extended)
{
    return Ask(*this, CB_SETEXTENDEDUI, static_cast<WPARAM>(extended));
}

BOOL CComboBox::GetExtendedUI() const
{
    return Ask(*this, CB_GETEXTENDEDUI);
}

void CComboBox::GetDroppedControlRect(LPRECT rect) const
{
    Ask(*this, CB_GETDROPPEDCONTROLRECT, 0, rect);
}

BOOL CComboBox::GetDroppedState() const
{
    return Ask(*this, CB_GETDROPPEDSTATE);
}

void CComboBox::ShowDropDown(BOOL show)
{
    Ask(*this, CB_SHOWDROPDOWN, static_cast<WPARAM>(show));
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO info) const
{
    info->cbSize = sizeof(COMBOBOXINFO);
    return ::GetComboBoxInfo(m_hWnd, info);
}
