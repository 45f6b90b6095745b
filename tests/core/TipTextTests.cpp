#include "toolkit/tooltips/core/TipText.h"

#include <gtest/gtest.h>

using vorn::TipField;
using vorn::TipWrapWidth;

TEST(TipText, WithoutSeparatorIsOneField)
{
    EXPECT_STREQ("Enter the weight.", TipField("Enter the weight.", 0, '\r'));
    EXPECT_STREQ("", TipField("Enter the weight.", 1, '\r'));
}

TEST(TipText, AtASeparatorBecomesTwo)
{
    const CString text = "Deletes the leg.\rThe legs around it\nare joined.";
    EXPECT_STREQ("Deletes the leg.", TipField(text, 0, '\r'));
    EXPECT_STREQ("The legs around it\nare joined.", TipField(text, 1, '\r'));
    EXPECT_STREQ("", TipField(text, 2, '\r'));
}

TEST(TipText, FieldsMayBeEmpty)
{
    EXPECT_STREQ("", TipField("\rinfo", 0, '\r'));
    EXPECT_STREQ("info", TipField("\rinfo", 1, '\r'));
    EXPECT_STREQ("", TipField("tip\r", 1, '\r'));
    EXPECT_STREQ("", TipField("a;;c", 1, ';'));
    EXPECT_STREQ("c", TipField("a;;c", 2, ';'));
    EXPECT_STREQ("", TipField("", 0, ';'));
    EXPECT_STREQ("", TipField("", 1, ';'));
}

TEST(TipText, OtherIndexesHaveNoField)
{
    EXPECT_STREQ("", TipField("a;b", -1, ';'));
    EXPECT_STREQ("", TipField("a;b", 2, ';'));
    EXPECT_STREQ("", TipField("a;b", 0x7FFFFFFF, ';'));
}

TEST(TipText, ALongTextIsNotCut)
{
    const CString field('x', 2000);
    EXPECT_EQ(field, TipField(field + ";" + field, 1, ';'));
}

TEST(TipWidth, IsUnlimitedForTipsAndNeverForBoxes)
{
    EXPECT_EQ(0, TipWrapWidth(0, false));
    EXPECT_EQ(300, TipWrapWidth(0, true));
    EXPECT_EQ(120, TipWrapWidth(120, false));
    EXPECT_EQ(120, TipWrapWidth(120, true));
    EXPECT_EQ(0, TipWrapWidth(-5, false));
    EXPECT_EQ(300, TipWrapWidth(0, true, 299));
    EXPECT_EQ(340, TipWrapWidth(0, true, 340)) << "a box is as wide as its title";
    EXPECT_EQ(120, TipWrapWidth(120, true, 340));
    EXPECT_EQ(0, TipWrapWidth(0, false, 340));
}
