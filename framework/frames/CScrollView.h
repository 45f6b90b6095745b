#pragma once

/// @file
/// Scroll view: a view of something larger than its window.
#include "framework/core/Geometry.h"
#include "framework/frames/CView.h"

class CBrush;

/// A view that shows a part of what it draws, as its scroll bars say, or all of it made to fit. Derived classes tell
/// the whole size by SetScrollSizes() or SetScaleToFitSize(), usually in OnInitialUpdate(), and draw in logical
/// coordinates as if all could be seen.
///
/// It scrolls by its bars, by the mouse wheel, and by the arrow keys, Page Up, Page Down, Home and End (with the Ctrl
/// key: sideways Home and End are the corners) when it has the focus itself.
class HOSTFRAMEWORK_API CScrollView : public CView
{
    DECLARE_DYNAMIC(CScrollView)

public:
    ~CScrollView() override;

    /// Stands for a page (a tenth of the whole) and a line (a tenth of a page) of the usual size.
    static const SIZE sizeDefault;

    /// @param mapMode of the drawing, any but MM_ISOTROPIC and MM_ANISOTROPIC
    /// @param total the whole size, all in logical units, never negative
    /// @param page, line what one click beside the thumb and on an arrow scrolls
    void SetScrollSizes(int mapMode, SIZE total, const SIZE& page = sizeDefault, const SIZE& line = sizeDefault);
    /// Shows all at once without bars; the drawing is stretched to the window.
    void SetScaleToFitSize(SIZE total);

    /// Of the upper left corner, in logical units.
    CPoint GetScrollPosition() const;
    CSize GetTotalSize() const;
    /// The same in pixels.
    CPoint GetDeviceScrollPosition() const;
    void GetDeviceScrollSizes(int& mapMode, SIZE& total, SIZE& page, SIZE& line) const;
    /// Scrolls so that a logical point stands in the upper left corner, as far as there is something to scroll.
    void ScrollToPosition(POINT point);
    /// Makes the parent frame as large as all needs. @param shrinkOnly never larger than it is
    void ResizeParentToFit(BOOL shrinkOnly = TRUE);
    /// Which bars are shown.
    void CheckScrollBars(BOOL& hasHorizontal, BOOL& hasVertical) const;
    /// Fills what lies beyond the drawing, for OnEraseBkgnd().
    void FillOutsideRect(CDC* dc, CBrush* brush);

    /// One action of a scroll bar. @param code SB_ code of the horizontal bar in the low byte, of the vertical in the
    /// high one; 0xFF for none
    /// @param doScroll FALSE: only asks. @return whether anything scrolls
    virtual BOOL OnScroll(UINT code, UINT position, BOOL doScroll = TRUE);
    /// @param pixels to go right and down; limited to what there is
    virtual BOOL OnScrollBy(CSize pixels, BOOL doScroll = TRUE);

    void OnPrepareDC(CDC* dc, CPrintInfo* info = nullptr) override;

protected:
    CScrollView();

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);

    DECLARE_MESSAGE_MAP()

private:
    static constexpr int kFit = -1;  ///< in place of a map mode: scaled to fit
    static constexpr int kUnset = 0; ///< no sizes yet

    CSize ToDevice(SIZE logical) const;
    CSize RoomWithoutBars() const;
    CSize Farthest();
    void UpdateBars();
    void ShowBars(const CSize& room);
    void TellBar(int bar, int total, int page, int position);
    int NewPosition(int bar, UINT code, UINT position, int present);
    void MoveTo(CPoint position);

    int m_mapMode = kUnset;
    CSize m_totalLog{0, 0};
    CSize m_totalDev{0, 0};
    CSize m_pageDev{0, 0};
    CSize m_lineDev{0, 0};
    CPoint m_position{0, 0}; ///< pixels that are scrolled away
    int m_wheelRest = 0;     ///< part of a notch that has not scrolled yet
    bool m_updatingBars = false;
};
