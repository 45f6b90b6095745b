#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Utf8.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vorn::tool;

namespace
{

std::string Quoted(std::string_view text)
{
    std::string line = JsonWriter().Text(text).Line();
    line.pop_back();
    return line;
}

} // namespace

TEST(JsonWriter, SetsCommasColonsAndBrackets)
{
    JsonWriter json;
    json.BeginObject().Name("a").Whole(1).Name("list").BeginArray().Text("x").Flag(true).Null().BeginArray().EndArray();
    json.BeginObject().EndObject().EndArray().Name("b").Number(2.5).EndObject();
    EXPECT_EQ(json.Line(), "{\"a\":1,\"list\":[\"x\",true,null,[],{}],\"b\":2.5}\n");
}

TEST(JsonWriter, EscapesWhatJsonForbidsInTexts)
{
    EXPECT_EQ(Quoted("say \"hi\""), "\"say \\\"hi\\\"\"");
    EXPECT_EQ(Quoted("C:\\Vornwald\\"), "\"C:\\\\Vornwald\\\\\"");
    EXPECT_EQ(Quoted("a\nb\rc\td"), "\"a\\nb\\rc\\td\"");
    EXPECT_EQ(Quoted(std::string("\0\x01\x1f\x7f", 4)), "\"\\u0000\\u0001\\u001f\\u007f\"");
    EXPECT_EQ(Quoted("/ stays"), "\"/ stays\"");
}

TEST(JsonWriter, KeepsUtf8AndReplacesOtherBytes)
{
    EXPECT_EQ(Quoted("\xC2\xB0"
                     "F \xE2\x82\xAC \xF0\x9F\x9B\xA9"),
              "\"\xC2\xB0"
              "F \xE2\x82\xAC \xF0\x9F\x9B\xA9\"");
    EXPECT_EQ(Quoted("a\xB0"
                     "b"),
              "\"a\xEF\xBF\xBD"
              "b\"");
}

TEST(JsonWriter, NumbersReadBackAsTheyWere)
{
    EXPECT_EQ(JsonWriter().Number(18.52).Line(), "18.52\n");
    EXPECT_EQ(JsonWriter().Number(0.1).Line(), "0.1\n");
    EXPECT_EQ(JsonWriter().Number(1.0 / 3).Line(), "0.3333333333333333\n");
    EXPECT_EQ(JsonWriter().Number(-40).Line(), "-40\n");
    EXPECT_EQ(JsonWriter().Number(1e300).Line(), "1e+300\n");
    EXPECT_EQ(JsonWriter().Whole(std::numeric_limits<std::int64_t>::min()).Line(), "-9223372036854775808\n");
}

TEST(JsonWriter, WhatIsNoNumberIsNull)
{
    EXPECT_EQ(JsonWriter().Number(std::nan("")).Line(), "null\n");
    EXPECT_EQ(JsonWriter().Number(-std::numeric_limits<double>::infinity()).Line(), "null\n");
}

TEST(ValidUtf8, KeepsTheFirstAndLastOfEveryLength)
{
    for (const char* text : {"\x01", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                             "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
    {
        EXPECT_EQ(ValidUtf8(text), text);
    }
}

TEST(ValidUtf8, ReplacesEveryByteOfWhatIsNoSequence)
{
    const std::string mark = "\xEF\xBF\xBD";
    EXPECT_EQ(ValidUtf8("\x80"), mark);
    EXPECT_EQ(ValidUtf8("\xC0\xAF"), mark + mark);            // overlong
    EXPECT_EQ(ValidUtf8("\xE0\x9F\xBF"), mark + mark + mark); // overlong
    EXPECT_EQ(ValidUtf8("\xED\xA0\x80"), mark + mark + mark); // surrogate
    EXPECT_EQ(ValidUtf8("\xF4\x90\x80\x80"), mark + mark + mark + mark);
    EXPECT_EQ(ValidUtf8("\xF5"), mark);
    EXPECT_EQ(ValidUtf8("x\xE2\x82"), "x" + mark + mark); // cut off
    EXPECT_EQ(ValidUtf8("\xC3y"), mark + "y");
}

TEST(Utf8, CountsCharactersNotBytes)
{
    EXPECT_EQ(CharacterCount(""), 0u);
    EXPECT_EQ(CharacterCount("abc"), 3u);
    EXPECT_EQ(CharacterCount("\xC2\xB0"
                             "C \xE2\x82\xAC"),
              4u);
}

TEST(Utf8, OneLineShowsControlCharacters)
{
    EXPECT_EQ(OneLine("a\nb\rc\td\x1b\x7f"), "a\\nb\\rc\\td\\x1b\\x7f");
    EXPECT_EQ(OneLine("C:\\x \xC2\xB0"), "C:\\x \xC2\xB0");
}
