#include "tests/windows/framework_frame/TestFrame.h"

using namespace vorn::test;

namespace
{
class ToolBar : public FrameTest
{
protected:
    ToolBar() : frame(ShowFrameWithView()), bar(frame->toolBar)
    {
        bar.Create(frame);
        const UINT ids[] = {ID_TEST_VIEW, ID_SEPARATOR, ID_TEST_FRAME, ID_TEST_NOBODY};
        bar.SetButtons(ids, 4);
        frame->RecalcLayout();
    }
    ~ToolBar() override
    {
        frame->DestroyWindow();
    }

    TestFrame* frame;
    CToolBar& bar;
};
} // namespace

TEST_F(ToolBar, LiesAtTheTopAsWideAsTheFrame)
{
    const CRect place = PlaceOf(bar);
    EXPECT_EQ(CPoint(0, 0), CPoint(place.left, place.top));
    EXPECT_EQ(300, place.right);
    CRect button;
    bar.GetItemRect(0, &button);
    EXPECT_GE(place.Height(), button.bottom);
    EXPECT_EQ(CRect(0, place.bottom, 300, 200), PlaceOf(*ViewOf(*frame)));
    bar.SetHeight(60);
    frame->RecalcLayout();
    EXPECT_EQ(60, PlaceOf(bar).Height());
}

TEST_F(ToolBar, ButtonsHaveTheirCommandsAndPictures)
{
    EXPECT_EQ(4, bar.GetCount());
    EXPECT_EQ(UINT(ID_TEST_FRAME), bar.GetItemID(2));
    EXPECT_EQ(3, bar.CommandToIndex(ID_TEST_NOBODY));
    EXPECT_EQ(-1, bar.CommandToIndex(1));
    UINT id = 0;
    UINT style = 0;
    int image = 0;
    bar.GetButtonInfo(2, id, style, image);
    EXPECT_EQ(UINT(ID_TEST_FRAME), id);
    EXPECT_EQ(1, image) << "separators have no picture";
    EXPECT_EQ(TBBS_SEPARATOR, bar.GetButtonStyle(1));
    EXPECT_EQ(0U, bar.GetButtonStyle(9));
    EXPECT_EQ(0U, bar.GetItemID(-1));
    EXPECT_FALSE(bar.SetButtons(nullptr, 0));
}

TEST_F(ToolBar, ButtonsFollowTheFramesRoute)
{
    bar.OnUpdateCmdUI(frame, TRUE);
    EXPECT_TRUE(bar.GetButtonStyle(0) & TBBS_CHECKED) << "checked by the view";
    EXPECT_FALSE(bar.GetButtonStyle(0) & TBBS_DISABLED);
    EXPECT_TRUE(bar.GetButtonStyle(2) & TBBS_DISABLED) << "disabled by the frame";
    EXPECT_TRUE(bar.GetButtonStyle(3) & TBBS_DISABLED) << "nobody handles it";
    EXPECT_FALSE(bar.SendMessage(TB_ISBUTTONENABLED, ID_TEST_NOBODY));
    EXPECT_TRUE(bar.SendMessage(TB_ISBUTTONCHECKED, ID_TEST_VIEW));
}

TEST_F(ToolBar, ButtonsWithoutHandlerStayIfAsked)
{
    bar.OnUpdateCmdUI(frame, FALSE);
    EXPECT_FALSE(bar.GetButtonStyle(3) & TBBS_DISABLED);
}

TEST_F(ToolBar, StylesAndInfoAreSet)
{
    bar.SetButtonStyle(0, TBBS_CHECKBOX | TBBS_CHECKED);
    EXPECT_EQ(TBBS_CHECKBOX | TBBS_CHECKED, bar.GetButtonStyle(0));
    bar.SetButtonStyle(0, TBBS_CHECKBOX | TBBS_DISABLED);
    EXPECT_EQ(TBBS_CHECKBOX | TBBS_DISABLED, bar.GetButtonStyle(0));
    bar.SetButtonInfo(3, 4711, TBBS_BUTTON, 2);
    EXPECT_EQ(3, bar.CommandToIndex(4711));
    bar.SetButtonInfo(99, 1, 0, 0);
    EXPECT_EQ(-1, bar.CommandToIndex(1));
}

TEST_F(ToolBar, ButtonsTakeTexts)
{
    EXPECT_TRUE(bar.SetButtonText(0, "Look"));
    EXPECT_STREQ("Look", bar.GetButtonText(0));
    CString text;
    bar.GetButtonText(0, text);
    EXPECT_STREQ("Look", text);
    EXPECT_STREQ("", bar.GetButtonText(2));
    EXPECT_FALSE(bar.SetButtonText(9, "x"));
    EXPECT_FALSE(bar.SetButtonText(0, nullptr));
}

TEST_F(ToolBar, LoadsFromItsResources)
{
    ASSERT_TRUE(bar.LoadToolBar(IDR_TEST_TOOLBAR));
    EXPECT_EQ(4, bar.GetCount());
    EXPECT_EQ(UINT(ID_TEST_VIEW), bar.GetItemID(0));
    EXPECT_EQ(TBBS_SEPARATOR, bar.GetButtonStyle(1));
    EXPECT_FALSE(bar.LoadToolBar(9999U));
    EXPECT_FALSE(bar.LoadBitmap(9999U));
    EXPECT_TRUE(bar.LoadBitmap(IDR_TEST_TOOLBAR)) << "in place of the former pictures";
    EXPECT_FALSE(bar.SetBitmap(nullptr));
}

TEST_F(ToolBar, ClickSendsItsCommandAlongTheFramesRoute)
{
    App().noteRouting = true;
    CRect button;
    bar.GetItemRect(0, &button);
    const LPARAM where = MAKELPARAM(button.left + 2, button.top + 2);
    bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
    bar.SendMessage(WM_LBUTTONUP, 0, where);
    EXPECT_EQ("frame view view-handler", AllNotes());
}
