// Each handler gets the pieces of its message that its signature names.
#include "framework/gdi/CDC.h"
#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

std::string Name(CWnd* window)
{
    CString text;
    if (window)
    {
        window->GetWindowText(text);
    }
    return window ? text.GetString() : "null";
}

class Catcher : public CWnd
{
public:
    std::string seen;

    template <class... Values>
    void See(const char* name, Values... values)
    {
        seen = With(name, values...);
    }

protected:
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        See("size", type, cx, cy);
    }
    afx_msg void OnMove(int x, int y)
    {
        See("move", x, y);
    }
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized)
    {
        See("activate", state, Name(other), minimized);
    }
    afx_msg void OnActivateApp(BOOL active, DWORD thread)
    {
        See("activateapp", active, thread);
    }
    afx_msg void OnTimer(UINT_PTR id)
    {
        See("timer", id);
    }
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags)
    {
        See("keydown", key, repeat, flags);
    }
    afx_msg void OnChar(UINT key, UINT repeat, UINT flags)
    {
        See("char", key, repeat, flags);
    }
    afx_msg void OnMouseMove(UINT flags, CPoint point)
    {
        See("mousemove", flags, point.x, point.y);
    }
    afx_msg void OnLButtonDown(UINT flags, CPoint point)
    {
        See("lbuttondown", flags, point.x, point.y);
    }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point)
    {
        See("wheel", flags, delta, point.x, point.y);
        return TRUE;
    }
    afx_msg void OnXButtonDown(UINT flags, UINT button, CPoint point)
    {
        See("xbutton", flags, button, point.x, point.y);
    }
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point)
    {
        See("nclbutton", hit, point.x, point.y);
    }
    afx_msg LRESULT OnNcHitTest(CPoint point)
    {
        See("nchittest", point.x, point.y);
        return HTCAPTION;
    }
    afx_msg void OnSetFocus(CWnd* old)
    {
        See("setfocus", Name(old));
    }
    afx_msg void OnKillFocus(CWnd* next)
    {
        See("killfocus", Name(next));
    }
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message)
    {
        See("setcursor", Name(window), hit, message);
        return TRUE;
    }
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hit, UINT message)
    {
        See("mouseactivate", Name(desktop), hit, message);
        return MA_NOACTIVATE;
    }
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        See("erase", dc && dc->m_hDC ? "dc" : "null");
        return TRUE;
    }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system)
    {
        See("initmenupopup", menu->GetMenuItemCount(), index, system);
    }
    afx_msg void OnMenuSelect(UINT item, UINT flags, HMENU menu)
    {
        See("menuselect", item, flags, menu != nullptr);
    }
    afx_msg LRESULT OnMenuChar(UINT key, UINT flags, CMenu* menu)
    {
        See("menuchar", key, flags, menu->GetMenuItemCount());
        return MAKELRESULT(2, MNC_EXECUTE);
    }
    afx_msg void OnSysCommand(UINT id, LPARAM lParam)
    {
        See("syscommand", id, lParam);
    }
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar)
    {
        See("hscroll", code, position, Name(reinterpret_cast<CWnd*>(bar)));
    }
    afx_msg void OnContextMenu(CWnd* window, CPoint point)
    {
        See("contextmenu", Name(window), point.x, point.y);
    }
    afx_msg void OnShowWindow(BOOL show, UINT status)
    {
        See("showwindow", show, status);
    }
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section)
    {
        See("settingchange", flags, section);
    }
    afx_msg void OnHotKey(UINT id, UINT modifiers, UINT key)
    {
        See("hotkey", id, modifiers, key);
    }
    afx_msg void OnAppCommand(CWnd* window, UINT command, UINT device, UINT keys)
    {
        See("appcommand", Name(window), command, device, keys);
    }
    afx_msg BOOL OnQueryEndSession()
    {
        See("queryendsession");
        return FALSE;
    }
    afx_msg UINT OnGetDlgCode()
    {
        See("getdlgcode");
        return DLGC_WANTARROWS;
    }
    afx_msg HCURSOR OnQueryDragIcon()
    {
        See("querydragicon");
        return reinterpret_cast<HCURSOR>(0x4321);
    }
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd* window, UINT kind)
    {
        See("ctlcolor", Name(window), kind);
        return reinterpret_cast<HBRUSH>(0x1234);
    }
    afx_msg BOOL OnCopyData(CWnd* window, COPYDATASTRUCT* data)
    {
        See("copydata", Name(window), data->dwData);
        return TRUE;
    }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info)
    {
        info->ptMinTrackSize = {77, 66};
        See("getminmaxinfo");
    }
    afx_msg void OnWindowPosChanging(WINDOWPOS* position)
    {
        See("poschanging", position->x);
    }
    afx_msg void OnParentNotify(UINT message, LPARAM lParam)
    {
        See("parentnotify", message, lParam);
    }
    afx_msg int OnCharToItem(UINT key, CListBox* box, UINT index)
    {
        See("chartoitem", key, Name(reinterpret_cast<CWnd*>(box)), index);
        return -2;
    }
    afx_msg void OnMDIActivate(BOOL activate, CWnd* activated, CWnd* deactivated)
    {
        See("mdiactivate", activate, Name(activated), Name(deactivated));
    }
    afx_msg void OnChangeUIState(UINT action, UINT element)
    {
        See("changeuistate", action, element);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Catcher, CWnd)
ON_WM_SIZE()
ON_WM_MOVE()
ON_WM_ACTIVATE()
ON_WM_ACTIVATEAPP()
ON_WM_TIMER()
ON_WM_KEYDOWN()
ON_WM_CHAR()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEWHEEL()
ON_WM_XBUTTONDOWN()
ON_WM_NCLBUTTONDOWN()
ON_WM_NCHITTEST()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_SETCURSOR()
ON_WM_MOUSEACTIVATE()
ON_WM_ERASEBKGND()
ON_WM_INITMENUPOPUP()
ON_WM_MENUSELECT()
ON_WM_MENUCHAR()
ON_WM_SYSCOMMAND()
ON_WM_HSCROLL()
ON_WM_CONTEXTMENU()
ON_WM_SHOWWINDOW()
ON_WM_SETTINGCHANGE()
ON_WM_HOTKEY()
ON_WM_APPCOMMAND()
ON_WM_QUERYENDSESSION()
ON_WM_GETDLGCODE()
ON_WM_QUERYDRAGICON()
ON_WM_CTLCOLOR()
ON_WM_COPYDATA()
ON_WM_GETMINMAXINFO()
ON_WM_WINDOWPOSCHANGING()
ON_WM_PARENTNOTIFY()
ON_WM_CHARTOITEM()
ON_WM_MDIACTIVATE()
ON_WM_CHANGEUISTATE()
END_MESSAGE_MAP()

class HandlerSignatures : public testing::Test
{
protected:
    HandlerSignatures()
    {
        CreatePopup(window);
        window.SetWindowText("mine");
        CreatePopup(other);
        other.SetWindowText("other");
        mine = reinterpret_cast<WPARAM>(window.m_hWnd);
        theirs = reinterpret_cast<WPARAM>(other.m_hWnd);
    }
    /// What the handler saw, without the window's own reactions.
    std::string Send(UINT message, WPARAM wParam, LPARAM lParam)
    {
        window.seen = "nothing";
        result = AfxCallWndProc(&window, window.m_hWnd, message, wParam, lParam);
        return window.seen;
    }
    Catcher window;
    CWnd other;
    WPARAM mine = 0;
    WPARAM theirs = 0;
    LRESULT result = 0;
};

LPARAM Words(int low, int high)
{
    return MAKELPARAM(low, high);
}

} // namespace

TEST_F(HandlerSignatures, OfSizesAndPositions)
{
    EXPECT_EQ(Send(WM_SIZE, SIZE_MAXIMIZED, Words(640, 480)), "size 2 640 480");
    EXPECT_EQ(Send(WM_SIZE, SIZE_RESTORED, Words(40000, 65535)), "size 0 40000 65535") << "sizes have no sign";
    EXPECT_EQ(Send(WM_MOVE, 0, Words(-5, -32768)), "move -5 -32768");
    EXPECT_EQ(Send(WM_SHOWWINDOW, TRUE, SW_PARENTOPENING), "showwindow 1 3");
    MINMAXINFO info = {};
    EXPECT_EQ(Send(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info)), "getminmaxinfo");
    EXPECT_EQ(info.ptMinTrackSize.x, 77);
    WINDOWPOS position = {};
    position.x = 33;
    EXPECT_EQ(Send(WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position)), "poschanging 33");
}

TEST_F(HandlerSignatures, OfActivationAndFocus)
{
    EXPECT_EQ(Send(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), static_cast<LPARAM>(theirs)), "activate 2 other 1");
    EXPECT_EQ(Send(WM_ACTIVATE, WA_INACTIVE, 0), "activate 0 null 0");
    EXPECT_EQ(Send(WM_ACTIVATEAPP, TRUE, 77), "activateapp 1 77");
    EXPECT_EQ(Send(WM_SETFOCUS, theirs, 0), "setfocus other");
    EXPECT_EQ(Send(WM_KILLFOCUS, 0, 0), "killfocus null");
    EXPECT_EQ(Send(WM_MOUSEACTIVATE, theirs, Words(HTCLIENT, WM_LBUTTONDOWN)), "mouseactivate other 1 513");
    EXPECT_EQ(result, MA_NOACTIVATE);
    EXPECT_EQ(Send(WM_MDIACTIVATE, theirs, static_cast<LPARAM>(mine)), "mdiactivate 1 mine other");
    EXPECT_EQ(Send(WM_MDIACTIVATE, mine, static_cast<LPARAM>(theirs)), "mdiactivate 0 other mine");
}

TEST_F(HandlerSignatures, OfKeysAndMouse)
{
    EXPECT_EQ(Send(WM_KEYDOWN, VK_F5, Words(3, 0x4021)), "keydown 116 3 16417");
    EXPECT_EQ(Send(WM_CHAR, 'x', Words(1, 0xC02D)), "char 120 1 49197");
    EXPECT_EQ(Send(WM_MOUSEMOVE, MK_LBUTTON | MK_SHIFT, Words(-1, 200)), "mousemove 5 -1 200");
    EXPECT_EQ(Send(WM_LBUTTONDOWN, MK_CONTROL, Words(32767, -32768)), "lbuttondown 8 32767 -32768");
    EXPECT_EQ(Send(WM_XBUTTONDOWN, MAKEWPARAM(MK_XBUTTON2, XBUTTON2), Words(4, 5)), "xbutton 64 2 4 5");
    EXPECT_EQ(Send(WM_NCLBUTTONDOWN, HTCLOSE, Words(-10, 20)), "nclbutton 20 -10 20");
    EXPECT_EQ(Send(WM_NCHITTEST, 0, Words(-10, -20)), "nchittest -10 -20");
    EXPECT_EQ(result, HTCAPTION);
    EXPECT_EQ(Send(WM_SETCURSOR, theirs, Words(-2, WM_MOUSEMOVE)), "setcursor other 65534 512");
    EXPECT_EQ(Send(WM_HOTKEY, 9, Words(MOD_ALT, VK_TAB)), "hotkey 9 1 9");
    EXPECT_EQ(Send(WM_CONTEXTMENU, theirs, Words(-1, -1)), "contextmenu other -1 -1");
    EXPECT_EQ(Send(WM_APPCOMMAND, theirs, Words(MK_SHIFT, APPCOMMAND_BROWSER_BACKWARD | FAPPCOMMAND_MOUSE)),
              "appcommand other 1 32768 4");
}

TEST_F(HandlerSignatures, OfTheWheelLetFalseGoOn)
{
    EXPECT_EQ(Send(WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, static_cast<WORD>(-120)), Words(-7, 8)), "wheel 4 -120 -7 8");
    EXPECT_EQ(result, TRUE);
}

TEST_F(HandlerSignatures, OfMenus)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 1, "one");
    menu.AppendMenu(MF_STRING, 2, "two");
    const auto handle = reinterpret_cast<WPARAM>(menu.m_hMenu);
    EXPECT_EQ(Send(WM_INITMENUPOPUP, handle, Words(4, TRUE)), "initmenupopup 2 4 1");
    EXPECT_EQ(Send(WM_MENUSELECT, MAKEWPARAM(7, MF_POPUP), static_cast<LPARAM>(handle)), "menuselect 7 16 1");
    EXPECT_EQ(Send(WM_MENUCHAR, MAKEWPARAM('q', MF_SYSMENU), static_cast<LPARAM>(handle)), "menuchar 113 8192 2");
    EXPECT_EQ(result, MAKELRESULT(2, MNC_EXECUTE));
    EXPECT_EQ(Send(WM_SYSCOMMAND, SC_MONITORPOWER, -6), "syscommand 61808 -6");
}

TEST_F(HandlerSignatures, OfControls)
{
    EXPECT_EQ(Send(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 65535), static_cast<LPARAM>(theirs)), "hscroll 5 65535 other");
    EXPECT_EQ(Send(WM_HSCROLL, SB_LINELEFT, 0), "hscroll 0 0 null");
    EXPECT_EQ(Send(WM_CHARTOITEM, MAKEWPARAM('a', 3), static_cast<LPARAM>(theirs)), "chartoitem 97 other 3");
    EXPECT_EQ(result, -2);
    EXPECT_EQ(Send(WM_PARENTNOTIFY, MAKEWPARAM(WM_LBUTTONDOWN, 9), 44), "parentnotify 513 44");
    for (UINT kind = CTLCOLOR_MSGBOX; kind <= CTLCOLOR_STATIC; ++kind)
    {
        EXPECT_EQ(Send(WM_CTLCOLORMSGBOX + kind, 0, static_cast<LPARAM>(theirs)), With("ctlcolor other", kind));
        EXPECT_EQ(result, 0x1234);
    }
}

TEST_F(HandlerSignatures, OfTheRest)
{
    EXPECT_EQ(Send(WM_TIMER, 0x12345, 0), "timer 74565");
    EXPECT_EQ(Send(WM_SETTINGCHANGE, 20, reinterpret_cast<LPARAM>("intl")), "settingchange 20 intl");
    EXPECT_EQ(Send(WM_QUERYENDSESSION, 0, 0), "queryendsession");
    EXPECT_EQ(result, FALSE);
    EXPECT_EQ(Send(WM_GETDLGCODE, 0, 0), "getdlgcode");
    EXPECT_EQ(result, DLGC_WANTARROWS);
    EXPECT_EQ(Send(WM_QUERYDRAGICON, 0, 0), "querydragicon");
    EXPECT_EQ(result, 0x4321);
    COPYDATASTRUCT data = {55, 0, nullptr};
    EXPECT_EQ(Send(WM_COPYDATA, theirs, reinterpret_cast<LPARAM>(&data)), "copydata other 55");
    EXPECT_EQ(Send(WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0), "changeuistate 2 1");
}

TEST_F(HandlerSignatures, OfErasingGetADeviceContext)
{
    const HDC dc = ::GetDC(window.m_hWnd);
    EXPECT_EQ(Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0), "erase dc");
    EXPECT_EQ(result, TRUE);
    ::ReleaseDC(window.m_hWnd, dc);
}
