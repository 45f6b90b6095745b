#include "tests/windows/framework_frame/TestFrame.h"

#include "tests/support/PumpUntil.h"

using namespace vorn::test;

namespace
{
class StatusBar : public FrameTest
{
protected:
    StatusBar() : frame(ShowFrameWithView()), bar(frame->statusBar)
    {
        bar.Create(frame);
        const UINT panes[] = {ID_SEPARATOR, ID_TEST_PANE, ID_INDICATOR_NUM};
        bar.SetIndicators(panes, 3);
        frame->RecalcLayout();
    }
    ~StatusBar() override
    {
        frame->DestroyWindow();
    }

    /// What the system's control shows in a pane.
    CString Shown(int index) const
    {
        char text[100]{};
        bar.SendMessage(SB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
        return text;
    }

    TestFrame* frame;
    CStatusBar& bar;
};
} // namespace

TEST_F(StatusBar, LiesAtTheBottomAsWideAsTheFrame)
{
    const CRect place = PlaceOf(bar);
    EXPECT_EQ(0, place.left);
    EXPECT_EQ(300, place.right);
    EXPECT_EQ(200, place.bottom);
    EXPECT_EQ(CRect(0, 0, 300, place.top), PlaceOf(*ViewOf(*frame)));
    EXPECT_GT(place.Height(), 10);
    EXPECT_EQ(place.Height(), bar.CalcFixedLayout(TRUE, TRUE).cy);
}

TEST_F(StatusBar, HasASizeGripWhereTheFrameCanBeSized)
{
    EXPECT_TRUE(bar.GetStyle() & SBARS_SIZEGRIP);
    TestFrame* fixed = ShowFrame(WS_OVERLAPPED | WS_CAPTION);
    fixed->statusBar.Create(fixed);
    EXPECT_FALSE(fixed->statusBar.GetStyle() & SBARS_SIZEGRIP);
    fixed->DestroyWindow();
}

TEST_F(StatusBar, PanesGetTheTextsOfTheirIds)
{
    EXPECT_EQ(3, bar.GetCount());
    EXPECT_STREQ("WIDE PANE", bar.GetPaneText(1));
    EXPECT_STREQ("WIDE PANE", Shown(1));
    EXPECT_STREQ("NUM", Shown(2)) << "from the framework's own resources";
    EXPECT_EQ(UINT(ID_TEST_PANE), bar.GetItemID(1));
    EXPECT_EQ(1, bar.CommandToIndex(ID_TEST_PANE));
    EXPECT_EQ(-1, bar.CommandToIndex(12345));
}

TEST_F(StatusBar, FirstPaneStretchesOverWhatTheOthersLeave)
{
    CRect first;
    CRect second;
    CRect third;
    bar.GetItemRect(0, &first);
    bar.GetItemRect(1, &second);
    bar.GetItemRect(2, &third);
    EXPECT_LT(first.right, second.left + 3);
    EXPECT_LT(second.right, third.left + 3);
    EXPECT_GT(first.Width(), 0);
    EXPECT_GT(second.Width(), third.Width());
    EXPECT_LE(third.right, 300);
    EXPECT_GT(third.right, 300 - 40);
    CRect outer;
    frame->GetWindowRect(&outer);
    frame->SetWindowPos(nullptr, 0, 0, outer.Width() + 70, outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
    CRect wider;
    bar.GetItemRect(0, &wider);
    EXPECT_EQ(first.Width() + 70, wider.Width());
    CRect none(1, 2, 3, 4);
    bar.GetItemRect(9, &none);
    EXPECT_TRUE(none.IsRectNull());
}

TEST_F(StatusBar, PaneTextsAreSetAndShown)
{
    EXPECT_TRUE(bar.SetPaneText(0, "hello"));
    EXPECT_STREQ("hello", Shown(0));
    EXPECT_TRUE(bar.SetPaneText(0, "later", FALSE));
    EXPECT_STREQ("later", bar.GetPaneText(0));
    EXPECT_STREQ("hello", Shown(0)) << "not shown before the next update";
    EXPECT_TRUE(bar.SetPaneText(0, nullptr));
    EXPECT_STREQ("", bar.GetPaneText(0));
    CString text;
    bar.GetPaneText(1, text);
    EXPECT_STREQ("WIDE PANE", text);
}

TEST_F(StatusBar, IndicesOutsideAnswerNothing)
{
    EXPECT_FALSE(bar.SetPaneText(-1, "x"));
    EXPECT_FALSE(bar.SetPaneText(3, "x"));
    EXPECT_STREQ("", bar.GetPaneText(3));
    EXPECT_EQ(0U, bar.GetItemID(-1));
    EXPECT_EQ(0U, bar.GetPaneStyle(3));
    bar.SetPaneStyle(3, SBPS_POPOUT);
    bar.SetPaneInfo(-1, 1, 0, 5);
    UINT id = 9;
    UINT style = 9;
    int width = 9;
    bar.GetPaneInfo(7, id, style, width);
    EXPECT_EQ(0U, id);
    EXPECT_EQ(0, width);
    EXPECT_FALSE(bar.SetIndicators(nullptr, 0));
}

TEST_F(StatusBar, PaneInfoChangesIdStyleAndWidth)
{
    CRect before;
    CRect after;
    bar.GetItemRect(1, &before);
    UINT id = 0;
    UINT style = 0;
    int width = 0;
    bar.GetPaneInfo(1, id, style, width);
    bar.SetPaneInfo(1, 777, SBPS_POPOUT, width + 10);
    bar.GetItemRect(1, &after);
    EXPECT_EQ(before.Width() + 10, after.Width());
    EXPECT_EQ(777U, bar.GetItemID(1));
    EXPECT_EQ(SBPS_POPOUT, bar.GetPaneStyle(1));
    EXPECT_EQ(SBT_POPOUT, HIWORD(bar.SendMessage(SB_GETTEXTLENGTH, 1)));
}

TEST_F(StatusBar, DisabledPanesShowNoText)
{
    bar.SetPaneStyle(2, SBPS_DISABLED);
    EXPECT_STREQ("", Shown(2));
    EXPECT_STREQ("NUM", bar.GetPaneText(2));
    bar.SetPaneStyle(2, SBPS_NORMAL);
    EXPECT_STREQ("NUM", Shown(2));
}

TEST_F(StatusBar, WindowTextIsTheMessageLine)
{
    bar.SetWindowText("message");
    EXPECT_STREQ("message", bar.GetPaneText(0));
    CString text;
    bar.GetWindowText(text);
    EXPECT_STREQ("message", text);
    EXPECT_EQ(7, bar.GetWindowTextLength());
    char shortBuffer[4];
    EXPECT_EQ(3, bar.GetWindowText(shortBuffer, 4));
    EXPECT_STREQ("mes", shortBuffer);
}

TEST_F(StatusBar, IndicatorsAreUpdatedByTheFramesRoute)
{
    bar.OnUpdateCmdUI(frame, FALSE);
    EXPECT_STREQ("from the frame", Shown(1));
    const bool numLock = (::GetKeyState(VK_NUMLOCK) & 1) != 0;
    EXPECT_STREQ(numLock ? "NUM" : "", Shown(2));
    EXPECT_EQ(numLock ? 0U : SBPS_DISABLED, bar.GetPaneStyle(2) & SBPS_DISABLED);
}

TEST_F(StatusBar, KeyIndicatorFollowsTheKeysLamp)
{
    BYTE keys[256];
    ::GetKeyboardState(keys);
    for (BYTE lamp : {BYTE{1}, BYTE{0}})
    {
        keys[VK_NUMLOCK] = lamp;
        ::SetKeyboardState(keys);
        bar.OnUpdateCmdUI(frame, FALSE);
        EXPECT_STREQ(lamp ? "NUM" : "", Shown(2));
    }
}

TEST_F(StatusBar, PanesWithoutIdsCanBeSetLater)
{
    ASSERT_TRUE(bar.SetIndicators(nullptr, 2));
    EXPECT_EQ(2, bar.GetCount());
    bar.SetPaneInfo(0, 41, SBPS_STRETCH, 0);
    bar.SetPaneInfo(1, 42, SBPS_NORMAL, 30);
    EXPECT_EQ(1, bar.CommandToIndex(42));
}
