#include "tests/windows/vorntool/ToolProcess.h"

#include <ctime>

using namespace vorn::test;

namespace
{

constexpr double kDay = 86400; // seconds

// A word for the moment so many days from now, and a minute more: printed days do not change while the test runs.
std::string InDays(double days)
{
    const long long moment = std::time(nullptr) + static_cast<long long>(days * kDay) + 60;
    return std::string("@").append(std::to_string(moment));
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

void ExpectCurrency(double days, const std::string& state, const std::string& navigation, const std::string& charts)
{
    const ToolRun run = RunVornTool({"date", InDays(days), "--json"});
    EXPECT_EQ(run.status, 0u) << run.errors;
    EXPECT_TRUE(Contains(run.text, "\"state\":\"" + state + "\"")) << run.text;
    EXPECT_TRUE(Contains(run.text, navigation + "\"},\"charts\"")) << run.text;
    EXPECT_TRUE(Contains(run.text, charts + "\"}}\n")) << run.text;
}

} // namespace

TEST(DateTool, GoesFromTheCalendarToTheJulianDayAndBack)
{
    const ToolRun there = RunVornTool({"date", "2000-01-01T12:00"});
    EXPECT_EQ(there.status, 0u);
    EXPECT_TRUE(Contains(there.text, "Universal Time      2000-01-01T12:00:00Z\nSeconds since 1970  946728000\n"
                                     "Julian day          2451545.00\n"))
        << there.text;
    const ToolRun back = RunVornTool({"date", "2451545.25"});
    EXPECT_EQ(back.status, 0u);
    EXPECT_TRUE(Contains(back.text, "Universal Time      2000-01-01T18:00:00Z\n")) << back.text;
    EXPECT_TRUE(Contains(back.text, "Julian day          2451545.25\n")) << back.text;
}

TEST(DateTool, JulianDaysAreKeptInQuarters)
{
    const ToolRun run = RunVornTool({"date", "2451545.3", "--json"});
    EXPECT_EQ(run.text.find("{\"moment\":\"2000-01-01T18:00:00Z\",\"seconds\":946749600,\"julian\":2451545.25,"), 0u)
        << run.text;
}

TEST(DateTool, TellsValidLateAndExpired)
{
    ExpectCurrency(2.5, "valid", "  (2.5 days)\",\"colour\":\"#000000", " (2.5 days)\",\"colour\":\"#000000");
    ExpectCurrency(-3, "late", "  (3.0 days ago)\",\"colour\":\"#ff0000", " Late: 3.0 days\",\"colour\":\"#b22222");
    ExpectCurrency(-10, "expired", "  (10.0 days ago)\",\"colour\":\"#ff0000",
                   " LATE: 10.0 days\",\"colour\":\"#ff0000");
}

TEST(DateTool, PrintsTextsOfEffectAndExpiry)
{
    const ToolRun run = RunVornTool({"date", "2100-03-01T00:00"});
    EXPECT_TRUE(Contains(run.text, "State               valid\nEffective           Monday March 01 2100\n"
                                   "Expiry              00:00Z Monday March 01 2100  ("))
        << run.text;
    EXPECT_TRUE(Contains(run.text, "Charts effective    Monday March 01 2100\n"
                                   "Charts expiry       00:00Z Monday March 01 2100 ("))
        << run.text;
}

TEST(DateTool, TheFirstMomentOfAllIsUnset)
{
    const ToolRun run = RunVornTool({"date", "@0"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_TRUE(Contains(run.text, "State               unset\nEffective           -\nExpiry              -\n"));
    EXPECT_TRUE(Contains(run.text, "Charts effective    Thursday January 01 1970\nCharts expiry       -\n"));
}

TEST(DateTool, NowIsNow)
{
    const ToolRun run = RunVornTool({"date", "now"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_TRUE(Contains(run.text, "0.0 days")) << run.text;
}

TEST(DateTool, RefusesMomentsWithoutTextsAndWordsThatAreNone)
{
    for (const char* word : {"1969-12-31T23:59:59", "3001-01-02", "0", "2440580.5", "-2451545", "1e38"})
    {
        ExpectFailure({"date", word}, 1, "vorntool date: '" + std::string(word) + "' is no moment from 1970 to 3000");
    }
    for (const char* word : {"", "tomorrow", "2023-02-29", "1e39", "12:34"})
    {
        ExpectFailure({"date", word}, 2,
                      "vorntool date: '" + std::string(word) +
                          "' is no moment; 'vorntool date --help' says what is one");
    }
    ExpectFailure({"date"}, 2, "vorntool date: MOMENT is missing; see 'vorntool date --help'");
    ExpectFailure({"date", "2024-02-29", "12:34"}, 2,
                  "vorntool date: '12:34' is one argument too many; see 'vorntool date --help'");
}
