#pragma once

#include "framework/core/CString.h"
#include "framework/core/Geometry.h"
#include "framework/window/CWnd.h"

/// A list box. Items are numbered from 0. Functions that answer an index or a count answer LB_ERR (-1) for an index
/// that does not exist, and LB_ERRSPACE (-2) where memory is short.
class HOSTFRAMEWORK_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetCount() const;
    int GetHorizontalExtent() const;
    void SetHorizontalExtent(int width);
    int GetTopIndex() const;
    int SetTopIndex(int index);
    LCID GetLocale() const;
    LCID SetLocale(LCID locale);
    int InitStorage(int items, UINT bytes);
    /// The item nearest to a client point; `outside` says whether the point lies outside the client area.
    UINT ItemFromPoint(CPoint point, BOOL& outside) const;
    DWORD GetListBoxInfo() const;

    /// @name Single selection
    int GetCurSel() const;
    /// Selects an item and scrolls it into view; -1 removes the selection and answers LB_ERR.
    int SetCurSel(int index);

    /// @name Multiple selection
    int GetSel(int index) const;
    int SetSel(int index, BOOL select = TRUE);
    int GetSelCount() const;
    int GetSelItems(int maxItems, LPINT indices) const;
    int SelItemRange(BOOL select, int first, int last);
    void SetAnchorIndex(int index);
    int GetAnchorIndex() const;
    int GetCaretIndex() const;
    int SetCaretIndex(int index, BOOL scroll = TRUE);

    /// @name Items' texts and values
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR value);
    void* GetItemDataPtr(int index) const;
    int SetItemDataPtr(int index, void* value);
    /// Copies an item's text; `buffer` must hold GetTextLen() characters and the terminator.
    int GetText(int index, LPTSTR buffer) const;
    /// An item's text; empty for an index that does not exist.
    void GetText(int index, CString& text) const;
    int GetTextLen(int index) const;

    /// @name Layout
    int GetItemRect(int index, LPRECT rect) const;
    int SetItemHeight(int index, UINT height);
    int GetItemHeight(int index) const;
    void SetColumnWidth(int width);
    void SetTabStops();
    BOOL SetTabStops(const int& distance);
    BOOL SetTabStops(int count, LPINT stops);

    /// @name Filling
    int AddString(LPCTSTR text);
    int DeleteString(UINT index);
    int InsertString(int index, LPCTSTR text);
    void ResetContent();
    /// Adds the names of files that match `wildcard`; `attributes` are DDL_ flags.
    int Dir(UINT attributes, LPCTSTR wildcard);

    /// @name Searching: begins after `startAfter` (-1: from the top), goes round, and ignores case
    int FindString(int startAfter, LPCTSTR prefix) const;
    int FindStringExact(int startAfter, LPCTSTR text) const;
    int SelectString(int startAfter, LPCTSTR prefix);

    /// @name To be overridden in owner-drawn lists
    virtual void DrawItem(LPDRAWITEMSTRUCT item);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item);
    /// -1, 0 or 1 as item 1 sorts before, with or after item 2. 0 here.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT items);
    virtual void DeleteItem(LPDELETEITEMSTRUCT item);
    /// Answers a key: -1 the usual action, -2 nothing more, otherwise the item that takes the usual action. -1 here.
    virtual int VKeyToItem(UINT key, UINT index);
    virtual int CharToItem(UINT key, UINT index);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
