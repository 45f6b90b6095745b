#include "tests/windows/startup/StartupFixture.h"

#include "toolkit/startup/StartupIds.h"

#include <algorithm>

namespace vorn::test
{

namespace
{

CRect WorkArea()
{
    CRect area;
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

CRect ClientOf(HWND window)
{
    CRect rect;
    ::GetClientRect(window, &rect);
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

CSize Units(HWND dialog, int width, int height)
{
    CRect rect(0, 0, width, height);
    ::MapDialogRect(dialog, &rect);
    return rect.Size();
}

int TextWidth(HWND dialog, const std::string& text)
{
    const HDC dc = ::GetDC(dialog);
    const HGDIOBJ former = ::SelectObject(dc, reinterpret_cast<HGDIOBJ>(::SendMessageA(dialog, WM_GETFONT, 0, 0)));
    SIZE size{};
    ::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    ::SelectObject(dc, former);
    ::ReleaseDC(dialog, dc);
    return size.cx;
}

bool Contains(const CRect& outer, const CRect& inner)
{
    CRect all;
    all.UnionRect(outer, inner);
    return all == outer;
}

void ExpectApart(const std::vector<ShownText>& shown)
{
    for (std::size_t i = 0; i < shown.size(); ++i)
    {
        for (std::size_t j = i + 1; j < shown.size(); ++j)
        {
            CRect common;
            EXPECT_FALSE(common.IntersectRect(shown[i].place, shown[j].place)) << shown[i].text << shown[j].text;
        }
    }
}

/// Every line lies in one group, no part covers another, all is within the dialog and the dialog on the screen.
void ExpectTidy(HWND dialog)
{
    EXPECT_TRUE(Contains(WorkArea(), PlaceOf(dialog)));
    const std::vector<ShownText> groups = ShownIn(dialog, "Button");
    const std::vector<ShownText> lines = ShownIn(dialog, "Static");
    ExpectApart(groups);
    ExpectApart(lines);
    for (const ShownText& line : lines)
    {
        EXPECT_EQ(1, std::count_if(groups.begin(), groups.end(),
                                   [&](const ShownText& group)
                                   {
                                       return Contains(group.place, line.place);
                                   }))
            << line.text;
    }
    std::vector<ShownText> own;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (::IsWindowVisible(child))
        {
            own.push_back({child, TextOf(child), PlaceOf(child)});
            EXPECT_TRUE(Contains(ClientOf(dialog), own.back().place)) << own.back().text;
        }
    }
    ExpectApart(own);
}

std::vector<CStartupDlg::DataInfo> Records(int count)
{
    std::vector<CStartupDlg::DataInfo> records;
    for (int i = 0; i < count; ++i)
    {
        records.push_back(i % 2 == 0 ? Navigation("Region", i % 40 - 10) : Terminal("Region", i % 40 - 10));
    }
    return records;
}

bool Scrolls(HWND dialog)
{
    return (::GetWindowLongA(AreaOf(dialog), GWL_STYLE) & WS_VSCROLL) != 0;
}

} // namespace

TEST_F(StartupDialog, GroupsAreAsLargeAsTheirLines)
{
    ShowWith({Navigation("A short name", 3), Terminal("A region with a name that is longer than any date could be, and "
                                                      "then some, so that it is the widest",
                                                      3)},
             [](HWND dialog)
             {
                 const std::vector<ShownText> groups = ShownIn(dialog, "Button");
                 const std::vector<ShownText> lines = ShownIn(dialog, "Static");
                 const int lineHeight = lines[0].place.Height();
                 for (std::size_t i = 0; i < groups.size(); ++i)
                 {
                     int widest = 0;
                     for (std::size_t line = 0; line < 3; ++line)
                     {
                         widest = std::max(widest, TextWidth(dialog, lines[3 * i + line].text));
                     }
                     EXPECT_EQ(widest + 2 * Units(dialog, 7, 0).cx, groups[i].place.Width());
                     EXPECT_EQ(Units(dialog, 0, 8).cy + 3 * lineHeight + Units(dialog, 0, 8).cy,
                               groups[i].place.Height());
                     EXPECT_EQ(groups[i].place.left + Units(dialog, 7, 0).cx, lines[3 * i].place.left);
                 }
                 EXPECT_EQ(groups[0].place.left, groups[1].place.left);
                 EXPECT_GT(groups[1].place.top, groups[0].place.bottom);
                 ExpectTidy(dialog);
             });
}

TEST_F(StartupDialog, LinesAreInTheDialogsFontAndShowAmpersands)
{
    ShowWith({Navigation("Rock & Roll", 3)},
             [](HWND dialog)
             {
                 for (const ShownText& line : ShownIn(dialog, "Static"))
                 {
                     EXPECT_EQ(::SendMessageA(dialog, WM_GETFONT, 0, 0), ::SendMessageA(line.window, WM_GETFONT, 0, 0));
                     EXPECT_NE(0, ::GetWindowLongA(line.window, GWL_STYLE) & SS_NOPREFIX);
                 }
                 EXPECT_EQ("Coverage:      Rock & Roll", LinesOf(dialog)[0]);
             });
}

TEST_F(StartupDialog, IsTidyWithAnyNumberOfDataSets)
{
    for (const int count : {0, 1, 3, 6, 20})
    {
        SCOPED_TRACE(count);
        ShowWith(Records(count),
                 [&](HWND dialog)
                 {
                     ExpectTidy(dialog);
                     EXPECT_EQ(static_cast<std::size_t>(count), GroupsOf(dialog).size());
                     EXPECT_FALSE(Scrolls(dialog));
                 });
    }
}

TEST_F(StartupDialog, TakesASecondColumnBeforeItLeavesTheScreen)
{
    ShowWith(Records(3),
             [](HWND dialog)
             {
                 const std::vector<ShownText> groups = ShownIn(dialog, "Button");
                 EXPECT_EQ(groups.front().place.left, groups.back().place.left);
             });
    ShowWith(Records(20),
             [](HWND dialog)
             {
                 const std::vector<ShownText> groups = ShownIn(dialog, "Button");
                 const auto next = std::find_if(groups.begin(), groups.end(),
                                                [&](const ShownText& group)
                                                {
                                                    return group.place.left >= groups.front().place.right;
                                                });
                 ASSERT_NE(groups.end(), next);
                 EXPECT_EQ(groups.front().place.top, next->place.top);
                 const int gap = groups[1].place.top - groups[0].place.bottom;
                 EXPECT_GT(PlaceOf(dialog).Height() + gap + next->place.Height(), WorkArea().Height())
                     << "the first column is full";
             });
}

TEST_F(StartupDialog, SixtyDataSetsScroll)
{
    ShowWith(Records(60),
             [](HWND dialog)
             {
                 const HWND area = AreaOf(dialog);
                 ASSERT_TRUE(Scrolls(dialog));
                 EXPECT_TRUE(Contains(WorkArea(), PlaceOf(dialog)));
                 const std::vector<ShownText> before = ShownIn(dialog, "Button");
                 ASSERT_EQ(60U, before.size());
                 EXPECT_EQ(ClientOf(area).top, before[0].place.top);
                 ::SendMessageA(area, WM_VSCROLL, SB_BOTTOM, 0);
                 const std::vector<ShownText> after = ShownIn(dialog, "Button");
                 const auto lowest = std::max_element(after.begin(), after.end(),
                                                      [](const ShownText& one, const ShownText& other)
                                                      {
                                                          return one.place.bottom < other.place.bottom;
                                                      });
                 EXPECT_EQ(ClientOf(area).bottom, lowest->place.bottom) << "the end, and no further";
                 ::SendMessageA(area, WM_VSCROLL, SB_TOP, 0);
                 EXPECT_EQ(before[0].place, PlaceOf(before[0].window));
             });
}

TEST_F(StartupDialog, TheAreaScrollsByKeysAndWheel)
{
    ShowWith(Records(60),
             [](HWND dialog)
             {
                 const HWND area = AreaOf(dialog);
                 const HWND group = ShownIn(dialog, "Button")[0].window;
                 const LONG top = PlaceOf(group).top;
                 ::SetFocus(area);
                 EXPECT_EQ(area, ::GetFocus());
                 ::SendMessageA(area, WM_KEYDOWN, VK_DOWN, 1);
                 const LONG line = top - PlaceOf(group).top;
                 EXPECT_GT(line, 0);
                 ::SendMessageA(area, WM_KEYDOWN, VK_NEXT, 1);
                 EXPECT_GT(top - PlaceOf(group).top, 5 * line);
                 ::SendMessageA(area, WM_KEYDOWN, VK_HOME, 1);
                 EXPECT_EQ(top, PlaceOf(group).top);
                 // The button has the focus mostly: its wheel messages go to the dialog.
                 ::SendMessageA(dialog, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
                 EXPECT_EQ(3 * line, top - PlaceOf(group).top);
                 ::SendMessageA(dialog, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(100 * WHEEL_DELTA)), 0);
                 EXPECT_EQ(top, PlaceOf(group).top);
             });
}

TEST_F(StartupDialog, NamesOfAnyLengthAreCutAtTheScreensWidth)
{
    const std::string longName(4000, 'W');
    CStartupDlg::DataInfo record = Navigation(longName.c_str(), 3);
    CStartupDlg dialog("Testplane", nullptr, &record, 1, nullptr, nullptr);
    Show(dialog,
         [&](HWND window)
         {
             EXPECT_TRUE(Contains(WorkArea(), PlaceOf(window)));
             ExpectTidy(window);
             const ShownText line = ShownIn(window, "Static")[0];
             EXPECT_EQ("Coverage:      " + longName, line.text);
             EXPECT_EQ(SS_ENDELLIPSIS, ::GetWindowLongA(line.window, GWL_STYLE) & SS_ELLIPSISMASK);
             EXPECT_GT(line.place.Width(), WorkArea().Width() * 9 / 10);
         });
    CStartupDlg named(longName.c_str(), nullptr, &record, 1, nullptr, nullptr);
    EXPECT_EQ(IDCANCEL, Show(
                            named,
                            [&](HWND window)
                            {
                                EXPECT_TRUE(Contains(WorkArea(), PlaceOf(window)));
                                ExpectTidy(window);
                            },
                            IDCANCEL, nullptr));
}

TEST_F(StartupDialog, FurtherLinesStandBelowTheGroups)
{
    CStartupDlg::DataInfo record = Navigation("Alps", 3);
    CStringArray lines;
    lines.Add("Registered to N. Pilot");
    lines.Add("");
    lines.Add("Serial number 4711");
    CStartupDlg dialog("Testplane", nullptr, &record, 1, &lines, nullptr);
    Show(dialog,
         [](HWND window)
         {
             const std::vector<ShownText> shown = ShownIn(window, "Static");
             ASSERT_EQ(6U, shown.size());
             EXPECT_EQ("Registered to N. Pilot", shown[3].text);
             EXPECT_EQ("", shown[4].text);
             EXPECT_EQ("Serial number 4711", shown[5].text);
             EXPECT_GT(shown[3].place.top, ShownIn(window, "Button")[0].place.bottom);
             EXPECT_EQ(shown[3].place.bottom, shown[4].place.top);
             EXPECT_TRUE(Contains(ClientOf(AreaOf(window)), shown[5].place));
         });
}

} // namespace vorn::test
