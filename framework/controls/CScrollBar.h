#pragma once

#include "framework/window/CWnd.h"

/// A scroll bar control. Its functions act on the control itself, those of the same name in the base class on a
/// window's own bars.
class HOSTFRAMEWORK_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int GetScrollPos() const;
    /// Returns the position before; 0 on failure.
    int SetScrollPos(int position, BOOL redraw = TRUE);
    void GetScrollRange(LPINT lowest, LPINT highest) const;
    void SetScrollRange(int lowest, int highest, BOOL redraw = TRUE);
    void ShowScrollBar(BOOL show = TRUE);
    /// `arrows` is an ESB_ value.
    BOOL EnableScrollBar(UINT arrows = ESB_ENABLE_BOTH);
    /// Sets what `info->fMask` names; `info->cbSize` is filled in.
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL);
    /// The greatest position that the page size leaves.
    int GetScrollLimit();
};
