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
        record.SetModName(App().c_str());
    }

    std::string Text(const char* section, const char* key, const char* otherwise = "default")
    {
        return record.ReadVornString(section, key, otherwise).GetString();
    }

    int Number(const char* section, const char* key, int otherwise = -77)
    {
        return record.ReadVornInt(section, key, otherwise);
    }

    AppRegData record;
};
} // namespace

TEST_F(RegistryRead, FindsTextsAndNumbersUnderTheUsersKey)
{
    Put("General", "Name", RawText("Denver"));
    Put("General", "Level", RawNumber(18000));
    EXPECT_EQ(Text("General", "Name"), "Denver");
    EXPECT_EQ(Number("General", "Level"), 18000);
}

TEST_F(RegistryRead, IgnoresTheMachinesKey)
{
    Put("General", "Name", RawText("Denver"), HKEY_LOCAL_MACHINE);
    EXPECT_EQ(Text("General", "Name"), "default");
}

TEST_F(RegistryRead, FallsBackToTheDefault)
{
    EXPECT_EQ(Text("General", "Name"), "default");
    EXPECT_EQ(Text("General", "Name", nullptr), "");
    EXPECT_EQ(Number("General", "Level"), -77);
    Put("General", "Other", RawText("x"));
    EXPECT_EQ(Text("General", "Name"), "default");
    EXPECT_EQ(Number("General", "Level"), -77);
}

TEST_F(RegistryRead, EmptyTextIsAValue)
{
    Put("General", "Name", RawText(""));
    EXPECT_EQ(Text("General", "Name"), "");
    EXPECT_EQ(Number("General", "Name"), -77);
    Put("General", "NoBytes", {REG_SZ, ""});
    EXPECT_EQ(Text("General", "NoBytes"), "");
}

TEST_F(RegistryRead, NumberReadsAsDecimalText)
{
    Put("General", "Level", RawNumber(18000));
    Put("General", "Minus", RawNumber(0xFFFFFFFF));
    EXPECT_EQ(Text("General", "Level"), "18000");
    EXPECT_EQ(Text("General", "Minus"), "-1");
}

TEST_F(RegistryRead, TextReadsAsNumberWhenItBeginsWithADigit)
{
    Put("General", "A", RawText("12 knots"));
    Put("General", "B", RawText("x12"));
    Put("General", "C", RawText("-5"));
    Put("General", "D", RawText(" 5"));
    Put("General", "E", RawText("99999999999"));
    EXPECT_EQ(Number("General", "A"), 12);
    EXPECT_EQ(Number("General", "B"), -77);
    EXPECT_EQ(Number("General", "C"), -77);
    EXPECT_EQ(Number("General", "D"), -77);
    EXPECT_EQ(Number("General", "E"), INT_MAX);
}

TEST_F(RegistryRead, LongestTextHas1023Characters)
{
    const std::string longest(1023, 'a');
    Put("General", "Fits", RawText(longest));
    Put("General", "TooLong", RawText(longest + 'a'));
    EXPECT_EQ(Text("General", "Fits"), longest);
    EXPECT_EQ(Text("General", "TooLong"), "default");
}

TEST_F(RegistryRead, UnterminatedTextEndsWithItsBytes)
{
    for (const std::size_t size : {1u, 5u, 1022u, 1023u, 1024u})
    {
        const std::string bytes(size, 'u');
        Put("General", "Raw", {REG_SZ, bytes});
        EXPECT_EQ(Text("General", "Raw"), bytes) << size;
    }
    Put("General", "Raw", {REG_SZ, std::string(1025, 'u')});
    EXPECT_EQ(Text("General", "Raw"), "default");
}

TEST_F(RegistryRead, TextEndsAtItsFirstZero)
{
    Put("General", "Raw", {REG_SZ, std::string("one\0two\0", 8)});
    EXPECT_EQ(Text("General", "Raw"), "one");
}

TEST_F(RegistryRead, OtherTypesAreTextUpToTheFirstZeroButNoNumbers)
{
    Put("General", "Binary", {REG_BINARY, std::string("7ab\0cd", 6)});
    Put("General", "List", {REG_MULTI_SZ, std::string("8one\0two\0\0", 10)});
    Put("General", "Expand", {REG_EXPAND_SZ, std::string("9%TEMP%\0", 8)});
    Put("General", "Wide", {REG_QWORD, std::string("1234567\0", 8)});
    EXPECT_EQ(Text("General", "Binary"), "7ab");
    EXPECT_EQ(Text("General", "List"), "8one");
    EXPECT_EQ(Text("General", "Expand"), "9%TEMP%");
    for (const char* key : {"Binary", "List", "Expand", "Wide"})
    {
        EXPECT_EQ(Number("General", key), -77) << key;
    }
}

TEST_F(RegistryRead, NumberOfTheWrongSizeIsNoNumber)
{
    Put("General", "Short", {REG_DWORD, "AB"});
    Put("General", "Long", {REG_DWORD, "ABCDEFGH"});
    EXPECT_EQ(Number("General", "Short"), -77);
    EXPECT_EQ(Number("General", "Long"), -77);
    EXPECT_EQ(Text("General", "Short"), "");
}

TEST_F(RegistryRead, TooLongATextIsTheDefaultAsANumber)
{
    Put("General", "Long", RawText(std::string(1024, '7')));
    WriteSharedIni("[General]\r\nLong=3\r\n");
    EXPECT_EQ(Number("General", "Long"), -77);
}

TEST_F(RegistryRead, EmptySectionIsTheApplicationsOwnKey)
{
    Put("", "Version", RawText("3.3"));
    EXPECT_EQ(Text("", "Version"), "3.3");
}

TEST_F(RegistryRead, BackslashesInTheSectionMakeNestedKeys)
{
    Put("Views\\World", "Projection", RawNumber(2));
    EXPECT_EQ(Number("Views\\World", "Projection"), 2);
}

TEST_F(RegistryRead, NullTextsReadTheDefault)
{
    Put("", "", RawText("the key's own value"));
    EXPECT_EQ(Text(nullptr, "Name"), "default");
    EXPECT_EQ(Text("General", nullptr), "default");
    EXPECT_EQ(Text(nullptr, nullptr, nullptr), "");
    EXPECT_EQ(Number(nullptr, "Level"), -77);
    EXPECT_EQ(Number("General", nullptr), -77);
}

TEST_F(RegistryRead, OverlongNamesReadTheDefault)
{
    const std::string endless(70000, 'n');
    EXPECT_EQ(Text(endless.c_str(), "Name"), "default");
    EXPECT_EQ(Text("General", endless.c_str()), "default");
    EXPECT_EQ(Number(endless.c_str(), endless.c_str()), -77);
}

TEST_F(RegistryRead, RecordWithoutNameHasNoSettings)
{
    Put("", App().c_str(), RawText("must not be seen"));
    AppRegData nameless;
    EXPECT_STREQ(nameless.ReadVornString(App().c_str(), App().c_str(), "default"), "default");
    EXPECT_EQ(nameless.ReadVornInt("General", "Level", 4), 4);
    EXPECT_FALSE(nameless.WriteVornString("General", "Level", "1"));
    EXPECT_FALSE(nameless.WriteVornString(App().c_str(), nullptr, nullptr));
    EXPECT_TRUE(HasKey(""));
}

TEST_F(RegistryRead, FollowsAChangeOfTheName)
{
    Put("General", "Name", RawText("Denver"));
    EXPECT_EQ(Text("General", "Name"), "Denver");
    record.SetModName("VornTestNobody");
    EXPECT_EQ(Text("General", "Name"), "default");
    EXPECT_STREQ(record.GetModName(), "VornTestNobody");
}

TEST_F(RegistryRead, KeepsThePathIndex)
{
    record.SetModPathIdx(7);
    EXPECT_EQ(record.GetModPathIdx(), 7);
}
