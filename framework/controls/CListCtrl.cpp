#include "framework/controls/CListCtrl.h"

#include "framework/controls/CHeaderCtrl.h"
#include "framework/controls/CImageList.h"
#include "framework/controls/ControlMessage.h"

using vorn::AsHandle;
using vorn::Ask;

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

CListCtrl::CListCtrl() = default;

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    vorn::EnsureCommonControls();
    return CWnd::Create(WC_LISTVIEWA, nullptr, style, rect, parent, id);
}

COLORREF CListCtrl::GetBkColor() const
{
    return static_cast<COLORREF>(Ask(*this, LVM_GETBKCOLOR));
}

BOOL CListCtrl::SetBkColor(COLORREF colour)
{
    return Ask(*this, LVM_SETBKCOLOR, 0, static_cast<LPARAM>(colour));
}

COLORREF CListCtrl::GetTextColor() const
{
    return static_cast<COLORREF>(Ask(*this, LVM_GETTEXTCOLOR));
}

BOOL CListCtrl::SetTextColor(COLORREF colour)
{
    return Ask(*this, LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(colour));
}

COLORREF CListCtrl::GetTextBkColor() const
{
    return static_cast<COLORREF>(Ask(*this, LVM_GETTEXTBKCOLOR));
}

BOOL CListCtrl::SetTextBkColor(COLORREF colour)
{
    return Ask(*this, LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(colour));
}

CImageList* CListCtrl::SetImageList(CImageList* list, int kind)
{
    const HIMAGELIST handle = list ? list->m_hImageList : nullptr;
    return CImageList::FromHandle(
        AsHandle<HIMAGELIST>(Ask(*this, LVM_SETIMAGELIST, static_cast<WPARAM>(kind), handle)));
}

CImageList* CListCtrl::GetImageList(int kind) const
{
    return CImageList::FromHandle(AsHandle<HIMAGELIST>(Ask(*this, LVM_GETIMAGELIST, static_cast<WPARAM>(kind))));
}

DWORD CListCtrl::GetExtendedStyle() const
{
    return static_cast<DWORD>(Ask(*this, LVM_GETEXTENDEDLISTVIEWSTYLE));
}

DWORD CListCtrl::SetExtendedStyle(DWORD style)
{
    return static_cast<DWORD>(Ask(*this, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
}

int CListCtrl::InsertColumn(int column, const LVCOLUMNA* description)
{
    return Ask(*this, LVM_INSERTCOLUMNA, static_cast<WPARAM>(column), description);
}

int CListCtrl::InsertColumn(int column, LPCTSTR heading, int format, int width, int subItem)
{
    LVCOLUMNA description{};
    description.mask = LVCF_TEXT | LVCF_FMT;
    description.pszText = const_cast<LPSTR>(heading); // only read
    description.fmt = format;
    if (width != -1)
        description.mask |= LVCF_WIDTH;
    if (subItem != -1)
        description.mask |= LVCF_SUBITEM;
    description.cx = width;
    description.iSubItem = subItem;
    return InsertColumn(column, &description);
}

BOOL CListCtrl::DeleteColumn(int column)
{
    return Ask(*this, LVM_DELETECOLUMN, static_cast<WPARAM>(column));
}

BOOL CListCtrl::GetColumn(int column, LVCOLUMNA* description) const
{
    return Ask(*this, LVM_GETCOLUMNA, static_cast<WPARAM>(column), description);
}

BOOL CListCtrl::SetColumn(int column, const LVCOLUMNA* description)
{
    return Ask(*this, LVM_SETCOLUMNA, static_cast<WPARAM>(column), description);
}

int CListCtrl::GetColumnWidth(int column) const
{
    return Ask(*this, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column));
}

BOOL CListCtrl::SetColumnWidth(int column, int width)
{
    return Ask(*this, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), MAKELPARAM(width, 0));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    // A temporary object is a plain CWnd; the header's functions need nothing but its handle.
    return static_cast<CHeaderCtrl*>(CWnd::FromHandle(AsHandle<HWND>(Ask(*this, LVM_GETHEADER))));
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
