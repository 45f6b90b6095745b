#pragma once

#include "framework/core/CString.h"
#include "framework/core/CollectionHelpers.h"
#include "framework/core/Geometry.h"
#include "framework/window/CWnd.h"

#include <commctrl.h>

class CHeaderCtrl;
class CImageList;

/// A list view. Items and columns are numbered from 0; functions that answer an index answer -1 when there is none.
class HOSTFRAMEWORK_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// @name Look
    COLORREF GetBkColor() const;
    BOOL SetBkColor(COLORREF colour);
    COLORREF GetTextColor() const;
    BOOL SetTextColor(COLORREF colour);
    COLORREF GetTextBkColor() const;
    BOOL SetTextBkColor(COLORREF colour);
    /// The lists stay the caller's; `kind` is an LVSIL_ value. Returns the list before.
    CImageList* SetImageList(CImageList* list, int kind);
    CImageList* GetImageList(int kind) const;
    DWORD GetExtendedStyle() const;
    /// LVS_EX_ flags; returns those before.
    DWORD SetExtendedStyle(DWORD style);

    /// @name Columns
    int InsertColumn(int column, const LVCOLUMNA* description);
    /// A width or sub-item of -1 leaves the system's choice.
    int InsertColumn(int column, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    BOOL DeleteColumn(int column);
    BOOL GetColumn(int column, LVCOLUMNA* description) const;
    BOOL SetColumn(int column, const LVCOLUMNA* description);
    int GetColumnWidth(int column) const;
    /// A width in pixels, LVSCW_AUTOSIZE or LVSCW_AUTOSIZE_USEHEADER.
    BOOL SetColumnWidth(int column, int width);
    /// Null when the list has no heading.
    CHeaderCtrl* GetHeaderCtrl() const;

    /// @name Items
    int GetItemCount() const;
    void SetItemCount(int items);
    /// The number of items of an owner-data list (LVS_OWNERDATA), whose texts the owner gives when it is asked for
    /// them. `flags`: LVSICF_NOINVALIDATEALL repaints only what changes, LVSICF_NOSCROLL stays where the list is.
    BOOL SetItemCountEx(int items, DWORD flags = LVSICF_NOINVALIDATEALL);
    int InsertItem(const LVITEMA* item);
    int InsertItem(int index, LPCTSTR text);
    int InsertItem(int index, LPCTSTR text, int image);
    BOOL DeleteItem(int index);
    BOOL DeleteAllItems();
    BOOL GetItem(LVITEMA* item) const;
    BOOL SetItem(const LVITEMA* item);
    CString GetItemText(int index, int subItem) const;
    /// At most size - 1 characters; returns the number copied.
    int GetItemText(int index, int subItem, LPTSTR text, int size) const;
    BOOL SetItemText(int index, int subItem, LPCTSTR text);
    DWORD_PTR GetItemData(int index) const;
    BOOL SetItemData(int index, DWORD_PTR value);
    UINT GetItemState(int index, UINT mask) const;
    BOOL SetItemState(int index, UINT state, UINT mask);
    BOOL GetCheck(int index) const;
    BOOL SetCheck(int index, BOOL check = TRUE);
    int FindItem(LVFINDINFOA* find, int startAfter = -1) const;
    /// `flags` are LVNI_ values.
    int GetNextItem(int startAfter, int flags) const;
    BOOL SortItems(PFNLVCOMPARE compare, DWORD_PTR data);

    /// @name Selection
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& position) const;
    UINT GetSelectedCount() const;
    int GetSelectionMark() const;
    int SetSelectionMark(int index);

    /// @name Layout
    BOOL GetItemRect(int index, LPRECT rect, UINT part) const;
    BOOL GetSubItemRect(int index, int subItem, int part, RECT& rect) const;
    int HitTest(LVHITTESTINFO* info) const;
    int HitTest(CPoint point, UINT* flags = nullptr) const;
    int SubItemHitTest(LVHITTESTINFO* info) const;
    BOOL EnsureVisible(int index, BOOL partialIsEnough);
    int GetTopIndex() const;
    int GetCountPerPage() const;
    BOOL RedrawItems(int first, int last);
    BOOL Update(int index);

    /// Paints an item of style LVS_OWNERDRAWFIXED. To be overridden; does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
