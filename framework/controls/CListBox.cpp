#include "framework/controls/CListBox.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("LISTBOX", nullptr, style, rect, parent, id);
}

int CListBox::GetCount() const
{
    return Ask(*this, LB_GETCOUNT);
}

int CListBox::GetHorizontalExtent() const
{
    return Ask(*this, LB_GETHORIZONTALEXTENT);
}

void CListBox::SetHorizontalExtent(int width)
{
    Ask(*this, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width));
}

int CListBox::GetTopIndex() const
{
    return Ask(*this, LB_GETTOPINDEX);
}

int CListBox::SetTopIndex(int index)
{
    return Ask(*this, LB_SETTOPINDEX, static_cast<WPARAM>(index));
}

LCID CListBox::GetLocale() const
{
    return static_cast<LCID>(Ask(*this, LB_GETLOCALE));
}

LCID CListBox::SetLocale(LCID locale)
{
    return static_cast<LCID>(Ask(*this, LB_SETLOCALE, locale));
}

int CListBox::InitStorage(int items, UINT bytes)
{
    return Ask(*this, LB_INITSTORAGE, static_cast<WPARAM>(items), static_cast<LPARAM>(bytes));
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const
{
    const LRESULT answer = Ask(*this, LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    outside = HIWORD(answer) != 0;
    return LOWORD(answer);
}

DWORD CListBox::GetListBoxInfo() const
{
    return static_cast<DWORD>(Ask(*this, LB_GETLISTBOXINFO));
}

int CListBox::GetItemRect(int index, LPRECT rect) const
{
    return Ask(*this, LB_GETITEMRECT, static_cast<WPARAM>(index), rect);
}

int CListBox::SetItemHeight(int index, UINT height)
{
    return Ask(*this, LB_SETITEMHEIGHT, static_cast<WPARAM>(index), MAKELPARAM(height, 0));
}

int CListBox::GetItemHeight(int index) const
{
    return Ask(*this, LB_GETITEMHEIGHT, static_cast<WPARAM>(index));
}

void CListBox::SetColumnWidth(int width)
{
    Ask(*this, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(width));
}

void CListBox::SetTabStops()
{
    Ask(*this, LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& distance)
{
    return Ask(*this, LB_SETTABSTOPS, 1, &distance);
}

BOOL CListBox::SetTabStops(int count, LPINT stops)
{
    return Ask(*this, LB_SETTABSTOPS, static_cast<WPARAM>(count), stops);
}
