#include "toolkit/startup/core/StartupLayout.h"

#include <gtest/gtest.h>

#include <array>

using namespace vorn;

namespace
{

StartupParts Parts(std::size_t groups, CSize group)
{
    StartupParts parts;
    parts.margin = CSize(10, 10);
    parts.gap = CSize(6, 6);
    parts.title = CSize(200, 24);
    parts.copyright = CSize(240, 13);
    parts.disclaimer = CSize(300, 120);
    parts.groups.assign(groups, group);
    parts.check = CSize(150, 16);
    parts.update = CSize(80, 23);
    parts.ok = CSize(70, 23);
    parts.most = CSize(1000, 700);
    parts.scrollBar = 16;
    return parts;
}

bool Overlap(const CRect& one, const CRect& other)
{
    CRect common;
    return common.IntersectRect(one, other) != FALSE;
}

void ExpectApart(const std::vector<CRect>& places)
{
    for (std::size_t i = 0; i < places.size(); ++i)
    {
        for (std::size_t j = i + 1; j < places.size(); ++j)
        {
            ASSERT_FALSE(Overlap(places[i], places[j])) << i << " and " << j;
        }
    }
}

void ExpectTidy(const StartupParts& parts, const StartupPlaces& places)
{
    const std::vector<CRect> all = {places.title, places.copyright, places.disclaimer, places.area,
                                    places.check, places.update,    places.ok};
    ExpectApart(all);
    for (const CRect& place : all)
    {
        EXPECT_GE(place.left, parts.margin.cx);
        EXPECT_LE(place.right, places.client.cx - parts.margin.cx);
        EXPECT_LE(place.bottom, places.client.cy - parts.margin.cy);
    }
    std::vector<CRect> content = places.groups;
    content.insert(content.end(), places.lines.begin(), places.lines.end());
    ExpectApart(content);
    const int width = places.area.Width() - (places.Scrolls() ? parts.scrollBar : 0);
    for (const CRect& place : content)
    {
        EXPECT_GE(place.left, 0);
        EXPECT_GE(place.top, 0);
        EXPECT_LE(place.right, width);
        EXPECT_LE(place.bottom, places.contentHeight);
    }
    EXPECT_LE(places.client.cx, parts.most.cx);
}

} // namespace

TEST(StartupLayout, GroupIsAsWideAsItsWidestLineWithItsSides)
{
    const StartupGroup group =
        GroupAround(CSize(90, 13), {CSize(100, 13), CSize(340, 13), CSize(200, 14)}, {12, 13, 13});
    EXPECT_EQ(340 + 2 * 12, group.size.cx);
    EXPECT_EQ(13 + 40 + 13, group.size.cy);
    ASSERT_EQ(3U, group.lines.size());
    EXPECT_EQ(CRect(12, 19, 352, 32), group.lines[0]);
    EXPECT_EQ(CRect(12, 32, 352, 45), group.lines[1]);
    EXPECT_EQ(CRect(12, 45, 352, 59), group.lines[2]);
}

TEST(StartupLayout, GroupIsNeverNarrowerThanItsCaption)
{
    EXPECT_EQ(90 + 24, GroupAround(CSize(90, 13), {CSize(40, 13)}, {12, 13, 13}).size.cx);
}

TEST(StartupLayout, BoxesStandBelowEachOtherWhileTheyFit)
{
    const std::vector<CSize> boxes = {CSize(100, 50), CSize(80, 50), CSize(120, 50)};
    const StartupColumns one = PlaceInColumns(boxes, CSize(5, 6), 162);
    EXPECT_EQ(CRect(0, 0, 100, 50), one.places[0]);
    EXPECT_EQ(CRect(0, 56, 80, 106), one.places[1]);
    EXPECT_EQ(CRect(0, 112, 120, 162), one.places[2]);
    EXPECT_EQ(CSize(120, 162), one.size);
}

TEST(StartupLayout, AColumnBeginsWhereABoxWouldPassTheHeight)
{
    const std::vector<CSize> boxes = {CSize(100, 50), CSize(80, 50), CSize(120, 50)};
    const StartupColumns two = PlaceInColumns(boxes, CSize(5, 6), 161);
    EXPECT_EQ(CRect(105, 0, 225, 50), two.places[2]);
    EXPECT_EQ(CSize(225, 106), two.size);
    EXPECT_EQ(3U, PlaceInColumns(boxes, CSize(5, 6), 0).places.size());
    EXPECT_EQ(CSize(310, 50), PlaceInColumns(boxes, CSize(5, 6), 0).size) << "each box has room for itself";
}

TEST(StartupLayout, NothingToPlaceTakesNoRoom)
{
    EXPECT_EQ(CSize(0, 0), PlaceInColumns({}, CSize(5, 6), 100).size);
    EXPECT_EQ(CSize(0, 0), FitColumns({}, CSize(5, 6), CSize(10, 10)).size);
}

TEST(StartupLayout, ColumnsGrowHigherWhereTheyWouldBeTooWide)
{
    const std::vector<CSize> boxes(60, CSize(300, 60));
    const StartupColumns columns = FitColumns(boxes, CSize(5, 5), CSize(1000, 400));
    EXPECT_EQ(910, columns.size.cx) << "three columns fit";
    EXPECT_EQ(20 * 60 + 19 * 5, columns.size.cy) << "of twenty boxes each";
    EXPECT_EQ(1825, FitColumns(boxes, CSize(5, 5), CSize(2000, 715)).size.cx) << "six of eleven at most";
    EXPECT_EQ(1, FitColumns({CSize(1, 10)}, CSize(5, 5), CSize(0, 0)).size.cx);
}

TEST(StartupLayout, FewGroupsNeitherScrollNorLeaveRoom)
{
    const StartupParts parts = Parts(3, CSize(280, 66));
    const StartupPlaces places = PlaceStartup(parts);
    ExpectTidy(parts, places);
    EXPECT_FALSE(places.Scrolls());
    EXPECT_EQ(CSize(320, 10 + 24 + 13 + 6 + 120 + 6 + (3 * 66 + 2 * 6) + 6 + 16 + 6 + 23 + 10), places.client);
    EXPECT_EQ(CRect(0, 144, 280, 210), places.groups[2]);
    EXPECT_EQ(300, places.disclaimer.Width());
    EXPECT_EQ(places.client.cx - 10, places.ok.right);
    EXPECT_EQ(10, places.update.left);
}

TEST(StartupLayout, AHiddenDisclaimerLeavesNoGap)
{
    StartupParts parts = Parts(1, CSize(280, 66));
    const int with = PlaceStartup(parts).client.cy;
    parts.disclaimer = CSize(0, 0);
    const StartupPlaces places = PlaceStartup(parts);
    EXPECT_EQ(with - 126, places.client.cy);
    ExpectTidy(parts, places);
}

TEST(StartupLayout, WithoutGroupsThereIsNoArea)
{
    const StartupParts parts = Parts(0, CSize(0, 0));
    const StartupPlaces places = PlaceStartup(parts);
    EXPECT_EQ(0, places.area.Height());
    EXPECT_EQ(0, places.contentHeight);
    EXPECT_EQ(10 + 24 + 13 + 6 + 120 + 6 + 16 + 6 + 23 + 10, places.client.cy);
}

TEST(StartupLayout, MoreGroupsThanTheHeightHoldsTakeASecondColumn)
{
    const StartupParts parts = Parts(8, CSize(280, 66));
    const StartupPlaces places = PlaceStartup(parts);
    ExpectTidy(parts, places);
    EXPECT_FALSE(places.Scrolls());
    EXPECT_EQ(286, places.groups[7].left);
    EXPECT_LE(places.client.cy, parts.most.cy);
}

TEST(StartupLayout, MoreThanTheScreenHoldsScroll)
{
    const StartupParts parts = Parts(60, CSize(280, 66));
    const StartupPlaces places = PlaceStartup(parts);
    ExpectTidy(parts, places);
    EXPECT_TRUE(places.Scrolls());
    EXPECT_EQ(parts.most.cy, places.client.cy);
    EXPECT_EQ(3 * 280 + 2 * 6 + 16, places.area.Width());
    EXPECT_EQ(20 * 66 + 19 * 6, places.contentHeight);
}

TEST(StartupLayout, LinesStandBelowTheGroups)
{
    StartupParts parts = Parts(2, CSize(280, 66));
    parts.lines = {CSize(100, 13), CSize(500, 13)};
    const StartupPlaces places = PlaceStartup(parts);
    ExpectTidy(parts, places);
    EXPECT_EQ(CRect(0, 144, 100, 157), places.lines[0]);
    EXPECT_EQ(CRect(0, 157, 500, 170), places.lines[1]);
    EXPECT_EQ(520, places.client.cx);
    parts.groups.clear();
    EXPECT_EQ(CRect(0, 0, 100, 13), PlaceStartup(parts).lines[0]);
}

TEST(StartupLayout, ManyLinesScrollToo)
{
    StartupParts parts = Parts(1, CSize(280, 66));
    parts.lines.assign(200, CSize(400, 13));
    const StartupPlaces places = PlaceStartup(parts);
    ExpectTidy(parts, places);
    EXPECT_TRUE(places.Scrolls());
    EXPECT_EQ(66 + 6 + 200 * 13, places.contentHeight);
}

TEST(StartupLayout, NothingIsWiderThanTheScreen)
{
    StartupParts parts = Parts(2, CSize(980, 66));
    parts.title = CSize(4000, 24);
    parts.lines = {CSize(3000, 13)};
    const StartupPlaces places = PlaceStartup(parts);
    ExpectTidy(parts, places);
    EXPECT_EQ(1000, places.client.cx);
    EXPECT_EQ(980, places.title.Width());
}

TEST(StartupLayout, AVeryLowScreenStillShowsAPieceOfTheArea)
{
    StartupParts parts = Parts(5, CSize(280, 66));
    parts.most = CSize(1000, 150);
    const StartupPlaces places = PlaceStartup(parts);
    EXPECT_TRUE(places.Scrolls());
    EXPECT_EQ(138, places.contentHeight);
    EXPECT_EQ(48, places.area.Height());
}
