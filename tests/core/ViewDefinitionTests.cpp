#include "family/VornChart/core/ViewDefinition.h"
#include "tests/core/ProjectionCases.h"

#include <random>

using namespace vorn::test;

namespace
{
constexpr const char* kDefault = "v1|1|0|0|0|0|0|0|180|0|25|0|";

/// Whether a text is refused and leaves a view as it was.
bool Refuses(const char* text)
{
    ViewDefinition view;
    EXPECT_TRUE(view.Parse("v1|3|1|71|1|2|3|4|5|6|7|8|9|"));
    const CString before = view.Format();
    return !view.Parse(text) && view.Format() == before;
}
} // namespace

TEST(ViewDefinition, ANewViewIsTheDefaultText)
{
    const ViewDefinition view;
    EXPECT_STREQ(view.Format(), kDefault);
    EXPECT_STREQ(view.Key(), "");
}

TEST(ViewDefinition, FieldsComeInTheirOrder)
{
    ViewDefinition view;
    ASSERT_TRUE(view.Parse("v1|5|2|2.5|7|10|20|30|40|50|60|70|80|90|"));
    EXPECT_EQ(view.mProjection, 5);
    EXPECT_EQ(view.mParams, (std::vector<double>{2.5, 7}));
    EXPECT_EQ(view.mLogX, 10);
    EXPECT_EQ(view.mLogY, 20);
    EXPECT_EQ(view.mMapX, 30);
    EXPECT_EQ(view.mMapY, 40);
    EXPECT_EQ(view.mScale, 50);
    EXPECT_EQ(view.mSeamLon, 60);
    EXPECT_EQ(view.mSkew, 70);
    EXPECT_EQ(view.mCenterLat, 80);
    EXPECT_EQ(view.mCenterLon, 90);
    EXPECT_STREQ(view.Format(), "v1|5|2|2.5|7|10|20|30|40|50|60|70|80|90|");
    ASSERT_TRUE(view.Parse(kDefault));
    EXPECT_TRUE(view.mParams.empty());
    EXPECT_STREQ(view.Format(), kDefault);
}

TEST(ViewDefinition, TakesNumbersInEveryDecimalForm)
{
    ViewDefinition view;
    ASSERT_TRUE(view.Parse("v1|0|1|-1.5e2|1e-3|.5|5.|-0.25|1E3|0180|-0|2.5e+1|1e308|"));
    EXPECT_EQ(view.mParams[0], -150);
    EXPECT_EQ(view.mLogX, 0.001);
    EXPECT_EQ(view.mLogY, 0.5);
    EXPECT_EQ(view.mMapX, 5);
    EXPECT_EQ(view.mMapY, -0.25);
    EXPECT_EQ(view.mScale, 1000);
    EXPECT_EQ(view.mSeamLon, 180);
    EXPECT_EQ(view.mCenterLat, 25);
    EXPECT_EQ(view.mCenterLon, 1e308);
}

TEST(ViewDefinition, TakesProjectionsThatAreNotThereAndUpTo64Parameters)
{
    ViewDefinition view;
    EXPECT_TRUE(view.Parse("v1|2147483647|0|0|0|0|0|0|180|0|25|0|"));
    EXPECT_EQ(view.mProjection, 2147483647);
    std::string most = "v1|1|64|";
    std::string tooMany = "v1|1|65|";
    for (int i = 0; i < 64; ++i)
    {
        most += "1|";
        tooMany += "1|";
    }
    most += "0|0|0|0|0|180|0|25|0|";
    tooMany += "1|0|0|0|0|0|180|0|25|0|";
    EXPECT_TRUE(view.Parse(most.c_str()));
    EXPECT_EQ(view.mParams.size(), 64U);
    EXPECT_STREQ(view.Format(), most.c_str());
    EXPECT_TRUE(Refuses(tooMany.c_str()));
}

TEST(ViewDefinition, RefusesEverythingElseAndKeepsItsState)
{
    const char* const texts[] = {nullptr,
                                 "",
                                 "|",
                                 "v1",
                                 "v1|",
                                 "v2|1|0|0|0|0|0|0|180|0|25|0|",
                                 "V1|1|0|0|0|0|0|0|180|0|25|0|",
                                 " v1|1|0|0|0|0|0|0|180|0|25|0|",
                                 "v1|-1|0|0|0|0|0|0|180|0|25|0|",
                                 "v1|-0|0|0|0|0|0|0|180|0|25|0|",
                                 "v1|2147483648|0|0|0|0|0|0|180|0|25|0|",
                                 "v1|1.5|0|0|0|0|0|0|180|0|25|0|",
                                 "v1||0|0|0|0|0|0|180|0|25|0|",
                                 "v1|1|-1|0|0|0|0|0|180|0|25|0|",
                                 "v1|1|99999999999|0|0|0|0|0|180|0|25|0|",
                                 "v1|1|1|0|0|0|0|0|180|0|25|0|",   // a number less than it says
                                 "v1|1|0|0|0|0|0|0|180|0|25|0",    // the last without its end
                                 "v1|1|0|0|0|0|0|0|180|0|25|",     // one missing
                                 "v1|1|0|0|0|0|0|0|180|0|25|0|0|", // one too many
                                 "v1|1|0|0|0|0|0|0|180|0|25|0| ",
                                 "v1|1|0|0|0||0|0|180|0|25|0|",
                                 "v1|1|0|0|0|0|0|0|180|0|25|1e999|",
                                 "v1|1|0|0|0|0|0|0|180|0|25|inf|",
                                 "v1|1|0|0|0|0|0|0|180|0|25|nan|",
                                 "v1|1|0|0|0|0|0|0|180|0|25|0x10|",
                                 "v1|1|0|0|0|0|0|0|180|0|25|1,5|",
                                 "v1|1|0|0|0|0|0|0|180|0|25|+1|",
                                 "v1|1|0|0|0|0|0|0|180|0|25| 1|",
                                 "v1|1|0|0|0|0|0|0|180|0|25|1x|"};
    for (const char* text : texts)
    {
        EXPECT_TRUE(Refuses(text)) << (text ? text : "null");
    }
}

TEST(ViewDefinition, WhatItWritesItReadsToTheLastBit)
{
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> numbers(-1000, 1000);
    for (int i = 0; i < 500; ++i)
    {
        ViewDefinition view;
        view.mProjection = i;
        view.mParams.assign(static_cast<std::size_t>(i % 5), numbers(random) / 3);
        view.mMapX = numbers(random) * 1e-9;
        view.mScale = numbers(random) * 1e12;
        view.mCenterLat = numbers(random);
        ViewDefinition again;
        ASSERT_TRUE(again.Parse(view.Format())) << view.Format().GetString();
        EXPECT_EQ(again.mParams, view.mParams);
        EXPECT_EQ(again.mMapX, view.mMapX);
        EXPECT_EQ(again.mScale, view.mScale);
        EXPECT_EQ(again.mCenterLat, view.mCenterLat);
        EXPECT_EQ(again.Format(), view.Format());
    }
}

TEST(ViewDefinition, MembersThatNoTextCanHoldAreWrittenAsOnesThatItCan)
{
    ViewDefinition view;
    view.mProjection = -5;
    view.mParams.assign(70, kNoNumber);
    view.mScale = kEndless;
    ViewDefinition again;
    ASSERT_TRUE(again.Parse(view.Format()));
    EXPECT_EQ(again.mProjection, 0);
    EXPECT_EQ(again.mParams, std::vector<double>(64, 0));
    EXPECT_EQ(again.mScale, 0);
}

TEST(ViewDefinition, TheKeyIsANameOfItsOwn)
{
    ViewDefinition view;
    view.LoadKey("Last view");
    EXPECT_STREQ(view.Key(), "Last view");
    EXPECT_STREQ(view.Format(), kDefault);
    EXPECT_TRUE(view.Parse("v1|2|0|0|0|0|0|0|180|0|25|0|"));
    EXPECT_STREQ(view.Key(), "Last view");
    const ViewDefinition copy = view;
    EXPECT_STREQ(copy.Key(), "Last view");
    EXPECT_EQ(copy.mProjection, 2);
    view.LoadKey(nullptr);
    EXPECT_STREQ(view.Key(), "");
}

TEST(ViewDefinition, SetsUpAProjection)
{
    ViewDefinition view;
    ASSERT_TRUE(view.Parse("v1|2|2|-20|-40|0|0|0|0|0|180|15|-30|135|"));
    const auto projection = MakeProjection(view.mProjection);
    ASSERT_TRUE(view.ApplyTo(*projection));
    EXPECT_EQ(projection->GetParamValue(0), -20);
    EXPECT_EQ(projection->GetParamValue(1), -40);
    EXPECT_EQ(projection->GetSkew(), 15);
    EXPECT_EQ(OnMap(*projection, -30, 135).x, 0);
    EXPECT_EQ(OnMap(*projection, -30, 135).y, 0);
    view.mParams.push_back(9); // more than the projection has
    EXPECT_TRUE(view.ApplyTo(*projection));
    view.mParams = {100};
    EXPECT_FALSE(view.ApplyTo(*projection));
}

TEST(ViewDefinition, ACylindricalMapIsCutAtTheSeam)
{
    ViewDefinition view;
    view.mSeamLon = 30;
    view.mCenterLat = 10;
    view.mCenterLon = 170;
    const auto mercator = MakeProjection(PROJECTION_MERCATOR);
    ASSERT_TRUE(view.ApplyTo(*mercator));
    EXPECT_EQ(OnMap(*mercator, 10, -150).x, 0);
    EXPECT_GT(OnMap(*mercator, 10, 29).x, 3);
    EXPECT_LT(OnMap(*mercator, 10, 31).x, -3);
    double lat = 0;
    double lon = 0;
    mercator->GetCenterLatLon(lat, lon);
    EXPECT_EQ(lat, 10);
    EXPECT_EQ(lon, 170);
    const auto globe = MakeProjection(PROJECTION_ORTHOGRAPHIC);
    ASSERT_TRUE(view.ApplyTo(*globe));
    EXPECT_NEAR(OnMap(*globe, 10, 170).x, 0, 1e-16);
}
