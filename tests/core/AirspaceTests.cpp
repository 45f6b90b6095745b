#include "aviation/core/Airspace.h"

#include <gtest/gtest.h>

#include <climits>

using namespace vorn;

TEST(AirspaceTypeText, NamesEveryCode)
{
    constexpr const char* names[] = {"Unknown",
                                     "Airport Radar Service Area",
                                     "Air Traffic Zone",
                                     "Class A Airspace",
                                     "Class B Airspace",
                                     "Class C Airspace",
                                     "Class D Airspace",
                                     "Class E Airspace",
                                     "Class F Airspace",
                                     "Class G Airspace",
                                     "Multi-Class Airspace",
                                     "Control Area (Airport)",
                                     "Control Area (Non-Airport)",
                                     "Control Zone (CTZ/CTR)",
                                     "Helicopter Protected Zone",
                                     "Helicopter Traffic Zone",
                                     "Military Air Traffic Zone",
                                     "Military Control Zone",
                                     "Military Terminal Area",
                                     "Oceanic Control Area (Non-Airport)",
                                     "Radar (Zone or Area) (RRZ/RRA)",
                                     "Special Rules Area",
                                     "Special Rules Zone",
                                     "Terminal Control Area",
                                     "Terminal Area",
                                     "Terminal Radar Service Area",
                                     "Traffic Information Zone",
                                     "Upper Control Area",
                                     "Upper Control Area (Non-Airport)",
                                     "Positive Control Area",
                                     "Traffic Information Area"};
    for (int type = 0; type <= 30; ++type)
        EXPECT_EQ(AirspaceTypeText(type), names[type]) << type;
}

TEST(AirspaceTypeText, SaysUnSpecifiedForAnyOther)
{
    for (const int type : {INT_MIN, -1, 31, 32, INT_MAX})
        EXPECT_EQ(AirspaceTypeText(type), "UnSpecified") << type;
}
