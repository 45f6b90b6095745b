#include "apps/vorntool/core/HelpTexts.h"

#include <gtest/gtest.h>

using namespace vorn::tool;

namespace
{

using Words = std::vector<std::string>;

const HelpEntry kMenu = {1781, "Expiry day of the data\nin use, in red once past.",
                         "Late data may still be\non its way."};

} // namespace

TEST(ToolHelpTexts, ATextIsTipAndInfo)
{
    const HelpEntry both = HelpEntryOf(700, "Tip\nof two lines.\rInfo\rwith a mark.");
    EXPECT_EQ(700, both.id);
    EXPECT_EQ("Tip\nof two lines.", both.tip);
    EXPECT_EQ("Info\rwith a mark.", both.info) << "the first carriage return alone parts them";
    EXPECT_EQ("Tip.", HelpEntryOf(1, "Tip.").tip);
    EXPECT_EQ("", HelpEntryOf(1, "Tip.").info);
    EXPECT_EQ("", HelpEntryOf(1, "").tip);
}

TEST(ToolHelpTexts, ANumberIsDigitsAlone)
{
    EXPECT_EQ(999, ParseHelpId("999"));
    EXPECT_EQ(0, ParseHelpId("0"));
    for (const char* const word : {"", "-1", "+1", "1.5", "9x", " 9", "0x10", "99999999999"})
    {
        EXPECT_EQ(std::nullopt, ParseHelpId(word)) << word;
    }
}

TEST(ToolHelpTexts, EveryWordMustOccurWhereverAndInEitherCase)
{
    EXPECT_TRUE(Matches(kMenu, Words{"EXPIRY"}));
    EXPECT_TRUE(Matches(kMenu, Words{"late", "red"}));
    EXPECT_FALSE(Matches(kMenu, Words{"late", "green"}));
    EXPECT_TRUE(Matches(kMenu, Words{"xpir"})) << "parts of words";
    EXPECT_TRUE(Matches(kMenu, Words{}));
    EXPECT_TRUE(Matches(kMenu, Words{""}));
}

TEST(ToolHelpTexts, AWordHasMoreThanBlanks)
{
    for (const char* const word : {"", " ", "\t \r\n"})
    {
        EXPECT_TRUE(IsBlankWord(word));
    }
    EXPECT_FALSE(IsBlankWord(" x "));
    EXPECT_FALSE(IsBlankWord("\xC3\xBC"));
}

TEST(ToolHelpTexts, LineBreaksAreBlanksForTheSearch)
{
    EXPECT_TRUE(Matches(kMenu, Words{"data in use"}));
    EXPECT_TRUE(Matches(kMenu, Words{"be  on"}));
    EXPECT_TRUE(Matches(kMenu, Words{"past. late"})) << "over the border of tip and info";
    EXPECT_FALSE(Matches(kMenu, Words{"datain"}));
}

TEST(ToolHelpTexts, ALineHasTheTipAndAPageHasAll)
{
    EXPECT_EQ("1781  Expiry day of the data in use, in red once past.\n", HelpLine(kMenu));
    EXPECT_EQ("700   Tip\n", HelpLine({700, "Tip", ""}));
    EXPECT_EQ("Expiry day of the data\nin use, in red once past.\n\nLate data may still be\non its way.\n",
              HelpPage(kMenu));
    EXPECT_EQ("Tip\n", HelpPage({700, "Tip", ""}));
}

TEST(ToolHelpTexts, JsonKeepsTheLineBreaks)
{
    JsonWriter json;
    WriteHelp(json, {700, "A \"tip\"\nhere", ""});
    EXPECT_EQ("{\"id\":700,\"tip\":\"A \\\"tip\\\"\\nhere\",\"info\":\"\"}\n", json.Line());
}
