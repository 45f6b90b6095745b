#include "tests/support/ScratchKey.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

using namespace vorn::test;

namespace
{

constexpr const char* kAppKey = "Software\\Vornwald\\VornToolTest";

// The degree sign in UTF-8.
const std::string kDegree = "\xC2\xB0";

// The tests' own application has no settings before and after each test.
class FormatTool : public testing::Test
{
protected:
    static void Choose(const std::string& section, const char* key, DWORD value)
    {
        ASSERT_EQ(RegSetKeyValueA(HKEY_CURRENT_USER, (kAppKey + ("\\" + section)).c_str(), key, REG_DWORD, &value,
                                  sizeof value),
                  ERROR_SUCCESS);
    }

    static std::vector<std::string> Words(std::vector<std::string> words)
    {
        words.insert(words.begin(), "format");
        words.insert(words.end(), {"--app", "VornToolTest"});
        return words;
    }

    ScratchKey m_settings{HKEY_CURRENT_USER, kAppKey};
};

} // namespace

TEST_F(FormatTool, PositionsHaveMinutesWithOneDecimalUnlessChosen)
{
    ExpectDone(Words({"lat", "47.5", "-33.999999"}), "N 47" + kDegree + " 30.0'\nS 34" + kDegree + " 00.0'\n");
    ExpectDone(Words({"lon", "-122.25", "5", "-0.0"}),
               "W122" + kDegree + " 15.0'\nE 05" + kDegree + " 00.0'\nE 00" + kDegree + " 00.0'\n");
}

TEST_F(FormatTool, PositionsFollowTheUsersChoices)
{
    Choose("General", "Show seconds", 1);
    Choose("General", "LatLonPrecSeconds", 2);
    Choose("General", "LatLonPrecMinutes", 5);
    ExpectDone(Words({"lat", "47.5"}), "N 47" + kDegree + " 30' 00.00\n");
}

TEST_F(FormatTool, OptionsGoBeforeTheUsersChoicesAndStoreNothing)
{
    ExpectDone(Words({"lat", "47.5", "--seconds", "--decimals", "3"}), "N 47" + kDegree + " 30' 00.000\n");
    ExpectDone(Words({"lat", "47.5", "--decimals=0"}), "N 47" + kDegree + " 030'\n");
    EXPECT_FALSE(m_settings.Exists());
    Choose("General", "LatLonPrecSeconds", 2);
    ExpectDone(Words({"lon", "0.5", "--seconds", "--decimals", "0"}), "E 00" + kDegree + " 30' 000\n");
    ExpectDone(Words({"lon", "0.5", "--seconds"}), "E 00" + kDegree + " 30' 00.00\n");
}

TEST_F(FormatTool, CoursesAndVariations)
{
    ExpectDone({"format", "course", "5", "359.6", "-5"}, "005\n360\n-05\n");
    ExpectDone({"format", "course", "--variation", "5", "-12.4"}, "E 005\nW 012\n");
}

TEST_F(FormatTool, AltitudesFollowTheUsersUnit)
{
    ExpectDone(Words({"alt", "1500", "18000", "-5000", "-4995"}), "1500 FT\n18000 FT\nUnknown\nNot Established\n");
    Choose("Units", "ShortDist", 4); // meters
    ExpectDone(Words({"alt", "1000"}), "305 M\n");
}

TEST_F(FormatTool, FlightLevelsFollowTheUsersTransitionAltitude)
{
    ExpectDone(Words({"fl", "18000", "17999", "18050", "-4998"}), "FL180\n17999 FT\n18050 FT\nMSL\n");
    Choose("Altitude", "Flight Level", 5000);
    ExpectDone(Words({"fl", "5000", "4900"}), "FL050\n4900 FT\n");
}

TEST_F(FormatTool, DurationsInDigitsAndWords)
{
    ExpectDone({"format", "time", "1.5", "0.999", "-1.5"}, "01:30\n01:00\n-1:-30\n");
    ExpectDone({"format", "time", "1.5", "0.999", "--seconds"}, "01:30:00\n00:59:56\n");
    ExpectDone({"format", "time", "1", "2.5", "--words"}, "1 Hour 0 Minutes\n2 Hours 30 Minutes\n");
}

TEST_F(FormatTool, DatesOfMomentsInEveryForm)
{
    ExpectDone({"format", "date", "2024-02-29", "2460370.25", "@0", "2024-12-31T23:59:59Z"},
               "Thursday, 29 February 2024\nThursday, 29 February 2024\nThursday, 01 January 1970\n"
               "Tuesday, 31 December 2024\n");
    ExpectDone({"format", "date", "2024-02-29T12:34:56", "--short"}, "29 Feb 2024\n");
}

TEST_F(FormatTool, DatesInTheUsersFormAreTheSystemsOwn)
{
    const SYSTEMTIME day = {2024, 2, 4, 29, 12, 34, 56, 0};
    wchar_t wide[128];
    ASSERT_GT(GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &day, nullptr, wide, 128), 0);
    char text[384];
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    ExpectDone({"format", "date", "2024-02-29T12:34:56", "--short", "--locale"}, std::string(text) + "\n");
    ExpectDone({"format", "date", "2024-02-29T12:34:56", "--short", "--time"}, std::string(text) + " 12:34:56\n");
}

TEST_F(FormatTool, JsonNamesEveryValueAndMarksThoseWithoutText)
{
    const ToolRun run = RunVornTool(Words({"lat", "47.5", "1e10", "--json"}));
    EXPECT_EQ(run.status, 1u);
    EXPECT_EQ(run.text,
              "[{\"value\":\"47.5\",\"text\":\"N 47" + kDegree + " 30.0'\"},{\"value\":\"1e10\",\"text\":null}]\n");
    EXPECT_EQ(run.errors, "vorntool format lat: '1e10' is out of range: it has no text\n");
}

TEST_F(FormatTool, MomentsWithoutTextsAreRefused)
{
    for (const char* moment : {"1969-12-31", "3001-01-02", "2440580.5", "0", "1e30", "@-1"})
    {
        ExpectFailure({"format", "date", moment}, 1,
                      std::string("vorntool format date: '") + moment + "' is out of range: it has no text");
    }
}

TEST_F(FormatTool, WhatIsNoValueIsWrongUse)
{
    ExpectFailure({"format", "lat", "47.5", "north"}, 2, "vorntool format lat: 'north' is no number");
    ExpectFailure({"format", "lon", "nan"}, 2, "vorntool format lon: 'nan' is no number");
    ExpectFailure({"format", "alt", "1.5"}, 2,
                  "vorntool format alt: '1.5' is no whole number of feet that fits 32 bits");
    ExpectFailure({"format", "fl", "2147483648"}, 2,
                  "vorntool format fl: '2147483648' is no whole number of feet that fits 32 bits");
    ExpectFailure({"format", "date", "29.02.2024"}, 2,
                  "vorntool format date: '29.02.2024' is no moment; 'vorntool format date --help' says what is one");
    ExpectFailure({"format", "lat", "1", "--decimals", "101"}, 2,
                  "vorntool format lat: --decimals takes a number from 0 to 100");
    ExpectFailure({"format", "lat", "1", "--app", ""}, 2,
                  "vorntool format lat: '' cannot be the name of an application");
    ExpectFailure({"format", "lat"}, 2, "vorntool format lat: DEGREES is missing; see 'vorntool format lat --help'");
    ExpectFailure({"format", "time", "1", "--decimals", "1"}, 2,
                  "vorntool format time: unknown option '--decimals'; see 'vorntool format time --help'");
}
