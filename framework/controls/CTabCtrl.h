#pragma once

#include "framework/window/CWnd.h"

#include <commctrl.h>

/// A row of tabs above an area that it leaves to others: what belongs to a tab is shown and hidden by the window that
/// gets TCN_SELCHANGE. Indices count from 0; functions that find nothing answer -1 or FALSE.
class HOSTFRAMEWORK_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetItemCount() const;
    /// @param item its mask says which fields are asked for; a text needs a buffer
    BOOL GetItem(int index, TCITEM* item) const;
    BOOL SetItem(int index, TCITEM* item);
    /// @return where the tab stands, -1 on failure
    LONG InsertItem(int index, TCITEM* item);
    LONG InsertItem(int index, LPCTSTR text);
    BOOL DeleteItem(int index);
    BOOL DeleteAllItems();

    int GetCurSel() const;
    /// Selects without notification. @return the tab selected before, -1 for none
    int SetCurSel(int index);
    int GetCurFocus() const;
    void SetCurFocus(int index);

    /// In client coordinates.
    BOOL GetItemRect(int index, LPRECT rect) const;
    int GetRowCount() const;
    int HitTest(TCHITTESTINFO* hitTest) const;
    /// @param larger TRUE: from a display area to the control around it; FALSE: from the control to its display area
    void AdjustRect(BOOL larger, LPRECT rect);
    /// @return the size before
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size);
};
