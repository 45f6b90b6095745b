#include "apps/sample/core/MenuLetters.h"

#include <gtest/gtest.h>

namespace
{

TEST(MenuLetters, AreTheFirstFreeOnesOfEachName)
{
    MenuLetters letters;
    for (const char* item : {"Zoom &in\t+", "Zoom &out\t-", "Whole &region", "E&xport..."})
        letters.Take(item);
    EXPECT_EQ(letters.ItemOf("Polar stereographic"), "&Polar stereographic");
    EXPECT_EQ(letters.ItemOf("Transverse Mercator"), "&Transverse Mercator");
    EXPECT_EQ(letters.ItemOf("Orthographic"), "Ort&hographic");
}

TEST(MenuLetters, AreTheSameInBothCases)
{
    MenuLetters letters;
    letters.Take("&Mercator");
    EXPECT_EQ(letters.ItemOf("mE"), "m&E");
    EXPECT_EQ(letters.ItemOf("em"), "em") << "none is free";
}

TEST(MenuLetters, AmpersandsInNamesAreShown)
{
    MenuLetters letters;
    letters.Take("&&a & b&");
    EXPECT_EQ(letters.ItemOf("A&b"), "&A&&b");
    EXPECT_EQ(letters.ItemOf(" & 3"), " && &3");
    EXPECT_EQ(letters.ItemOf(""), "");
}

} // namespace
