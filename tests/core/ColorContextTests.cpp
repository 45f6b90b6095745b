#include "family/VornChart/core/ColorContext.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <set>

namespace
{

ColorContext In(int state)
{
    ColorContext context;
    context.SetCurrentState(state);
    return context;
}

double Linear(COLORREF channel)
{
    const double value = static_cast<double>(channel & 0xFF) / 255;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// Relative luminance of an sRGB colour, as the Web Content Accessibility Guidelines 2.1 define it.
double Luminance(COLORREF color)
{
    return 0.2126 * Linear(color) + 0.7152 * Linear(color >> 8) + 0.0722 * Linear(color >> 16);
}

/// Their contrast ratio, 1 to 21.
double Contrast(COLORREF first, COLORREF second)
{
    const auto [dark, light] = std::minmax({Luminance(first), Luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}

constexpr int kStates[] = {COLORSTATE_DAY, COLORSTATE_NIGHT, COLORSTATE_DUSK};
constexpr AppColorsType kGrounds[] = {APPCOLOR_BACKGROUND, APPCOLOR_LAND, APPCOLOR_WATER};

} // namespace

TEST(ColorContext, TheProcessSharesOneThatBeginsByDay)
{
    ColorContext* const shared = ColorContext::Instance();
    ASSERT_NE(shared, nullptr);
    EXPECT_EQ(shared->GetCurrentState(), COLORSTATE_DAY);
    shared->SetCurrentState(COLORSTATE_NIGHT);
    EXPECT_EQ(ColorContext::Instance()->GetCurrentState(), 1);
    shared->SetCurrentState(COLORSTATE_DAY);
    EXPECT_EQ(ColorContext::Instance(), shared);
}

TEST(ColorContext, OnlyItsStatesComeIntoForce)
{
    ColorContext context;
    for (const int state : {2, 1, 0, 2})
    {
        context.SetCurrentState(state);
        EXPECT_EQ(context.GetCurrentState(), state);
    }
    for (const int state : {-1, 3, INT_MAX, INT_MIN})
    {
        context.SetCurrentState(state);
        EXPECT_EQ(context.GetCurrentState(), COLORSTATE_DUSK);
    }
}

TEST(ColorContext, UnknownTypesAreBlack)
{
    const ColorContext context = In(COLORSTATE_DAY);
    for (const int type : {-1, 16, 1000, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(context.GetColor(static_cast<AppColorsType>(type)), 0U);
    }
}

TEST(ColorContext, EveryTypeHasAColourOfItsOwnWithoutATopByte)
{
    for (const int state : kStates)
    {
        std::set<COLORREF> colors;
        for (int type = 0; type < APPCOLOR_COUNT; ++type)
        {
            const COLORREF color = In(state).GetColor(static_cast<AppColorsType>(type));
            EXPECT_EQ(color >> 24, 0U);
            EXPECT_TRUE(colors.insert(color).second) << state << ' ' << type;
        }
    }
}

TEST(ColorContext, TextCanBeReadOnEveryGround)
{
    for (const int state : kStates)
    {
        const ColorContext context = In(state);
        const COLORREF text = context.GetColor(APPCOLOR_TEXT);
        EXPECT_GE(Contrast(text, context.GetColor(APPCOLOR_TEXTHALO)), 4.5) << state;
        for (const AppColorsType ground : kGrounds)
        {
            EXPECT_GE(Contrast(text, context.GetColor(ground)), 4.5) << state << ' ' << ground;
        }
    }
}

// Charts write the names of radio aids, beacons and aerodromes in the colours of their symbols, on a halo.
TEST(ColorContext, SymbolColoursServeForTextOnEveryGround)
{
    for (const int state : kStates)
    {
        const ColorContext context = In(state);
        for (const AppColorsType ink : {APPCOLOR_AIRSPACE, APPCOLOR_ROUTE, APPCOLOR_AIRCRAFT, APPCOLOR_ACTIVELEG})
        {
            EXPECT_GE(Contrast(context.GetColor(ink), context.GetColor(APPCOLOR_TEXTHALO)), 4.5) << state << ' ' << ink;
            for (const AppColorsType ground : kGrounds)
            {
                EXPECT_GE(Contrast(context.GetColor(ink), context.GetColor(ground)), 3.5) << state << ' ' << ink;
            }
        }
    }
}

TEST(ColorContext, LinesAreSeenOnEveryGround)
{
    constexpr AppColorsType kImportant[] = {APPCOLOR_ROUTE,   APPCOLOR_ACTIVELEG, APPCOLOR_AIRCRAFT, APPCOLOR_HIGHLIGHT,
                                            APPCOLOR_WARNING, APPCOLOR_SELECTION, APPCOLOR_AIRSPACE, APPCOLOR_OVERLAY};
    constexpr AppColorsType kQuiet[] = {APPCOLOR_GRID, APPCOLOR_AIRWAY, APPCOLOR_TERRAIN};
    for (const int state : kStates)
    {
        const ColorContext context = In(state);
        for (const AppColorsType ground : kGrounds)
        {
            for (const AppColorsType line : kImportant)
            {
                EXPECT_GE(Contrast(context.GetColor(line), context.GetColor(ground)), 2.5) << state << ' ' << line;
            }
            for (const AppColorsType line : kQuiet)
            {
                EXPECT_GE(Contrast(context.GetColor(line), context.GetColor(ground)), 1.8) << state << ' ' << line;
            }
        }
    }
}

TEST(ColorContext, GroundsDarkenFromDayOverDuskToNight)
{
    for (const AppColorsType ground : kGrounds)
    {
        const double day = Luminance(In(COLORSTATE_DAY).GetColor(ground));
        const double dusk = Luminance(In(COLORSTATE_DUSK).GetColor(ground));
        const double night = Luminance(In(COLORSTATE_NIGHT).GetColor(ground));
        EXPECT_GT(day, 0.5);
        EXPECT_LT(dusk, 0.1);
        EXPECT_LT(night, 0.01);
        EXPECT_LT(night, dusk);
    }
}

TEST(ColorContext, TheNightIsRedRatherThanBlue)
{
    const ColorContext context = In(COLORSTATE_NIGHT);
    for (int type = 0; type < APPCOLOR_COUNT; ++type)
    {
        const COLORREF color = context.GetColor(static_cast<AppColorsType>(type));
        EXPECT_LE(color >> 16 & 0xFF, type == APPCOLOR_WATER ? 20U : color & 0xFF) << type;
        EXPECT_LE(color >> 16 & 0xFF, 128U) << type;
    }
}
