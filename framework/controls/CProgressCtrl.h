#pragma once

#include "framework/window/CWnd.h"

#include <commctrl.h>

/// A progress bar. Positions are whole numbers within the range, 0 to 100 at first.
class HOSTFRAMEWORK_API CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// Range of 16-bit ends.
    void SetRange(short lower, short upper);
    void SetRange32(int lower, int upper);
    void GetRange(int& lower, int& upper) const;
    int GetPos() const;
    /// Returns the position before.
    int SetPos(int position);
    /// Advances by `delta`; returns the position before.
    int OffsetPos(int delta);
    /// The distance that StepIt advances, 10 at first; returns the one before.
    int SetStep(int step);
    /// Advances by the step and begins again at the lower end past the upper one; returns the position before.
    int StepIt();
    COLORREF SetBarColor(COLORREF colour);
    COLORREF SetBkColor(COLORREF colour);
    /// Starts or stops the running light of style PBS_MARQUEE, moving every `interval` milliseconds.
    BOOL SetMarquee(BOOL run, int interval);
};
