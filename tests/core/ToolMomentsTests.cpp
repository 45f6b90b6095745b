#include "apps/vorntool/core/Moments.h"

#include <gtest/gtest.h>

using namespace vorn::tool;

namespace
{

constexpr std::int64_t kNow = 1709210096; // 2024-02-29T12:34:56Z

std::optional<std::int64_t> Parse(std::string_view text)
{
    return ParseMoment(text, kNow);
}

} // namespace

TEST(ToolMoments, ReadsDaysWithAndWithoutTimes)
{
    EXPECT_EQ(Parse("1970-01-01"), 0);
    EXPECT_EQ(Parse("2024-02-29"), 1709164800);
    EXPECT_EQ(Parse("2024-02-29Z"), 1709164800);
    EXPECT_EQ(Parse("2024-02-29T12:34"), 1709210040);
    EXPECT_EQ(Parse("2024-02-29 12:34:56"), 1709210096);
    EXPECT_EQ(Parse("2024-02-29t12:34:56z"), 1709210096);
    EXPECT_EQ(Parse("1969-12-31T23:59:59Z"), -1);
    EXPECT_EQ(Parse("0001-01-01"), -62135596800);
    EXPECT_EQ(Parse("9999-12-31T23:59:59"), 253402300799);
}

TEST(ToolMoments, ReadsSecondsAndThePresent)
{
    EXPECT_EQ(Parse("now"), kNow);
    EXPECT_EQ(Parse("@0"), 0);
    EXPECT_EQ(Parse("@-1"), -1);
    EXPECT_EQ(Parse("@253402300799"), 253402300799);
}

TEST(ToolMoments, RefusesEverythingElse)
{
    for (const char* text : {"",
                             "Z",
                             "@",
                             "@x",
                             "@1.5",
                             "@253402300800",
                             "@-62135596801",
                             "@99999999999999999999",
                             "Now",
                             "2024",
                             "2024-02",
                             "2024-2-29",
                             "24-02-29",
                             "2023-02-29",
                             "1900-02-29",
                             "2024-00-01",
                             "2024-13-01",
                             "2024-01-32",
                             "2024-01-00",
                             "0000-01-01",
                             "2024-02-29T",
                             "2024-02-29T24:00",
                             "2024-02-29T12",
                             "2024-02-29T12:60",
                             "2024-02-29T12:34:",
                             "2024-02-29T12:34:60",
                             "2024-02-29T12:34:56.5",
                             "2024-02-29T12:34:56ZZ",
                             "2024-02-29T12:34:56+01:00",
                             " 2024-02-29",
                             "2024-02-29 ",
                             "2024/02/29",
                             "-024-02-29",
                             "2024-02-29Tab:cd"})
    {
        EXPECT_EQ(Parse(text), std::nullopt) << text;
    }
}

TEST(ToolMoments, WritesUniversalTime)
{
    EXPECT_EQ(MomentText(0), "1970-01-01T00:00:00Z");
    EXPECT_EQ(MomentText(kNow), "2024-02-29T12:34:56Z");
    EXPECT_EQ(MomentText(-1), "1969-12-31T23:59:59Z");
    EXPECT_EQ(MomentText(-62135596800), "0001-01-01T00:00:00Z");
}

TEST(ToolMoments, FieldsTellTheWeekday)
{
    EXPECT_EQ(FieldsOf(0).weekday, 4u);    // Thursday
    EXPECT_EQ(FieldsOf(-1).weekday, 3u);   // Wednesday
    EXPECT_EQ(FieldsOf(kNow).weekday, 4u); // Thursday
    EXPECT_EQ(FieldsOf(kNow).second, 56u);
}
