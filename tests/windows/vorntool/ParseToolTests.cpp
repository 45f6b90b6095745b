#include "tests/windows/vorntool/ToolProcess.h"

using namespace vorn::test;

namespace
{

// The local time of day of noon, Universal Time, is the base: its date is the same in every zone.
constexpr const char* kBase = "2024-02-29T12:00:56";

void ExpectLocal(const std::string& text, const std::string& clock)
{
    const ToolRun run = RunVornTool({"parse", "hhmm", text, "--base", kBase});
    EXPECT_EQ(run.status, 0u) << run.errors;
    EXPECT_EQ(run.text.find("2024-02-29 " + clock + ":56 local, 2024-"), 0u) << text << ": " << run.text;
}

} // namespace

TEST(ParseTool, TimesAreReadOnTheBaseDayAtItsSecond)
{
    ExpectLocal("745", "07:45");
    ExpectLocal("7:45", "07:45");
    ExpectLocal("0745", "07:45");
    ExpectLocal("12345", "12:34");
    ExpectLocal("at 23h59", "23:59");
    ExpectLocal("-000", "00:00");
}

TEST(ParseTool, TheTimeOfTheBaseItselfIsATimeToo)
{
    const ToolRun base = RunVornTool({"parse", "hhmm", "0000", "--base", kBase});
    ASSERT_EQ(base.status, 0u);
    const std::string midnight = base.text.substr(base.text.find(", ") + 2, 20);
    const ToolRun same = RunVornTool({"parse", "hhmm", "00:00", "--base", midnight});
    EXPECT_EQ(same.status, 0u) << same.errors;
    EXPECT_EQ(same.text, base.text);
}

TEST(ParseTool, WhatIsNoTimeOfDayIsRefused)
{
    for (const char* text : {"", "99", "7", "2400", "2460", "960", "noon", "--", "\xE2\x98\x83"})
    {
        ExpectFailure({"parse", "hhmm", "--base", kBase, "--", text}, 1,
                      "vorntool parse hhmm: '" + std::string(text) + "' is no time of day");
    }
}

TEST(ParseTool, ClampMakesATimeOfAnyText)
{
    const std::pair<const char*, const char*> clamped[] = {{"5", "0005\n"},    {"2400", "0000\n"}, {"2460", "2359\n"},
                                                           {"2430", "2330\n"}, {"1234", "1234\n"}, {"", "0000\n"}};
    for (const auto& [text, result] : clamped)
    {
        ExpectDone({"parse", "hhmm", text, "--clamp"}, result);
    }
    ExpectDone({"parse", "hhmm", "2460", "--clamp", "--json"}, "{\"text\":\"2460\",\"clamped\":\"2359\"}\n");
}

TEST(ParseTool, BasesAreMomentsThatFit32Bits)
{
    for (const char* base : {"tomorrow", "2038-01-19T03:14:08", "1969-12-31", "0"})
    {
        ExpectFailure({"parse", "hhmm", "745", "--base", base}, 2,
                      "vorntool parse hhmm: '" + std::string(base) + "' is no moment from 1970 to 2038");
    }
    EXPECT_EQ(RunVornTool({"parse", "hhmm", "745", "--base", "2038-01-18T03:14:07"}).status, 0u);
}

TEST(ParseTool, NumbersInEveryBase)
{
    ExpectDone({"parse", "base", "10", "16"}, "16\n");
    ExpectDone({"parse", "base", "z", "64"}, "35\n");
    ExpectDone({"parse", "base", "Z", "64"}, "61\n");
    ExpectDone({"parse", "base", "000", "2"}, "0\n");
    ExpectDone({"parse", "base", "-!", "64"}, "4031\n"); // 62 * 64 + 63
    ExpectDone({"parse", "base", "ffffffffffffffff", "16"}, "18446744073709551615\n");
    ExpectDone({"parse", "base", "00ff", "16", "--json"}, "{\"digits\":\"00ff\",\"base\":16,\"value\":\"255\"}\n");
}

TEST(ParseTool, BytesInBase64LowBitsFirst)
{
    ExpectDone({"parse", "base", "H2", "--bytes"}, "ab\n"); // 0xAB: 43 is "H", 2 is left
    ExpectDone({"parse", "base", "00", "--bytes", "--json"}, "{\"digits\":\"00\",\"bytes\":\"00\"}\n");
    for (const char* digits : {"", "H", "HH", "H2~"})
    {
        ExpectFailure({"parse", "base", digits, "--bytes"}, 1,
                      "vorntool parse base: '" + std::string(digits) + "' stands for no whole bytes");
    }
}

TEST(ParseTool, ForeignDigitsAndLargeNumbersAreRefused)
{
    const std::pair<const char*, const char*> refused[] = {
        {"g", "16"}, {"2", "2"}, {"F", "16"}, {"", "10"}, {" 1", "10"}, {"~", "64"}, {"10000000000000000", "16"}};
    for (const auto& [digits, base] : refused)
    {
        ExpectFailure({"parse", "base", digits, base}, 1,
                      "vorntool parse base: '" + std::string(digits) + "' is no number of 64 bits in base " + base);
    }
}

TEST(ParseTool, BasesOutsideTheirRangeAreWrongUse)
{
    for (const char* base : {"1", "65", "-2", "ten", ""})
    {
        ExpectFailure({"parse", "base", "1", base}, 2,
                      "vorntool parse base: '" + std::string(base) + "' is no base from 2 to 64");
    }
    ExpectFailure({"parse", "base", "1"}, 2, "vorntool parse base: BASE is missing");
    ExpectFailure({"parse", "base", "1", "64", "--bytes"}, 2,
                  "vorntool parse base: --bytes goes without a BASE: it is 64");
}
