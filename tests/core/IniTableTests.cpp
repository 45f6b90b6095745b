#include "config/core/IniTable.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;
using vorn::AddSection;
using vorn::BlockTexts;
using vorn::FindEntry;
using vorn::IniTable;

namespace
{
using Texts = std::vector<std::string_view>;

std::string Entry(const IniTable& table, std::string_view section, std::string_view key)
{
    const std::string* value = FindEntry(table, section, key);
    return value ? *value : "(none)";
}
} // namespace

TEST(IniBlock, SplitsAtEachZeroAndEndsAtTheEmptyText)
{
    EXPECT_EQ(BlockTexts("Units\0General\0\0"sv), (Texts{"Units", "General"}));
    EXPECT_EQ(BlockTexts("Units\0\0Behind\0\0"sv), (Texts{"Units"}));
    EXPECT_EQ(BlockTexts("\0\0"sv), Texts{});
    EXPECT_EQ(BlockTexts(""sv), Texts{});
}

TEST(IniBlock, WithoutItsZerosEndsWhereItBreaksOff)
{
    EXPECT_EQ(BlockTexts("Units\0Gen"sv), (Texts{"Units", "Gen"}));
    EXPECT_EQ(BlockTexts("Units\0"sv), (Texts{"Units"}));
}

TEST(IniTable, KeysEntriesBySectionBarAndKey)
{
    IniTable table;
    AddSection(table, "Units", "Speed=2\0Distance=0\0\0"sv);
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table.at("Units|Speed"), "2");
    EXPECT_EQ(table.at("Units|Distance"), "0");
    EXPECT_EQ(Entry(table, "Units", "Speed"), "2");
    EXPECT_EQ(Entry(table, "Units", "Mass"), "(none)");
    EXPECT_EQ(Entry(table, "General", "Speed"), "(none)");
}

TEST(IniTable, SplitsLinesAtTheirFirstEqualsSign)
{
    IniTable table;
    AddSection(table, "Links", "home=http://x/?a=1&b=2\0empty=\0=no name\0\0"sv);
    EXPECT_EQ(Entry(table, "Links", "home"), "http://x/?a=1&b=2");
    EXPECT_EQ(Entry(table, "Links", "empty"), "");
    EXPECT_EQ(Entry(table, "Links", ""), "no name");
}

TEST(IniTable, SkipsLinesWithoutEqualsSign)
{
    IniTable table;
    AddSection(table, "Links", "just a remark\0a=1\0\0"sv);
    EXPECT_EQ(table.size(), 1u);
    EXPECT_EQ(Entry(table, "Links", "just a remark"), "(none)");
}

TEST(IniTable, KeepsTheFirstValueOfAKeyThatComesTwice)
{
    IniTable table;
    AddSection(table, "Units", "Speed=2\0Speed=3\0\0"sv);
    AddSection(table, "Units", "Speed=4\0\0"sv);
    EXPECT_EQ(Entry(table, "Units", "Speed"), "2");
}

TEST(IniTable, KeepsQuotesAndBlanksOfValues)
{
    IniTable table;
    AddSection(table, "Fonts", "Face=\"Symbol\"\0Size= 12 \0\0"sv);
    EXPECT_EQ(Entry(table, "Fonts", "Face"), "\"Symbol\"");
    EXPECT_EQ(Entry(table, "Fonts", "Size"), " 12 ");
}

TEST(IniTable, MatchesSectionAndKeyExactly)
{
    IniTable table;
    AddSection(table, "Units", "Speed=2\0\0"sv);
    EXPECT_EQ(Entry(table, "units", "Speed"), "(none)");
    EXPECT_EQ(Entry(table, "Units", "speed"), "(none)");
    EXPECT_EQ(Entry(table, "Units", "Speed "), "(none)");
}

TEST(IniTable, TakesTextsOfAnyBytes)
{
    IniTable table;
    AddSection(table, "\xFF|x", "\x80\x01=\xFE\0\0"sv);
    EXPECT_EQ(Entry(table, "\xFF|x", "\x80\x01"), "\xFE");
}
