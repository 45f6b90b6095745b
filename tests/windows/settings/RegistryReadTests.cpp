#include "config/AppRegData.h"
#include "tests/windows/settings/ScratchSettings.h"

#include <climits>

using namespace vorn::test;

namespace
{
class RegistryRead : public ScratchSettings
{
protected:
    RegistryRead()
    {
        record.SetModName(app().c_str());
    }

    std::string text(const char* section, const char* key, const char* otherwise = "default")
    {
        return record.ReadVornString(section, key, otherwise).GetString();
    }

    int number(const char* section, const char* key, int otherwise = -77)
    {
        return record.ReadVornInt(section, key, otherwise);
    }

    AppRegData record;
};
} // namespace

TEST_F(RegistryRead, FindsTextsAndNumbersUnderTheUsersKey)
{
    put("General", "Name", rawText("Denver"));
    put("General", "Level", rawNumber(18000));
    EXPECT_EQ(text("General", "Name"), "Denver");
    EXPECT_EQ(number("General", "Level"), 18000);
}

TEST_F(RegistryRead, IgnoresTheMachinesKey)
{
    put("General", "Name", rawText("Denver"), HKEY_LOCAL_MACHINE);
    EXPECT_EQ(text("General", "Name"), "default");
}

TEST_F(RegistryRead, FallsBackToTheDefault)
{
    EXPECT_EQ(text("General", "Name"), "default");
    EXPECT_EQ(text("General", "Name", nullptr), "");
    EXPECT_EQ(number("General", "Level"), -77);
    put("General", "Other", rawText("x"));
    EXPECT_EQ(text("General", "Name"), "default");
    EXPECT_EQ(number("General", "Level"), -77);
}

TEST_F(RegistryRead, EmptyTextIsAValue)
{
    put("General", "Name", rawText(""));
    EXPECT_EQ(text("General", "Name"), "");
    EXPECT_EQ(number("General", "Name"), -77);
    put("General", "NoBytes", {REG_SZ, ""});
    EXPECT_EQ(text("General", "NoBytes"), "");
}

TEST_F(RegistryRead, NumberReadsAsDecimalText)
{
    put("General", "Level", rawNumber(18000));
    put("General", "Minus", rawNumber(0xFFFFFFFF));
    EXPECT_EQ(text("General", "Level"), "18000");
    EXPECT_EQ(text("General", "Minus"), "-1");
}

TEST_F(RegistryRead, TextReadsAsNumberWhenItBeginsWithADigit)
{
    put("General", "A", rawText("12 knots"));
    put("General", "B", rawText("x12"));
    put("General", "C", rawText("-5"));
    put("General", "D", rawText(" 5"));
    put("General", "E", rawText("99999999999"));
    EXPECT_EQ(number("General", "A"), 12);
    EXPECT_EQ(number("General", "B"), -77);
    EXPECT_EQ(number("General", "C"), -77);
    EXPECT_EQ(number("General", "D"), -77);
    EXPECT_EQ(number("General", "E"), INT_MAX);
}

TEST_F(RegistryRead, LongestTextHas1023Characters)
{
    const std::string longest(1023, 'a');
    put("General", "Fits", rawText(longest));
    put("General", "TooLong", rawText(longest + 'a'));
    EXPECT_EQ(text("General", "Fits"), longest);
    EXPECT_EQ(text("General", "TooLong"), "default");
}

TEST_F(RegistryRead, UnterminatedTextEndsWithItsBytes)
{
    for (const std::size_t size : {1u, 5u, 1022u, 1023u, 1024u})
    {
        const std::string bytes(size, 'u');
        put("General", "Raw", {REG_SZ, bytes});
        EXPECT_EQ(text("General", "Raw"), bytes) << size;
    }
    put("General", "Raw", {REG_SZ, std::string(1025, 'u')});
    EXPECT_EQ(text("General", "Raw"), "default");
}

TEST_F(RegistryRead, TextEndsAtItsFirstZero)
{
    put("General", "Raw", {REG_SZ, std::string("one\0two\0", 8)});
    EXPECT_EQ(text("General", "Raw"), "one");
}

TEST_F(RegistryRead, OtherTypesAreTextUpToTheFirstZeroButNoNumbers)
{
    put("General", "Binary", {REG_BINARY, std::string("7ab\0cd", 6)});
    put("General", "List", {REG_MULTI_SZ, std::string("8one\0two\0\0", 10)});
    put("General", "Expand", {REG_EXPAND_SZ, std::string("9%TEMP%\0", 8)});
    put("General", "Wide", {REG_QWORD, std::string("1234567\0", 8)});
    EXPECT_EQ(text("General", "Binary"), "7ab");
    EXPECT_EQ(text("General", "List"), "8one");
    EXPECT_EQ(text("General", "Expand"), "9%TEMP%");
    for (const char* key : {"Binary", "List", "Expand", "Wide"})
    {
        EXPECT_EQ(number("General", key), -77) << key;
    }
}

TEST_F(RegistryRead, NumberOfTheWrongSizeIsNoNumber)
{
    put("General", "Short", {REG_DWORD, "AB"});
    put("General", "Long", {REG_DWORD, "ABCDEFGH"});
    EXPECT_EQ(number("General", "Short"), -77);
    EXPECT_EQ(number("General", "Long"), -77);
    EXPECT_EQ(text("General", "Short"), "");
}

TEST_F(RegistryRead, TooLongATextIsTheDefaultAsANumber)
{
    put("General", "Long", rawText(std::string(1024, '7')));
    writeSharedIni("[General]\r\nLong=3\r\n");
    EXPECT_EQ(number("General", "Long"), -77);
}

TEST_F(RegistryRead, EmptySectionIsTheApplicationsOwnKey)
{
    put("", "Version", rawText("3.3"));
    EXPECT_EQ(text("", "Version"), "3.3");
}

TEST_F(RegistryRead, BackslashesInTheSectionMakeNestedKeys)
{
    put("Views\\World", "Projection", rawNumber(2));
    EXPECT_EQ(number("Views\\World", "Projection"), 2);
}

TEST_F(RegistryRead, NullTextsReadTheDefault)
{
    put("", "", rawText("the key's own value"));
    EXPECT_EQ(text(nullptr, "Name"), "default");
    EXPECT_EQ(text("General", nullptr), "default");
    EXPECT_EQ(text(nullptr, nullptr, nullptr), "");
    EXPECT_EQ(number(nullptr, "Level"), -77);
    EXPECT_EQ(number("General", nullptr), -77);
}

TEST_F(RegistryRead, OverlongNamesReadTheDefault)
{
    const std::string endless(70000, 'n');
    EXPECT_EQ(text(endless.c_str(), "Name"), "default");
    EXPECT_EQ(text("General", endless.c_str()), "default");
    EXPECT_EQ(number(endless.c_str(), endless.c_str()), -77);
}

TEST_F(RegistryRead, RecordWithoutNameHasNoSettings)
{
    put("", app().c_str(), rawText("must not be seen"));
    AppRegData nameless;
    EXPECT_STREQ(nameless.ReadVornString(app().c_str(), app().c_str(), "default"), "default");
    EXPECT_EQ(nameless.ReadVornInt("General", "Level", 4), 4);
    EXPECT_FALSE(nameless.WriteVornString("General", "Level", "1"));
    EXPECT_FALSE(nameless.WriteVornString(app().c_str(), nullptr, nullptr));
    EXPECT_TRUE(hasKey(""));
}

TEST_F(RegistryRead, FollowsAChangeOfTheName)
{
    put("General", "Name", rawText("Denver"));
    EXPECT_EQ(text("General", "Name"), "Denver");
    record.SetModName("VornTestNobody");
    EXPECT_EQ(text("General", "Name"), "default");
    EXPECT_STREQ(record.GetModName(), "VornTestNobody");
}

TEST_F(RegistryRead, KeepsThePathIndex)
{
    record.SetModPathIdx(7);
    EXPECT_EQ(record.GetModPathIdx(), 7);
}
