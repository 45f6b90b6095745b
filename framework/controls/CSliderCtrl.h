#pragma once

#include "framework/window/CWnd.h"

#include <commctrl.h>

/// A slider (trackbar). It tells its parent of movements through WM_HSCROLL and WM_VSCROLL.
class HOSTFRAMEWORK_API CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// Distance of an arrow key; returns the one before.
    int SetLineSize(int size);
    int GetLineSize() const;
    /// Distance of a page key or a click beside the thumb; returns the one before.
    int SetPageSize(int size);
    int GetPageSize() const;
    int GetRangeMax() const;
    int GetRangeMin() const;
    void GetRange(int& lowest, int& highest) const;
    void SetRangeMin(int lowest, BOOL redraw = FALSE);
    void SetRangeMax(int highest, BOOL redraw = FALSE);
    void SetRange(int lowest, int highest, BOOL redraw = FALSE);
    int GetPos() const;
    void SetPos(int position);
    void GetSelection(int& lowest, int& highest) const;
    void SetSelection(int lowest, int highest);
    void ClearSel(BOOL redraw = FALSE);
    UINT GetNumTics() const;
    BOOL SetTic(int position);
    void SetTicFreq(int frequency);
    void ClearTics(BOOL redraw = FALSE);
    void GetChannelRect(LPRECT rect) const;
    void GetThumbRect(LPRECT rect) const;
    /// The window beside the slider; `before` means its left or upper end. Returns the one there before.
    CWnd* SetBuddy(CWnd* buddy, BOOL before = TRUE);
    CWnd* GetBuddy(BOOL before = TRUE) const;
};
