#pragma once

#include "framework/core/CString.h"
#include "framework/window/CWnd.h"

/// A combo box: a list with a static or editable field. Items are numbered from 0. Functions that answer an index or a
/// count answer CB_ERR (-1) for an index that does not exist, and CB_ERRSPACE (-2) where memory is short.
class HOSTFRAMEWORK_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// @name The list
    int GetCount() const;
    int GetCurSel() const;
    /// Selects an item; -1 empties the field and answers CB_ERR.
    int SetCurSel(int index);
    LCID GetLocale() const;
    LCID SetLocale(LCID locale);
    int GetTopIndex() const;
    int SetTopIndex(int index);
    int InitStorage(int items, UINT bytes);
    void SetHorizontalExtent(UINT width);
    UINT GetHorizontalExtent() const;
    int SetDroppedWidth(UINT width);
    int GetDroppedWidth() const;

    /// @name The field
    DWORD GetEditSel() const;
    BOOL LimitText(int limit);
    BOOL SetEditSel(int start, int end);
    void Clear();
    void Copy();
    void Cut();
    void Paste();

    /// @name Items' values and texts
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR value);
    void* GetItemDataPtr(int index) const;
    int SetItemDataPtr(int index, void* value);
    /// Copies an item's text; `buffer` must hold GetLBTextLen() characters and the terminator.
    int GetLBText(int index, LPTSTR buffer) const;
    /// An item's text; empty for an index that does not exist.
    void GetLBText(int index, CString& text) const;
    int GetLBTextLen(int index) const;

    /// @name Layout
    /// Index -1 is the field itself.
    int SetItemHeight(int index, UINT height);
    int GetItemHeight(int index) const;
    int SetExtendedUI(BOOL extended = TRUE);
    BOOL GetExtendedUI() const;
    void GetDroppedControlRect(LPRECT rect) const;
    BOOL GetDroppedState() const;
    void ShowDropDown(BOOL show = TRUE);
    BOOL GetComboBoxInfo(PCOMBOBOXINFO info) const;

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

    /// @name To be overridden in owner-drawn combo boxes
    virtual void DrawItem(LPDRAWITEMSTRUCT item);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item);
    /// -1, 0 or 1 as item 1 sorts before, with or after item 2. 0 here.
    virtual int CompareItem(LPCOMPAREITEMSTRUCT items);
    virtual void DeleteItem(LPDELETEITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
