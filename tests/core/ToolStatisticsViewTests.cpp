#include "apps/vorntool/core/StatisticsView.h"

#include <gtest/gtest.h>

#include <limits>

using vorn::tool::StatisticsView;

TEST(ToolStatisticsView, ShowsFactsAndCounters)
{
    EXPECT_EQ(TextOf(StatisticsView{1709210096, {5, 0, -2}, true}), "Start     2024-02-29T12:34:56Z\n"
                                                                    "Counters  3\n"
                                                                    "Counted   3\n"
                                                                    "File      whole\n"
                                                                    "\n"
                                                                    "0  5\n"
                                                                    "1  0\n"
                                                                    "2  -2\n");
}

TEST(ToolStatisticsView, SaysWhatIsMissing)
{
    EXPECT_EQ(TextOf(StatisticsView{0, {}, false}), "Start     -\n"
                                                    "Counters  0\n"
                                                    "Counted   0\n"
                                                    "File      damaged: not as long as its count says\n");
}

TEST(ToolStatisticsView, AddsUpCountersWithoutOverflow)
{
    constexpr long kMost = std::numeric_limits<std::int32_t>::max();
    EXPECT_NE(TextOf(StatisticsView{1, {kMost, kMost}, true}).find("Counted   4294967294\n"), std::string::npos);
}

TEST(ToolStatisticsView, NamesStartsThatNoCalendarHasBySeconds)
{
    EXPECT_EQ(vorn::tool::StartText(1), "1970-01-01T00:00:01Z");
    EXPECT_EQ(vorn::tool::StartText(-1), "1969-12-31T23:59:59Z");
    EXPECT_EQ(vorn::tool::StartText(253402300799), "9999-12-31T23:59:59Z");
    EXPECT_EQ(vorn::tool::StartText(253402300800), "@253402300800");
    EXPECT_EQ(vorn::tool::StartText(std::numeric_limits<std::int64_t>::min()), "@-9223372036854775808");
    EXPECT_EQ(vorn::tool::StartText(0), "");
}

TEST(ToolStatisticsView, IsOneLineOfJson)
{
    EXPECT_EQ(JsonOf(StatisticsView{1709210096, {5, -2}, true}, "use.stat"),
              "{\"file\":\"use.stat\",\"start\":\"2024-02-29T12:34:56Z\",\"seconds\":1709210096,\"whole\":true,"
              "\"counters\":[5,-2]}\n");
    EXPECT_EQ(JsonOf(StatisticsView{0, {}, false}, "use.stat"),
              "{\"file\":\"use.stat\",\"start\":null,\"seconds\":0,\"whole\":false,\"counters\":[]}\n");
}
