#pragma once

#include "framework/window/CWnd.h"

#include <commctrl.h>

/// The row of column heads above a list. Items are numbered from 0 in the order of insertion.
class HOSTFRAMEWORK_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetItemCount() const;
    /// Fills in what `item->mask` names.
    BOOL GetItem(int index, HDITEMA* item) const;
    BOOL SetItem(int index, HDITEMA* item);
    /// Returns the new item's number, -1 on failure.
    int InsertItem(int index, HDITEMA* item);
    BOOL DeleteItem(int index);
    BOOL GetItemRect(int index, LPRECT rect) const;
    BOOL Layout(HDLAYOUT* layout);
    /// Item numbers from left to right; `count` must be GetItemCount() (-1 means that).
    BOOL GetOrderArray(LPINT order, int count = -1) const;
    BOOL SetOrderArray(int count, LPINT order);
    int OrderToIndex(int position) const;

    /// Paints an item of format HDF_OWNERDRAW. To be overridden; does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
