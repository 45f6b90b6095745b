#pragma once

#include "framework/window/CWnd.h"

#include <commctrl.h>

/// A pair of arrows (up-down control) that changes a number, usually that of a buddy edit box.
class HOSTFRAMEWORK_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// Steps over time: `count` entries.
    BOOL SetAccel(int count, UDACCEL* accel);
    UINT GetAccel(int count, UDACCEL* accel) const;
    /// 10 or 16; returns the base before, 0 for another value.
    int SetBase(int base);
    UINT GetBase() const;
    CWnd* SetBuddy(CWnd* buddy);
    CWnd* GetBuddy() const;
    /// 16-bit position; returns the one before.
    int SetPos(int position);
    /// The 16-bit position in the low word; the high word is not 0 when the buddy's text is no number.
    int GetPos() const;
    int SetPos32(int position);
    /// `invalid`, if given, is set when the buddy's text is no number.
    int GetPos32(LPBOOL invalid = nullptr) const;
    void SetRange(short lower, short upper);
    void GetRange(int& lower, int& upper) const;
    void SetRange32(int lower, int upper);
    void GetRange32(int& lower, int& upper) const;
};
