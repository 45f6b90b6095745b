#include "config/core/IniTable.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;
using vorn::addSection;
using vorn::blockTexts;
using vorn::findEntry;
using vorn::IniTable;

namespace
{
using Texts = std::vector<std::string_view>;

std::string entry(const IniTable& table, std::string_view section, std::string_view key)
{
    const std::string* value = findEntry(table, section, key);
    return value ? *value : "(none)";
}
} // namespace

TEST(IniBlock, SplitsAtEachZeroAndEndsAtTheEmptyText)
{
    EXPECT_EQ(blockTexts("Units\0General\0\0"sv), (Texts{"Units", "General"}));
    EXPECT_EQ(blockTexts("Units\0\0Behind\0\0"sv), (Texts{"Units"}));
    EXPECT_EQ(blockTexts("\0\0"sv), Texts{});
    EXPECT_EQ(blockTexts(""sv), Texts{});
}

TEST(IniBlock, WithoutItsZerosEndsWhereItBreaksOff)
{
    EXPECT_EQ(blockTexts("Units\0Gen"sv), (Texts{"Units", "Gen"}));
    EXPECT_EQ(blockTexts("Units\0"sv), (Texts{"Units"}));
}

TEST(IniTable, KeysEntriesBySectionBarAndKey)
{
    IniTable table;
    addSection(table, "Units", "Speed=2\0Distance=0\0\0"sv);
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table.at("Units|Speed"), "2");
    EXPECT_EQ(table.at("Units|Distance"), "0");
    EXPECT_EQ(entry(table, "Units", "Speed"), "2");
    EXPECT_EQ(entry(table, "Units", "Mass"), "(none)");
    EXPECT_EQ(entry(table, "General", "Speed"), "(none)");
}

TEST(IniTable, SplitsLinesAtTheirFirstEqualsSign)
{
    IniTable table;
    addSection(table, "Links", "home=http://x/?a=1&b=2\0empty=\0=no name\0\0"sv);
    EXPECT_EQ(entry(table, "Links", "home"), "http://x/?a=1&b=2");
    EXPECT_EQ(entry(table, "Links", "empty"), "");
    EXPECT_EQ(entry(table, "Links", ""), "no name");
}

TEST(IniTable, SkipsLinesWithoutEqualsSign)
{
    IniTable table;
    addSection(table, "Links", "just a remark\0a=1\0\0"sv);
    EXPECT_EQ(table.size(), 1u);
    EXPECT_EQ(entry(table, "Links", "just a remark"), "(none)");
}

TEST(IniTable, KeepsTheFirstValueOfAKeyThatComesTwice)
{
    IniTable table;
    addSection(table, "Units", "Speed=2\0Speed=3\0\0"sv);
    addSection(table, "Units", "Speed=4\0\0"sv);
    EXPECT_EQ(entry(table, "Units", "Speed"), "2");
}

TEST(IniTable, KeepsQuotesAndBlanksOfValues)
{
    IniTable table;
    addSection(table, "Fonts", "Face=\"Symbol\"\0Size= 12 \0\0"sv);
    EXPECT_EQ(entry(table, "Fonts", "Face"), "\"Symbol\"");
    EXPECT_EQ(entry(table, "Fonts", "Size"), " 12 ");
}

TEST(IniTable, MatchesSectionAndKeyExactly)
{
    IniTable table;
    addSection(table, "Units", "Speed=2\0\0"sv);
    EXPECT_EQ(entry(table, "units", "Speed"), "(none)");
    EXPECT_EQ(entry(table, "Units", "speed"), "(none)");
    EXPECT_EQ(entry(table, "Units", "Speed "), "(none)");
}

TEST(IniTable, TakesTextsOfAnyBytes)
{
    IniTable table;
    addSection(table, "\xFF|x", "\x80\x01=\xFE\0\0"sv);
    EXPECT_EQ(entry(table, "\xFF|x", "\x80\x01"), "\xFE");
}
