#pragma once

#include "apps/chart/Chart.h"

#include <VornCommon.h>

#include <functional>
#include <optional>

/// A chart that the user moves: dragged or by the arrow keys, zoomed by the wheel, plus and minus or a double click. It
/// is drawn fast while it moves and smoothly as soon as it rests.
class ChartWnd : public CWnd
{
public:
    /// @param chart lives longer than the window
    explicit ChartWnd(vorn::chart::Chart& chart);

    BOOL Create(CWnd& parent, UINT id);

    /// Called when the user has moved the chart or the pointer over it.
    void OnMoved(std::function<void()> moved);

    /// Paints the chart anew: something else than its place has changed.
    void Repaint();

    /// The position below the pointer; nothing when the pointer is elsewhere.
    std::optional<LatLon> Pointed() const;

    /// About the middle.
    void Zoom(double factor);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCaptureChanged(CWnd* to);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    void Moved();
    void Pan(int dx, int dy);
    int Px(int at96) const;

    vorn::chart::Chart& m_chart;
    std::function<void()> m_moved;
    std::optional<LatLon> m_grabbed; // the place that the hand holds
    std::optional<CPoint> m_pointer;
    bool m_resting = true;
    double m_dotsPerInch = 96;
};
