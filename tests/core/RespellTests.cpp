#include "frame/core/Respell.h"

#include <gtest/gtest.h>

using namespace vorn;

namespace
{

int Never()
{
    return 0;
}

int Always()
{
    return 1;
}

int g_asked = 0;

int EverySecond()
{
    return ++g_asked % 2;
}

constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz";

} // namespace

TEST(Respell, LowersEverythingWhenChanceSaysNo)
{
    EXPECT_EQ(Respell("Hello, WORLD 42!\xC9", Never), "hello, world 42!\xC9");
    EXPECT_EQ(Respell("", Always), "");
}

TEST(Respell, EveryLetterHasOneToThreeCharacters)
{
    for (const char letter : kLetters)
    {
        const std::string_view spelling = RespellingOf(letter);
        EXPECT_GE(spelling.size(), 1U) << letter;
        EXPECT_LE(spelling.size(), 3U) << letter;
        EXPECT_NE(spelling, std::string_view(&letter, 1)) << "a respelling differs from its letter";
    }
}

TEST(Respell, OtherCharactersHaveNoRespelling)
{
    int spelled = 0;
    for (int i = 0; i < 256; ++i)
        spelled += RespellingOf(static_cast<char>(i)).empty() ? 0 : 1;
    EXPECT_EQ(spelled, 26);
    EXPECT_EQ(Respell("123 -\xE9", Always), "123 -\xE9");
}

TEST(Respell, ReplacesEveryLetterWhenChanceSaysYes)
{
    std::string expected;
    for (const char letter : std::string_view("teh"))
        expected += RespellingOf(letter);
    EXPECT_EQ(Respell("Teh", Always), expected);
}

TEST(Respell, AsksOnceForEachLetterInOrder)
{
    g_asked = 0;
    EXPECT_EQ(Respell("A-bC", EverySecond), std::string(RespellingOf('a')) + "-b" + std::string(RespellingOf('c')));
    EXPECT_EQ(g_asked, 3);
}

TEST(Respell, GrowsAtMostThreefold)
{
    const std::string text(1000, 'Z');
    const std::string result = Respell(text, Always);
    EXPECT_GE(result.size(), text.size());
    EXPECT_LE(result.size(), 3 * text.size());
}
