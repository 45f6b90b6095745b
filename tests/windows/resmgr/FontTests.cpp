#include "tests/windows/resmgr/FreshResMgr.h"
#include "toolkit/ManagedObjects.h"

#include <climits>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

using namespace vorn::test;

namespace
{

using Fonts = FreshResMgr;

LOGFONTA FactsOf(HFONT font)
{
    LOGFONTA facts = {};
    EXPECT_NE(::GetObjectA(font, sizeof facts, &facts), 0);
    return facts;
}

HFONT Get(const LOGFONTA& description)
{
    return ResMgr::Inst()->GetFont(&description);
}

HFONT Numbered(int number)
{
    return Get(Face("Chart", number + 1));
}

bool Exists(HFONT font)
{
    return ::GetObjectType(font) == OBJ_FONT;
}

} // namespace

TEST_F(Fonts, EqualRequestsShareOneHandle)
{
    const HFONT font = Get(Face("Arial"));
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(Get(Face("Arial")), font);
    EXPECT_EQ(Manager().GetResourceCount(), 1);
}

TEST_F(Fonts, AreMadeOfAllTheirValues)
{
    const HFONT font = Manager().GetFont(-20, 7, 100, 200, FW_BOLD, 1, 1, 1, SYMBOL_CHARSET, OUT_TT_PRECIS,
                                         CLIP_LH_ANGLES, ANTIALIASED_QUALITY, FIXED_PITCH | FF_MODERN, "Courier New");
    const LOGFONTA facts = FactsOf(font);
    EXPECT_EQ(facts.lfHeight, -20);
    EXPECT_EQ(facts.lfWidth, 7);
    EXPECT_EQ(facts.lfEscapement, 100);
    EXPECT_EQ(facts.lfOrientation, 200);
    EXPECT_EQ(facts.lfWeight, FW_BOLD);
    EXPECT_EQ(facts.lfItalic, 1);
    EXPECT_EQ(facts.lfUnderline, 1);
    EXPECT_EQ(facts.lfStrikeOut, 1);
    EXPECT_EQ(facts.lfCharSet, SYMBOL_CHARSET);
    EXPECT_EQ(facts.lfOutPrecision, OUT_TT_PRECIS);
    EXPECT_EQ(facts.lfClipPrecision, CLIP_LH_ANGLES);
    EXPECT_EQ(facts.lfQuality, ANTIALIASED_QUALITY);
    EXPECT_EQ(facts.lfPitchAndFamily, FIXED_PITCH | FF_MODERN);
    EXPECT_STREQ(facts.lfFaceName, "Courier New");
    EXPECT_EQ(Get(facts), font) << "both forms share";
}

TEST_F(Fonts, EachValueTellsThemApart)
{
    const std::vector<std::function<void(LOGFONTA&)>> changes = {
        [](LOGFONTA&) {},
        [](LOGFONTA& font)
        {
            font.lfHeight = -13;
        },
        [](LOGFONTA& font)
        {
            font.lfHeight = INT_MIN;
        },
        [](LOGFONTA& font)
        {
            font.lfWidth = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfEscapement = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfOrientation = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfWeight = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfItalic = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfItalic = 2;
        },
        [](LOGFONTA& font)
        {
            font.lfUnderline = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfStrikeOut = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfCharSet = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfOutPrecision = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfClipPrecision = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfQuality = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfPitchAndFamily = 1;
        },
        [](LOGFONTA& font)
        {
            font.lfFaceName[0] = 'b';
        },
        [](LOGFONTA& font)
        {
            font.lfFaceName[0] = '\0';
        },
        [](LOGFONTA& font)
        {
            std::strcpy(font.lfFaceName, "arial");
        },
    };
    std::vector<HFONT> fonts;
    for (const auto& change : changes)
    {
        LOGFONTA description = Face("Arial");
        change(description);
        const HFONT font = Get(description);
        for (const HFONT other : fonts)
        {
            EXPECT_NE(font, other) << fonts.size();
        }
        fonts.push_back(font);
        EXPECT_EQ(Get(description), font);
    }
    EXPECT_EQ(Manager().GetResourceCount(), static_cast<int>(changes.size()));
}

TEST_F(Fonts, WhatStandsBehindTheFaceDoesNotCount)
{
    LOGFONTA clean = Face("Arial");
    LOGFONTA dirty = clean;
    std::memset(dirty.lfFaceName + 6, 'x', LF_FACESIZE - 6);
    const HFONT font = Get(dirty);
    EXPECT_EQ(Get(clean), font);
    EXPECT_STREQ(FactsOf(font).lfFaceName, "Arial");
}

TEST_F(Fonts, FacesCountWithTheirFirst31Characters)
{
    const std::string lengthy = "A face whose name has far more than 31 characters";
    const auto get = [](const char* face)
    {
        return Manager().GetFont(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, face);
    };
    const HFONT font = get(lengthy.c_str());
    EXPECT_EQ(FactsOf(font).lfFaceName, lengthy.substr(0, 31));
    EXPECT_EQ(get(lengthy.substr(0, 31).c_str()), font);
    EXPECT_EQ(get((lengthy.substr(0, 31) + " and others").c_str()), font);
    EXPECT_NE(get(lengthy.substr(0, 30).c_str()), font);

    LOGFONTA unterminated = {};
    unterminated.lfHeight = 12;
    std::memcpy(unterminated.lfFaceName, lengthy.data(), LF_FACESIZE);
    EXPECT_EQ(Get(unterminated), font);
    EXPECT_EQ(Manager().GetResourceCount(), 2);
}

TEST_F(Fonts, NothingIsKeptForNoDescriptionAndNoFaceIsAnEmptyOne)
{
    EXPECT_EQ(Manager().GetFont(nullptr), nullptr);
    EXPECT_EQ(Manager().GetResourceCount(), 0);
    const HFONT font = Manager().GetFont(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, nullptr);
    EXPECT_NE(font, nullptr);
    EXPECT_EQ(Manager().GetFont(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, ""), font);
    EXPECT_EQ(Get(Face("", 12)), font);
}

TEST_F(Fonts, The61stTakesTheFirstAway)
{
    std::vector<HFONT> fonts;
    for (int i = 0; i < 60; ++i)
    {
        fonts.push_back(Numbered(i));
        EXPECT_EQ(Manager().GetResourceCount(), i + 1);
    }
    EXPECT_TRUE(Exists(fonts[0]));
    fonts.push_back(Numbered(60));
    EXPECT_EQ(Manager().GetResourceCount(), 60);
    EXPECT_FALSE(Exists(fonts[0]));
    for (std::size_t i = 1; i <= 60; ++i)
    {
        EXPECT_EQ(Numbered(static_cast<int>(i)), fonts[i]);
    }
    EXPECT_EQ(Manager().GetResourceCount(), 60);
}

TEST_F(Fonts, AgeCountsAndNotUse)
{
    const HFONT first = Numbered(0);
    for (int i = 1; i < 60; ++i)
    {
        Numbered(i);
        EXPECT_EQ(Numbered(0), first);
    }
    Numbered(60);
    EXPECT_FALSE(Exists(first));
    const HFONT second = Numbered(1);
    EXPECT_TRUE(Exists(second));
    EXPECT_TRUE(Exists(Numbered(0))) << "made again, which takes the second away";
    EXPECT_FALSE(Exists(second));
    EXPECT_EQ(Manager().GetResourceCount(), 60);
}

TEST_F(Fonts, TheOneReturnedIsAlwaysThere)
{
    for (int i = 0; i < 500; ++i)
    {
        ASSERT_TRUE(Exists(Numbered(i))) << i;
    }
    EXPECT_EQ(Manager().GetResourceCount(), 60);
}

TEST_F(Fonts, PensAndBrushesDoNotCountAgainstTheLimit)
{
    for (COLORREF color = 0; color < 100; ++color)
    {
        Manager().GetStdPen(color);
        Manager().GetBrush(color);
    }
    const HFONT first = Numbered(0);
    for (int i = 1; i < 60; ++i)
    {
        Numbered(i);
    }
    EXPECT_TRUE(Exists(first));
    EXPECT_EQ(Manager().GetResourceCount(), 260);
}

TEST_F(Fonts, AFontThatFailedIsTriedAgain)
{
    const HFONT first = Numbered(0);
    {
        const NoMoreHandles none;
        EXPECT_EQ(Numbered(1), nullptr);
        EXPECT_EQ(Manager().GetResourceCount(), 2);
        EXPECT_EQ(Numbered(1), nullptr);
        EXPECT_EQ(Manager().GetResourceCount(), 2);
        EXPECT_EQ(Numbered(2), nullptr);
        EXPECT_EQ(Manager().GetResourceCount(), 2) << "the search passed the failed one";
        EXPECT_EQ(Numbered(0), first);
        EXPECT_EQ(Manager().GetResourceCount(), 1);
        EXPECT_EQ(Numbered(1), nullptr);
    }
    EXPECT_TRUE(Exists(Numbered(1)));
    EXPECT_EQ(Manager().GetResourceCount(), 2);
}

TEST_F(Fonts, AFailedFontMayTakeTheOldestAway)
{
    const HFONT first = Numbered(0);
    for (int i = 1; i < 60; ++i)
    {
        Numbered(i);
    }
    {
        const NoMoreHandles none;
        EXPECT_EQ(Numbered(60), nullptr);
    }
    EXPECT_FALSE(Exists(first));
    EXPECT_EQ(Manager().GetResourceCount(), 60);
    Numbered(59);
    EXPECT_EQ(Manager().GetResourceCount(), 59);
    Manager().PurgeResources();
    EXPECT_TRUE(Exists(Numbered(60)));
}
