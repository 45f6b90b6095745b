#include "tests/windows/tooltips/TipTest.h"

// The tools of a tooltip control.

using namespace vorn::test;

namespace
{

class TipTools : public TipTest
{
protected:
    std::string TextOf(UINT control, UINT id = 0)
    {
        CString text = "?";
        m_tips.GetText(text, Control(control), id);
        return static_cast<LPCSTR>(text);
    }
    /// The id of the tool at a place in the host's client area; 0 for none.
    int ToolAt(int x, int y)
    {
        POINT point = {x, y};
        m_host.ClientToScreen(&point);
        const ToolTipInfoEx* const tool = m_tips.FindToolFromPoint(point);
        return tool != nullptr ? ::GetDlgCtrlID(tool->GetControl()) : 0;
    }
};

} // namespace

TEST_F(TipTools, AreCounted)
{
    EXPECT_EQ(3, m_tips.GetToolCount());
    EXPECT_TRUE(m_tips.AddTool(Control(1), "again", 5));
    EXPECT_EQ(4, m_tips.GetToolCount());
    m_tips.DelTool(Control(1), 5);
    m_tips.DelTool(Control(1), 5);
    m_tips.DelTool(Control(1), 6);
    EXPECT_EQ(3, m_tips.GetToolCount());
}

TEST_F(TipTools, OneOfTheSameControlAndIdIsReplaced)
{
    m_tips.AddTool(Control(1), "uno");
    EXPECT_EQ(3, m_tips.GetToolCount());
    EXPECT_EQ("uno", TextOf(1));
    m_tips.AddTool(Control(1), IDS_TEST_PLAIN);
    EXPECT_EQ(3, m_tips.GetToolCount());
    EXPECT_EQ("Enter the weight of the baggage.", TextOf(1));
}

TEST_F(TipTools, NoControlIsNoTool)
{
    CWnd without;
    EXPECT_FALSE(m_tips.AddTool(nullptr, "none"));
    EXPECT_FALSE(m_tips.AddTool(nullptr, 700U));
    EXPECT_FALSE(m_tips.AddTool(&without, "none"));
    m_tips.DelTool(nullptr);
    EXPECT_EQ(3, m_tips.GetToolCount());
}

TEST_F(TipTools, GoWithTheirWindow)
{
    m_tips.DestroyWindow();
    EXPECT_EQ(0, m_tips.GetToolCount());
    EXPECT_TRUE(m_tips.Create(&m_host));
    EXPECT_FALSE(m_tips.Create(&m_host)) << "it has one";
    m_tips.AddTool(Control(1), "one");
    Hover(1);
    EXPECT_TRUE(IsShown());
}

TEST_F(TipTools, TellTheirWholeText)
{
    EXPECT_EQ("one", TextOf(1));
    EXPECT_EQ("Deletes the leg.\rThe legs before and behind it are joined, and distances and times are computed anew.",
              TextOf(2));
    EXPECT_EQ("", TextOf(1, 9)) << "no such tool";
    CString text = "?";
    m_tips.GetText(text, nullptr);
    EXPECT_STREQ("", text);
}

TEST_F(TipTools, TextsOfResourcesEndAfter511Characters)
{
    m_tips.AddTool(Control(1), IDS_TEST_LONG);
    EXPECT_EQ(std::string(511, 'A'), TextOf(1));
    TOOLINFOEX info;
    EXPECT_TRUE(m_tips.GetToolInfo(info, Control(1)));
    EXPECT_EQ(511, info.text.GetLength());
}

TEST_F(TipTools, TextsThatAreGivenAreKeptWhole)
{
    const CString text('b', 2000);
    m_tips.AddTool(Control(1), static_cast<LPCSTR>(text));
    TOOLINFOEX info;
    EXPECT_TRUE(m_tips.GetToolInfo(info, Control(1)));
    EXPECT_EQ(text, info.text);
    EXPECT_EQ(std::string(511, 'b'), TextOf(1));
    Hover(1);
    EXPECT_EQ(std::string(2000, 'b'), TipText());
}

TEST_F(TipTools, TextsOfTheLibraryAreFoundAndThoseOfTheProgramGoBefore)
{
    m_tips.AddTool(Control(1), 700U);
    EXPECT_EQ("The display name for this view.", TextOf(1));
    m_tips.AddTool(Control(1), 701U);
    EXPECT_EQ("The program's own words.", TextOf(1));
    m_tips.AddTool(Control(1), 702U);
    EXPECT_NE("", TextOf(1)) << "in one block with a string of the program";
    m_tips.AddTool(Control(1), 1149U);
    EXPECT_EQ("Minimum aircraft CG as set in\nthe aircraft CG model data.", TextOf(1));
    m_tips.AddTool(Control(1), 722U);
    EXPECT_EQ("", TextOf(1)) << "nobody has it";
}

TEST_F(TipTools, TextsOfResourcesAreLoadedWhenTheyAreShown)
{
    m_tips.AddTool(Control(1), 701U);
    Hover(1);
    EXPECT_EQ("The program's own words.", TipText());
    MouseOut();
    Tick(kLookTimer);
    ::AfxSetResourceHandle(::GetModuleHandle("VornCommon.dll")); // as when another language's texts come first
    const std::string other = TextOf(1);
    Hover(1);
    const std::string shown = TipText();
    ::AfxSetResourceHandle(nullptr);
    EXPECT_NE("", other);
    EXPECT_NE("The program's own words.", other);
    EXPECT_EQ(other, shown);
}

TEST_F(TipTools, AreDescribed)
{
    const CRect part(1, 2, 30, 14);
    m_tips.AddTool(Control(2), IDS_TEST_PLAIN, 77, part);
    TOOLINFOEX info;
    ASSERT_TRUE(m_tips.GetToolInfo(info, Control(2), 77));
    EXPECT_EQ(Control(2)->m_hWnd, info.hwnd);
    EXPECT_EQ(77U, info.id);
    EXPECT_EQ(part, info.rect);
    EXPECT_STREQ("Enter the weight of the baggage.", info.text);
    EXPECT_EQ(TOOLINFOEX::TextFromResource | TOOLINFOEX::PartOfWindow, info.flags);
    ASSERT_TRUE(m_tips.GetToolInfo(info, Control(1)));
    EXPECT_EQ(0U, info.id);
    EXPECT_EQ(0U, info.flags);
    EXPECT_STREQ("one", info.text);
    EXPECT_TRUE(info.rect.IsRectNull());
}

TEST_F(TipTools, UnknownOnesHaveNoDescription)
{
    TOOLINFOEX info;
    info.id = 42;
    EXPECT_FALSE(m_tips.GetToolInfo(info, Control(2), 77));
    EXPECT_FALSE(m_tips.GetToolInfo(info, nullptr));
    EXPECT_EQ(42U, info.id);
}

TEST_F(TipTools, TakeADescription)
{
    TOOLINFOEX info;
    ASSERT_TRUE(m_tips.GetToolInfo(info, Control(1)));
    info.text = "eins";
    info.rect = CRect(0, 0, 10, 10);
    m_tips.SetToolInfo(&info);
    EXPECT_EQ("eins", TextOf(1));
    EXPECT_EQ(1, ToolAt(15, 15));
    EXPECT_EQ(0, ToolAt(60, 15));
    m_tips.SetToolInfo(nullptr);
    info.id = 99;
    m_tips.SetToolInfo(&info);
    EXPECT_EQ(3, m_tips.GetToolCount());
}

TEST_F(TipTools, KeepTheirResourceWhenOnlyTheirRectangleChanges)
{
    TOOLINFOEX info;
    ASSERT_TRUE(m_tips.GetToolInfo(info, Control(2)));
    info.rect = CRect(0, 0, 10, 10);
    m_tips.SetToolInfo(&info);
    ASSERT_TRUE(m_tips.GetToolInfo(info, Control(2)));
    EXPECT_EQ(TOOLINFOEX::TextFromResource | TOOLINFOEX::PartOfWindow, info.flags);
}

TEST_F(TipTools, AreTheWholeControlWithoutARectangle)
{
    EXPECT_EQ(1, ToolAt(10, 10));
    EXPECT_EQ(1, ToolAt(109, 33));
    EXPECT_EQ(0, ToolAt(110, 33));
    EXPECT_EQ(0, ToolAt(109, 34));
    const CRect empty(5, 5, 5, 20);
    m_tips.AddTool(Control(1), "one", 0, empty);
    EXPECT_EQ(1, ToolAt(109, 33)) << "an empty one is none";
}

TEST_F(TipTools, RectanglesAreInClientCoordinatesOfTheirControl)
{
    m_tips.DelTool(Control(3));
    const CRect part(20, 30, 60, 50);
    m_tips.AddTool(Control(3), "part", 8, part);
    // The list has a border of one pixel and stands at 10, 40.
    EXPECT_EQ(3, ToolAt(31, 71));
    EXPECT_EQ(0, ToolAt(30, 71));
    EXPECT_EQ(3, ToolAt(70, 90));
    EXPECT_EQ(0, ToolAt(71, 90));
}

TEST_F(TipTools, TheSmallestOneCountsWhereTheyOverlap)
{
    const CRect part(50, 0, 80, 20);
    m_tips.AddTool(Control(3), "part", 8, part);
    POINT point = {10 + 1 + 60, 40 + 1 + 10};
    m_host.ClientToScreen(&point);
    ASSERT_NE(nullptr, m_tips.FindToolFromPoint(point));
    EXPECT_EQ(8U, m_tips.FindToolFromPoint(point)->GetID());
    m_tips.AddTool(&m_host, "all", 9);
    EXPECT_EQ(8U, m_tips.FindToolFromPoint(point)->GetID());
    EXPECT_EQ(9U, m_tips.FindToolFromPoint({210, 155})->GetID());
}

TEST_F(TipTools, HiddenOnesAreNotFoundDisabledOnesAre)
{
    Control(1)->ShowWindow(SW_HIDE);
    EXPECT_EQ(0, ToolAt(20, 20));
    Control(2)->EnableWindow(FALSE);
    EXPECT_EQ(2, ToolAt(130, 20));
    Control(1)->ShowWindow(SW_SHOW);
    EXPECT_EQ(1, ToolAt(20, 20));
    m_host.ShowWindow(SW_HIDE);
    EXPECT_EQ(0, ToolAt(20, 20));
}

TEST_F(TipTools, ThoseOfDestroyedWindowsAreNotFound)
{
    Control(1)->DestroyWindow();
    EXPECT_EQ(0, ToolAt(20, 20));
    EXPECT_EQ(2, ToolAt(130, 20));
}

TEST_F(TipTools, AreHitInTheirOwnWindowAlone)
{
    const CRect part(20, 30, 60, 50);
    m_tips.AddTool(Control(3), "part", 8, part);
    TOOLINFOEX info;
    EXPECT_TRUE(m_tips.HitTest(Control(3), {30, 40}, &info));
    EXPECT_EQ(8U, info.id);
    EXPECT_TRUE(m_tips.HitTest(Control(3), {5, 5}, &info));
    EXPECT_EQ(0U, info.id);
    EXPECT_TRUE(m_tips.HitTest(Control(1), {5, 5}, nullptr));
    EXPECT_FALSE(m_tips.HitTest(Control(1), {200, 5}, &info));
    EXPECT_FALSE(m_tips.HitTest(&m_host, {15, 15}, &info)) << "the button's tool is not the host's";
    EXPECT_FALSE(m_tips.HitTest(nullptr, {15, 15}, &info));
}

TEST_F(TipTools, FieldsOfATextAreTold)
{
    EXPECT_STREQ("short", ToolTipCtrlEx::GetFieldFromString("short\rlong", 0, '\r'));
    EXPECT_STREQ("long", ToolTipCtrlEx::GetFieldFromString("short\rlong", 1, '\r'));
    EXPECT_STREQ("short", ToolTipCtrlEx::GetFieldFromString("short", 0, '\r'));
    EXPECT_STREQ("", ToolTipCtrlEx::GetFieldFromString("short", 1, '\r'));
}

TEST_F(TipTools, TheWindowIsOwnedByTheTopWindow)
{
    ToolTipCtrlEx tips;
    ASSERT_TRUE(tips.Create(Control(3)));
    EXPECT_EQ(m_host.m_hWnd, ::GetWindow(tips.m_hWnd, GW_OWNER));
    EXPECT_EQ(static_cast<DWORD>(WS_EX_TOPMOST | WS_EX_TOOLWINDOW),
              tips.GetExStyle() & (WS_EX_TOPMOST | WS_EX_TOOLWINDOW));
    EXPECT_EQ(static_cast<DWORD>(WS_POPUP), tips.GetStyle() & (WS_POPUP | WS_VISIBLE | WS_BORDER | WS_CHILD));
    EXPECT_NE(0U, ::GetClassLongA(tips.m_hWnd, GCL_STYLE) & CS_SAVEBITS);
}

TEST_F(TipTools, AWindowWithoutParentIsPossible)
{
    ToolTipCtrlEx tips;
    EXPECT_TRUE(tips.Create(nullptr));
    EXPECT_EQ(nullptr, ::GetWindow(tips.m_hWnd, GW_OWNER));
}

TEST_F(TipTools, DelaysAreTold)
{
    EXPECT_EQ(15000, m_tips.GetDelayTime(TTDT_AUTOPOP));
    EXPECT_EQ(500, m_tips.GetDelayTime(TTDT_INITIAL));
    EXPECT_EQ(0, m_tips.GetDelayTime(TTDT_RESHOW));
    EXPECT_EQ(0, m_tips.GetDelayTime(TTDT_AUTOMATIC));
    m_tips.SetDelayTime(400U);
    EXPECT_EQ(4000, m_tips.GetDelayTime(TTDT_AUTOPOP));
    EXPECT_EQ(400, m_tips.GetDelayTime(TTDT_INITIAL));
    EXPECT_EQ(80, m_tips.GetDelayTime(TTDT_RESHOW));
    EXPECT_EQ(400, m_tips.GetDelayTime(TTDT_AUTOMATIC));
    m_tips.SetDelayTime(TTDT_INITIAL, -1);
    m_tips.SetDelayTime(17, 3);
    EXPECT_EQ(400, m_tips.GetDelayTime(TTDT_INITIAL));
    EXPECT_EQ(0, m_tips.GetDelayTime(17));
}
