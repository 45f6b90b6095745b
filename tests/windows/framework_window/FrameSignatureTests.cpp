// Each handler of frames, buttons of the mouse and states gets the pieces of its message that its signature names.
#include "framework/gdi/CDC.h"
#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

class StateCatcher : public CWnd
{
public:
    std::string seen;

    template <class... Values>
    void See(const char* name, Values... values)
    {
        seen = With(name, values...);
    }
    void SeeAt(const char* name, UINT flags, CPoint point)
    {
        See(name, flags, point.x, point.y);
    }

protected:
    afx_msg void OnSizing(UINT side, LPRECT rect)
    {
        See("sizing", side, rect->right);
        rect->right = 500;
    }
    afx_msg void OnNcPaint()
    {
        See("ncpaint");
    }
    afx_msg void OnNcCalcSize(BOOL calculates, NCCALCSIZE_PARAMS* params)
    {
        See("nccalcsize", calculates, params->rgrc[0].left);
        params->rgrc[0].left += 3;
    }
    afx_msg BOOL OnNcActivate(BOOL active)
    {
        See("ncactivate", active);
        return FALSE;
    }
    afx_msg void OnNcMouseMove(UINT hit, CPoint point)
    {
        SeeAt("ncmousemove", hit, point);
    }
    afx_msg void OnNcLButtonUp(UINT hit, CPoint point)
    {
        SeeAt("nclbuttonup", hit, point);
    }
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint point)
    {
        SeeAt("nclbuttondblclk", hit, point);
    }
    afx_msg void OnLButtonUp(UINT flags, CPoint point)
    {
        SeeAt("lbuttonup", flags, point);
    }
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point)
    {
        SeeAt("lbuttondblclk", flags, point);
    }
    afx_msg void OnRButtonDown(UINT flags, CPoint point)
    {
        SeeAt("rbuttondown", flags, point);
    }
    afx_msg void OnRButtonUp(UINT flags, CPoint point)
    {
        SeeAt("rbuttonup", flags, point);
    }
    afx_msg void OnRButtonDblClk(UINT flags, CPoint point)
    {
        SeeAt("rbuttondblclk", flags, point);
    }
    afx_msg void OnMButtonDown(UINT flags, CPoint point)
    {
        SeeAt("mbuttondown", flags, point);
    }
    afx_msg void OnMButtonUp(UINT flags, CPoint point)
    {
        SeeAt("mbuttonup", flags, point);
    }
    afx_msg void OnMButtonDblClk(UINT flags, CPoint point)
    {
        SeeAt("mbuttondblclk", flags, point);
    }
    afx_msg void OnCaptureChanged(CWnd* other)
    {
        CString text;
        if (other != nullptr)
        {
            other->GetWindowText(text);
        }
        See("capturechanged", text.GetString());
    }
    afx_msg void OnCancelMode()
    {
        See("cancelmode");
    }
    afx_msg void OnWindowPosChanged(WINDOWPOS* position)
    {
        See("poschanged", position->cy);
    }
    afx_msg void OnEnable(BOOL enabled)
    {
        See("enable", enabled);
    }
    afx_msg void OnSysColorChange()
    {
        See("syscolorchange");
    }
    afx_msg BOOL OnHelpInfo(HELPINFO* info)
    {
        See("helpinfo", info->iCtrlId);
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(StateCatcher, CWnd)
ON_WM_SIZING()
ON_WM_NCPAINT()
ON_WM_NCCALCSIZE()
ON_WM_NCACTIVATE()
ON_WM_NCMOUSEMOVE()
ON_WM_NCLBUTTONUP()
ON_WM_NCLBUTTONDBLCLK()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_RBUTTONDOWN()
ON_WM_RBUTTONUP()
ON_WM_RBUTTONDBLCLK()
ON_WM_MBUTTONDOWN()
ON_WM_MBUTTONUP()
ON_WM_MBUTTONDBLCLK()
ON_WM_CAPTURECHANGED()
ON_WM_CANCELMODE()
ON_WM_WINDOWPOSCHANGED()
ON_WM_ENABLE()
ON_WM_SYSCOLORCHANGE()
ON_WM_HELPINFO()
END_MESSAGE_MAP()

class FrameSignatures : public testing::Test
{
protected:
    FrameSignatures()
    {
        CreatePopup(window);
    }
    std::string Send(UINT message, WPARAM wParam, LPARAM lParam)
    {
        window.seen = "nothing";
        result = AfxCallWndProc(&window, window.m_hWnd, message, wParam, lParam);
        return window.seen;
    }
    template <class Record>
    std::string Send(UINT message, WPARAM wParam, Record* record)
    {
        return Send(message, wParam, reinterpret_cast<LPARAM>(record));
    }

    StateCatcher window;
    LRESULT result = 0;
};

} // namespace

TEST_F(FrameSignatures, OfSizing)
{
    RECT rect = {10, 20, 310, 220};
    EXPECT_EQ(Send(WM_SIZING, WMSZ_RIGHT, &rect), "sizing 2 310");
    EXPECT_EQ(rect.right, 500) << "what the handler wants";
    WINDOWPOS position = {};
    position.cy = 44;
    EXPECT_EQ(Send(WM_WINDOWPOSCHANGED, 0, &position), "poschanged 44");
    NCCALCSIZE_PARAMS params = {};
    params.rgrc[0].left = 7;
    EXPECT_EQ(Send(WM_NCCALCSIZE, TRUE, &params), "nccalcsize 1 7");
    EXPECT_EQ(params.rgrc[0].left, 10);
    EXPECT_EQ(result, 0);
}

TEST_F(FrameSignatures, OfFrames)
{
    EXPECT_EQ(Send(WM_NCPAINT, 1, LPARAM{0}), "ncpaint");
    EXPECT_EQ(Send(WM_NCACTIVATE, TRUE, LPARAM{0}), "ncactivate 1");
    EXPECT_EQ(result, FALSE) << "the handler's answer";
    EXPECT_EQ(Send(WM_NCMOUSEMOVE, HTTOP, MAKELPARAM(-4, 900)), "ncmousemove 12 -4 900");
    EXPECT_EQ(Send(WM_NCLBUTTONUP, HTCAPTION, MAKELPARAM(4, -900)), "nclbuttonup 2 4 -900");
    EXPECT_EQ(Send(WM_NCLBUTTONDBLCLK, HTRIGHT, MAKELPARAM(-32768, 32767)), "nclbuttondblclk 11 -32768 32767");
}

TEST_F(FrameSignatures, OfTheButtonsOfTheMouse)
{
    const LPARAM place = MAKELPARAM(-3, 70);
    EXPECT_EQ(Send(WM_LBUTTONUP, MK_SHIFT, place), "lbuttonup 4 -3 70");
    EXPECT_EQ(Send(WM_LBUTTONDBLCLK, MK_LBUTTON, place), "lbuttondblclk 1 -3 70");
    EXPECT_EQ(Send(WM_RBUTTONDOWN, MK_RBUTTON, place), "rbuttondown 2 -3 70");
    EXPECT_EQ(Send(WM_RBUTTONUP, 0, place), "rbuttonup 0 -3 70");
    EXPECT_EQ(Send(WM_RBUTTONDBLCLK, MK_RBUTTON | MK_CONTROL, place), "rbuttondblclk 10 -3 70");
    EXPECT_EQ(Send(WM_MBUTTONDOWN, MK_MBUTTON, place), "mbuttondown 16 -3 70");
    EXPECT_EQ(Send(WM_MBUTTONUP, 0, place), "mbuttonup 0 -3 70");
    EXPECT_EQ(Send(WM_MBUTTONDBLCLK, MK_MBUTTON, place), "mbuttondblclk 16 -3 70");
}

TEST_F(FrameSignatures, OfStates)
{
    CWnd other;
    CreatePopup(other);
    other.SetWindowText("other");
    EXPECT_EQ(Send(WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(other.m_hWnd)), "capturechanged other");
    EXPECT_EQ(Send(WM_CAPTURECHANGED, 0, LPARAM{0}), "capturechanged ");
    EXPECT_EQ(Send(WM_CANCELMODE, 0, LPARAM{0}), "cancelmode");
    EXPECT_EQ(Send(WM_ENABLE, FALSE, LPARAM{0}), "enable 0");
    EXPECT_EQ(Send(WM_SYSCOLORCHANGE, 0, LPARAM{0}), "syscolorchange");
    HELPINFO help = {};
    help.iCtrlId = 815;
    EXPECT_EQ(Send(WM_HELP, 0, &help), "helpinfo 815");
    EXPECT_EQ(result, TRUE);
}
