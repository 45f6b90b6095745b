#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

enum : UINT
{
    kPlain = 100,
    kOnward,
    kDisabled,
    kUpdatedOnly,
    kRangeFirst = 110,
    kRangeLast = 113,
    kExRangeFirst = 120,
    kExRangeLast = 121,
    kButton = 130,
    kEdit,
    kList = 140,
    kListEx,
    kListRangeFirst = 150,
    kListRangeLast = 152
};

class Commander : public CWnd
{
public:
    Events events;
    BOOL answer = TRUE;

protected:
    afx_msg void OnPlain()
    {
        events.push_back("plain");
    }
    afx_msg BOOL OnOnward(UINT id)
    {
        events.push_back(With("onward", id));
        return answer;
    }
    afx_msg void OnDisabled()
    {
        events.push_back("disabled");
    }
    afx_msg void OnUpdateDisabled(CCmdUI* cmdUI)
    {
        cmdUI->Enable(FALSE);
    }
    afx_msg void OnRange(UINT id)
    {
        events.push_back(With("range", id));
    }
    afx_msg BOOL OnExRange(UINT id)
    {
        events.push_back(With("exrange", id));
        return answer;
    }
    afx_msg void OnClicked()
    {
        events.push_back("clicked");
    }
    afx_msg void OnChange()
    {
        events.push_back("change");
    }
    afx_msg void OnControlRange(UINT id)
    {
        events.push_back(With("controlrange", id));
    }
    afx_msg void OnNotifyPlain(NMHDR* header, LRESULT* result)
    {
        events.push_back(With("notify", header->code));
        *result = 11;
    }
    afx_msg BOOL OnNotifyExtended(UINT id, NMHDR*, LRESULT* result)
    {
        events.push_back(With("notifyex", id));
        *result = 12;
        return answer;
    }
    afx_msg void OnNotifyRange(UINT id, NMHDR*, LRESULT* result)
    {
        events.push_back(With("notifyrange", id));
        *result = 13;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Commander, CWnd)
ON_COMMAND(kPlain, &Commander::OnPlain)
ON_COMMAND_EX(kOnward, &Commander::OnOnward)
ON_COMMAND(kDisabled, &Commander::OnDisabled)
ON_UPDATE_COMMAND_UI(kDisabled, &Commander::OnUpdateDisabled)
ON_COMMAND_RANGE(kRangeFirst, kRangeLast, &Commander::OnRange)
ON_COMMAND_EX_RANGE(kExRangeFirst, kExRangeLast, &Commander::OnExRange)
ON_BN_CLICKED(kButton, &Commander::OnClicked)
ON_EN_CHANGE(kEdit, &Commander::OnChange)
ON_CONTROL_RANGE(LBN_SELCHANGE, kListRangeFirst, kListRangeLast, &Commander::OnControlRange)
ON_NOTIFY(NM_CLICK, kList, &Commander::OnNotifyPlain)
ON_NOTIFY_EX(NM_DBLCLK, kListEx, &Commander::OnNotifyExtended)
ON_NOTIFY_RANGE(NM_RCLICK, kListRangeFirst, kListRangeLast, &Commander::OnNotifyRange)
ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &Commander::OnNotifyExtended)
END_MESSAGE_MAP()

class Commands : public testing::Test
{
protected:
    Commands() : m_class("PlainControl", ::DefWindowProc)
    {
        CreatePopup(window);
    }
    bool Command(UINT id)
    {
        window.events.clear();
        return window.SendMessage(WM_COMMAND, id, 0) != 0;
    }
    LRESULT Control(UINT id, UINT code)
    {
        const HWND control = m_class.Create(window.m_hWnd, static_cast<int>(id));
        window.events.clear();
        const LRESULT result = window.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
        ::DestroyWindow(control);
        return result;
    }
    LRESULT Notify(UINT id, UINT code)
    {
        const HWND control = m_class.Create(window.m_hWnd, static_cast<int>(id));
        NMHDR header = {control, id, code};
        window.events.clear();
        const LRESULT result = window.SendMessage(WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
        ::DestroyWindow(control);
        return result;
    }
    PlainClass m_class;
    Commander window;
};

} // namespace

TEST_F(Commands, CallTheirHandlers)
{
    EXPECT_TRUE(Command(kPlain));
    EXPECT_EQ(window.events, Events{"plain"});
    EXPECT_FALSE(Command(999));
    EXPECT_EQ(window.events, Events());
}

TEST_F(Commands, OfExtendedHandlersGoOnWhenTheyAnswerFalse)
{
    EXPECT_TRUE(Command(kOnward));
    window.answer = FALSE;
    EXPECT_FALSE(Command(kOnward));
    EXPECT_EQ(window.events, Events{"onward 101"});
}

TEST_F(Commands, OfARangeReachOneHandlerWithTheirNumber)
{
    EXPECT_FALSE(Command(kRangeFirst - 1));
    EXPECT_TRUE(Command(kRangeFirst));
    EXPECT_EQ(window.events, Events{"range 110"});
    EXPECT_TRUE(Command(kRangeLast));
    EXPECT_EQ(window.events, Events{"range 113"});
    EXPECT_FALSE(Command(kRangeLast + 1));
    EXPECT_TRUE(Command(kExRangeLast));
    EXPECT_EQ(window.events, Events{"exrange 121"});
}

TEST_F(Commands, ThatAreDisabledAreNotCarriedOut)
{
    EXPECT_TRUE(Command(kDisabled)) << "the command is used up";
    EXPECT_EQ(window.events, Events());
    EXPECT_TRUE(window.OnCmdMsg(kDisabled, CN_COMMAND, nullptr, nullptr)) << "routing itself does not ask";
    EXPECT_EQ(window.events, Events{"disabled"});
}

TEST_F(Commands, MayBeLookedUpWithoutBeingCarriedOut)
{
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(window.OnCmdMsg(kPlain, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &window);
    EXPECT_NE(info.pmf, nullptr);
    EXPECT_EQ(window.events, Events());
    EXPECT_FALSE(window.OnCmdMsg(999, CN_COMMAND, nullptr, &info));
}

TEST_F(Commands, OfControlsGoByNotificationCode)
{
    EXPECT_TRUE(Control(kButton, BN_CLICKED));
    EXPECT_EQ(window.events, Events{"clicked"});
    EXPECT_FALSE(Control(kButton, BN_SETFOCUS));
    EXPECT_TRUE(Control(kEdit, EN_CHANGE));
    EXPECT_EQ(window.events, Events{"change"});
    EXPECT_FALSE(Control(kEdit, EN_UPDATE));
    EXPECT_TRUE(Control(kListRangeLast, LBN_SELCHANGE));
    EXPECT_EQ(window.events, Events{"controlrange 152"});
}

TEST_F(Commands, OfAButtonReachAPlainCommandHandler)
{
    EXPECT_TRUE(Control(kPlain, BN_CLICKED));
    EXPECT_EQ(window.events, Events{"plain"});
}

TEST_F(Commands, OfNumberZeroAreNoCommands)
{
    EXPECT_FALSE(Command(0));
}

TEST_F(Commands, ByNotificationCarryTheHandlersAnswer)
{
    EXPECT_EQ(Notify(kList, static_cast<UINT>(NM_CLICK)), 11);
    EXPECT_EQ(window.events, Events{With("notify", static_cast<UINT>(NM_CLICK))});
    EXPECT_EQ(Notify(kList, static_cast<UINT>(NM_DBLCLK)), 0);
    EXPECT_EQ(window.events, Events());
    EXPECT_EQ(Notify(kListEx, static_cast<UINT>(NM_DBLCLK)), 12);
    EXPECT_EQ(window.events, Events{"notifyex 141"});
    EXPECT_EQ(Notify(kListRangeFirst, static_cast<UINT>(NM_RCLICK)), 13);
    EXPECT_EQ(window.events, Events{"notifyrange 150"});
}

TEST_F(Commands, ByNotificationGoOnWhenAnExtendedHandlerAnswersFalse)
{
    window.answer = FALSE;
    const LRESULT result = Notify(kListEx, static_cast<UINT>(NM_DBLCLK));
    EXPECT_EQ(window.events, Events{"notifyex 141"});
    EXPECT_EQ(result, 0) << "the system's default answers";
}

TEST_F(Commands, ByNotificationGoByTheSendersOwnNumber)
{
    // A tooltip's header names the tool; the tooltip itself is a popup with number 0.
    const HWND tip = m_class.Create();
    NMHDR header = {tip, 4711, static_cast<UINT>(TTN_NEEDTEXTA)};
    EXPECT_EQ(window.SendMessage(WM_NOTIFY, 4711, reinterpret_cast<LPARAM>(&header)), 12);
    EXPECT_EQ(window.events, Events{"notifyex 0"});
    ::DestroyWindow(tip);
}

TEST_F(Commands, ByNotificationWithoutHeaderAreIgnored)
{
    EXPECT_EQ(window.SendMessage(WM_NOTIFY, 1, 0), 0);
}
