#include "toolkit/core/WarningBoxLayout.h"

#include <gtest/gtest.h>

using vorn::PlaceWarningBox;
using vorn::WarningBoxParts;
using vorn::WarningBoxPlaces;

namespace
{
WarningBoxParts Parts()
{
    WarningBoxParts parts;
    parts.icon = CSize(32, 32);
    parts.text = CSize(300, 52);
    parts.check = CSize(120, 16);
    parts.button = CSize(80, 24);
    parts.margin = CSize(12, 10);
    parts.gap = CSize(6, 8);
    return parts;
}
} // namespace

TEST(WarningBox, TextStandsBesideTheIconAndTheButtonInTheMiddleBelow)
{
    const WarningBoxPlaces places = PlaceWarningBox(Parts());
    EXPECT_EQ(CRect(12, 10, 44, 42), places.icon);
    EXPECT_EQ(CRect(50, 10, 350, 62), places.text);
    EXPECT_EQ(CRect(50, 70, 170, 86), places.check);
    EXPECT_EQ(CSize(362, 128), places.client);
    EXPECT_EQ(CRect(141, 94, 221, 118), places.button);
}

TEST(WarningBox, AShortTextStandsAtTheIconsMiddle)
{
    WarningBoxParts parts = Parts();
    parts.text = CSize(300, 14);
    const WarningBoxPlaces places = PlaceWarningBox(parts);
    EXPECT_EQ(CRect(50, 19, 350, 33), places.text);
    EXPECT_EQ(50, places.check.top) << "below the icon";
}

TEST(WarningBox, AWideCheckBoxWidensIt)
{
    WarningBoxParts parts = Parts();
    parts.check = CSize(400, 16);
    EXPECT_EQ(462, PlaceWarningBox(parts).client.cx);
}

TEST(WarningBox, WithoutACheckBoxTheButtonMovesUp)
{
    WarningBoxParts parts = Parts();
    parts.check = CSize(0, 0);
    const WarningBoxPlaces places = PlaceWarningBox(parts);
    EXPECT_TRUE(places.check.IsRectEmpty());
    EXPECT_EQ(70, places.button.top);
    EXPECT_EQ(104, places.client.cy);
}

TEST(WarningBox, AWideButtonWidensIt)
{
    WarningBoxParts parts = Parts();
    parts.text = parts.check = CSize(0, 0);
    parts.button = CSize(80, 24);
    const WarningBoxPlaces places = PlaceWarningBox(parts);
    EXPECT_EQ(104, places.client.cx);
    EXPECT_EQ(12, places.button.left);
}

TEST(WarningBox, TextsTakeAPartOfTheWorkAreaAtMost)
{
    EXPECT_EQ(700, vorn::WarningTextWidth(700, 1280));
    EXPECT_EQ(480, vorn::WarningTextWidth(700, 800));
    EXPECT_EQ(614, vorn::WarningTextHeight(1024));
}
