#include "aviation/core/Altitude.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

using namespace vorn;

namespace
{

/// A stand-in for the user's unit.
std::string InFeet(int feet)
{
    return std::to_string(feet) + " FT";
}

struct Asked
{
    std::string text;
    int transitions = 0;
    int units = 0;
};

Asked Level(int feet, int transition = 18000)
{
    Asked asked;
    asked.text = LevelOrAltitudeText(
        feet,
        [&]
        {
            ++asked.transitions;
            return transition;
        },
        [&](int f)
        {
            ++asked.units;
            return InFeet(f);
        });
    return asked;
}

} // namespace

TEST(AltitudeText, WritesSpecialCodesAsWords)
{
    const std::vector<std::pair<int, const char*>> words = {
        {-5000, "Unknown"}, {-4999, "Unlimited"}, {-4998, "MSL"},
        {-4997, "Ground"},  {-4996, "By NOTAM"},  {-4995, "Not Established"},
    };
    for (const auto& [code, word] : words)
    {
        EXPECT_EQ(SpecialAltitudeText(code), word);
        EXPECT_EQ(AltitudeText(code, InFeet), word);
        EXPECT_EQ(Level(code).text, word);
        EXPECT_EQ(Level(code, -10000).text, word) << "codes come before levels";
        EXPECT_EQ(Level(code).units, 0) << "codes never reach the converter";
        EXPECT_EQ(Level(code).transitions, 0);
    }
}

TEST(AltitudeText, GivesEveryOtherAltitudeToTheUnit)
{
    for (const int feet : {INT_MIN, -5001, -4994, 0, 1, 17999, INT_MAX})
    {
        EXPECT_EQ(SpecialAltitudeText(feet), "") << feet;
        EXPECT_EQ(AltitudeText(feet, InFeet), InFeet(feet));
    }
}

TEST(LevelOrAltitudeText, WritesLevelsFromTheTransitionOn)
{
    EXPECT_EQ(Level(18000).text, "FL180");
    EXPECT_EQ(Level(41000).text, "FL410");
    EXPECT_EQ(Level(17900).text, "17900 FT");
    EXPECT_EQ(Level(100000).text, "FL1000");
    EXPECT_EQ(Level(5000, 5000).text, "FL050");
}

TEST(LevelOrAltitudeText, ReadsTheTransitionForWholeHundredsOnly)
{
    EXPECT_EQ(Level(17999).text, "17999 FT");
    EXPECT_EQ(Level(17999).transitions, 0);
    EXPECT_EQ(Level(18050).text, "18050 FT");
    EXPECT_EQ(Level(18050).transitions, 0);
    EXPECT_EQ(Level(18000).transitions, 1);
    EXPECT_EQ(Level(17900).transitions, 1);
}

TEST(LevelOrAltitudeText, KeepsTheSignOfLowTransitions)
{
    EXPECT_EQ(Level(-200, -1000).text, "FL-02");
    EXPECT_EQ(Level(0, 0).text, "FL000");
    EXPECT_EQ(Level(-1000, -1000).text, "FL-10");
    EXPECT_EQ(Level(-12300, -20000).text, "FL-123");
}
