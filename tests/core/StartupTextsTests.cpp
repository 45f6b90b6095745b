#include "toolkit/startup/core/StartupTexts.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vorn;

TEST(StartupTexts, ANameThatWasNotGivenIsAskedFor)
{
    EXPECT_STREQ("Application name goes here", ProductName(nullptr));
    EXPECT_STREQ("", ProductName(""));
    EXPECT_STREQ("Testplane", ProductName("Testplane"));
}

TEST(StartupTexts, NameTheApplicationInPlaceOfTheDefaultProduct)
{
    EXPECT_STREQ("Testplane and Testplane", NamedFor("Mapvane and Mapvane", "Testplane"));
    EXPECT_STREQ("Mapvane", NamedFor("Mapvane", "Mapvane"));
    EXPECT_STREQ("Mapvane Pro!", NamedFor("Mapvane!", "Mapvane Pro")) << "once only";
    EXPECT_STREQ("mapvane", NamedFor("mapvane", "Testplane")) << "case counts";
    EXPECT_STREQ(" is an aid", NamedFor("Mapvane is an aid", ""));
    EXPECT_STREQ("", NamedFor("", "Testplane"));
}

TEST(StartupTexts, WelcomeIsFollowedByTheName)
{
    EXPECT_STREQ("Welcome to Testplane", WelcomeText("Testplane"));
    EXPECT_STREQ("Welcome to ", WelcomeText(""));
    EXPECT_STREQ("Welcome to 100%s & more", WelcomeText("100%s & more"));
}

TEST(StartupTexts, CopyrightHasTheYearsAndTheOwner)
{
    EXPECT_STREQ("Copyright \xA9 1990-2004 Vornwald. All rights reserved.", CopyrightText(1990, 2004));
    EXPECT_STREQ("Copyright \xA9 2026-2026 Vornwald. All rights reserved.", CopyrightText(2026, 2026));
}

TEST(StartupTexts, CaptionHasTheYearsBehindTheName)
{
    EXPECT_STREQ("Testplane (1990-2004)", CaptionText("Testplane", 1990, 2004));
    EXPECT_STREQ(" (1990-2004)", CaptionText("", 1990, 2004));
}

TEST(StartupTexts, DatesAreShownForAVersionAlone)
{
    EXPECT_TRUE(ShowsDates(1.0F));
    EXPECT_TRUE(ShowsDates(-1.5F));
    EXPECT_TRUE(ShowsDates(std::numeric_limits<float>::denorm_min()));
    EXPECT_TRUE(ShowsDates(std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(ShowsDates(0.0F));
    EXPECT_FALSE(ShowsDates(-0.0F));
    EXPECT_FALSE(ShowsDates(std::numeric_limits<float>::quiet_NaN()));
}

TEST(StartupTexts, LabelsArePaddedSoThatDatesLineUp)
{
    EXPECT_STREQ("Coverage:      North America", CoverageLine("North America"));
    EXPECT_STREQ("Effective:       Thursday", EffectiveLine("Thursday"));
    EXPECT_STREQ("Expired:          Thursday", ExpiryLine("Thursday", true));
    EXPECT_STREQ("Expires:          Thursday", ExpiryLine("Thursday", false));
    EXPECT_STREQ("Next Update: Thursday", NextUpdateLine("Thursday"));
    EXPECT_STREQ("Coverage:      ", CoverageLine(""));
    EXPECT_STREQ("Expires:          ", ExpiryLine("", false));
}

TEST(StartupTexts, FolderOfAProgramEndsInItsLastBackslash)
{
    EXPECT_STREQ("C:\\Vornwald\\Update\\", FolderOfProgram("C:\\Vornwald\\Update\\get.exe"));
    EXPECT_STREQ("C:\\", FolderOfProgram("C:\\get.exe"));
    EXPECT_STREQ("", FolderOfProgram("get.exe"));
    EXPECT_STREQ("", FolderOfProgram("a/b/get.exe"));
    EXPECT_STREQ("", FolderOfProgram(""));
}

TEST(StartupTexts, ShellsResultIsTheErrorWhereItStandsForOne)
{
    for (const int result : {2, 3, 5, 8})
    {
        EXPECT_EQ(static_cast<std::uint32_t>(result), StartErrorCode(result, 267)) << result;
    }
    EXPECT_EQ(1155U, StartErrorCode(31, 1155)) << "the shell's 31 is another error of the system";
    EXPECT_EQ(32U, StartErrorCode(26, 32));
    EXPECT_EQ(31U, StartErrorCode(31, 0)) << "never the text of success";
    EXPECT_EQ(14U, StartErrorCode(0, 14));
}

TEST(StartupTexts, FailureEndsInOneLineBreak)
{
    const char* const expected = "Check for updates can not be performed properly at this time.  File not found.\r\n";
    EXPECT_STREQ(expected, StartFailureText("File not found.\r\n"));
    EXPECT_STREQ(expected, StartFailureText("File not found."));
    EXPECT_STREQ(expected, StartFailureText("File not found.\n\r\n"));
    EXPECT_STREQ("Check for updates can not be performed properly at this time.  \r\n", StartFailureText(""));
}
