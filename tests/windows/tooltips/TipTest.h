#pragma once

#include "framework/include/afxwin.h"
#include "tests/support/ImportRedirect.h"
#include "tests/windows/tooltips/resource.h"
#include "toolkit/tooltips/ToolTipCtrlEx.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace vorn::test
{

/// A tooltip control that lets its own operations be called, counts what it paints, and can be disturbed.
class WatchedTips : public ToolTipCtrlEx
{
public:
    using ToolTipCtrlEx::CalculateInfoBoxRect;

    CRect GetBoundsRect(CString text, int extra) override;
    CRect CalculateInfoBoxRect(CPoint& point, ToolTipInfoEx* info, CRect& bounds) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::function<void()> m_whenMeasured;
    std::function<void()> m_whenPlaced;
    int m_paints = 0;
};

/// A shown window with two buttons (1 and 2, side by side) and a list (3), tips for them, and a mouse.
class TipTest : public testing::Test
{
protected:
    TipTest();
    ~TipTest() override;

    HWND Add(const char* className, UINT id, DWORD style, const RECT& rect);
    CWnd* Control(UINT id);
    /// On the screen.
    CRect PlaceOf(UINT id);
    CPoint MiddleOf(UINT id);
    /// The library finds the cursor there until the next call: the system may say of a place of before that it is
    /// still, or again, the cursor's.
    void PutCursor(CPoint point);
    /// Moves the cursor and relays the message that tells of it.
    void MouseTo(CPoint point, UINT message = WM_MOUSEMOVE, WPARAM keys = 0);
    void MouseOut();
    void Relay(UINT message, HWND window = nullptr);
    void Tick(UINT_PTR timer);
    /// The cursor comes to a control and stays.
    void Hover(UINT id);
    bool IsShown() const;
    CRect TipPlace() const;
    std::string TipText() const;
    void MoveHost(int x, int y);

    CWnd m_host;
    WatchedTips m_tips;

private:
    ImportRedirect m_cursor;
};

constexpr UINT_PTR kWaitTimer = 1;
constexpr UINT_PTR kLookTimer = 2;

} // namespace vorn::test
