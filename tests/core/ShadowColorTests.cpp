#include "toolkit/textlayout/core/ShadowColor.h"

#include <gtest/gtest.h>

using vorn::ShadowColor;

namespace
{
constexpr COLORREF kBlack = 0;
constexpr COLORREF kLightGrey = 0xC0C0C0;

constexpr COLORREF Grey(unsigned level)
{
    return level | level << 8 | level << 16;
}
} // namespace

TEST(ShadowColor, IsLightBelowDarkTextsAndBlackBelowLightOnes)
{
    EXPECT_EQ(ShadowColor(Grey(0)), kLightGrey);
    EXPECT_EQ(ShadowColor(Grey(127)), kLightGrey);
    EXPECT_EQ(ShadowColor(Grey(128)), kBlack);
    EXPECT_EQ(ShadowColor(Grey(255)), kBlack);
}

// Weights of 0.299, 0.587 and 0.114: the full channels have lumas of 76, 150 and 29.
TEST(ShadowColor, WeighsTheChannelsAsEyesDo)
{
    EXPECT_EQ(ShadowColor(0x0000FF), kLightGrey) << "red";
    EXPECT_EQ(ShadowColor(0x00FF00), kBlack) << "green";
    EXPECT_EQ(ShadowColor(0xFF0000), kLightGrey) << "blue";
    EXPECT_EQ(ShadowColor(0xFF00FF), kLightGrey) << "red and blue: 105";
    EXPECT_EQ(ShadowColor(0x00D900), kLightGrey) << "127.4";
    EXPECT_EQ(ShadowColor(0x00DB00), kBlack) << "128.6";
}

TEST(ShadowColor, TheTopByteDoesNotCount)
{
    EXPECT_EQ(ShadowColor(0x02000000 | Grey(200)), kBlack);
    EXPECT_EQ(ShadowColor(0xFF000000), kLightGrey);
}
