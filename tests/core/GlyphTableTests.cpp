#include "frame/core/GlyphTable.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace
{
std::map<std::string, std::string> Glyphs()
{
    std::map<std::string, std::string> result;
    for (const auto& glyph : vorn::GlyphTable())
    {
        result[glyph.token] = glyph.text;
    }
    return result;
}
} // namespace

TEST(GlyphTable, NamesEachTokenOnce)
{
    EXPECT_EQ(Glyphs().size(), vorn::GlyphTable().size());
    EXPECT_EQ(vorn::GlyphTable().size(), 58u);
}

TEST(GlyphTable, DrawsEachTokenWithOneCharacter)
{
    for (const auto& [token, text] : Glyphs())
    {
        EXPECT_EQ(text.size(), 1u) << token;
        EXPECT_LE(token.size(), static_cast<std::size_t>(vorn::kLongestGlyphToken)) << token;
    }
}

TEST(GlyphTable, RunsThroughTheFontsUpperCodes)
{
    const char* const inOrder[] = {"NM",  "SM", "KM",   "FT", "M",  "KTS", "MPH",  "KPH", "MPS", "GAL", "L",
                                   "LBS", "KG", "IN",   "YD", "CM", "MM",  "CRS",  "BRG", "TRK", "DTK", "MSL",
                                   "AGL", "FL", "/MIN", "<-", "->", "UP",  "DOWN", "ETE", "ETA", "AM",  "PM"};
    auto table = Glyphs();
    unsigned code = 0xC0;
    for (const char* token : inOrder)
    {
        EXPECT_EQ(table[token], std::string(1, static_cast<char>(code))) << token;
        ++code;
    }
    EXPECT_EQ(code, 0xE1u);
    EXPECT_EQ(table["DEG"], "\xB0");
    EXPECT_EQ(table["VFRWP"], "\xB1");
}

TEST(GlyphTable, HasLettersForSymbolsOfTheLowerCodes)
{
    auto table = Glyphs();
    EXPECT_EQ(table["LEFT"], "l");
    EXPECT_EQ(table["RIGHT"], "r");
    EXPECT_EQ(table["VORN"], "B");
    EXPECT_EQ(table["NORTH"], "n");
    EXPECT_EQ(table["REG"], "R");
}

TEST(GlyphTable, MapsDigitsAndSignsToThemselves)
{
    auto table = Glyphs();
    for (const char sign : std::string(":()-.0123456789<>="))
    {
        EXPECT_EQ(table[std::string(1, sign)], std::string(1, sign));
    }
}
