#include "tests/support/GdiCount.h"
#include "tests/windows/resmgr/FreshResMgr.h"
#include "toolkit/ManagedObjects.h"

#include <climits>
#include <set>

using namespace vorn::test;

namespace
{

using Pens = FreshResMgr;
using Brushes = FreshResMgr;
using Resources = FreshResMgr;

LOGPEN FactsOf(HPEN pen)
{
    LOGPEN facts = {};
    EXPECT_NE(::GetObjectA(pen, sizeof facts, &facts), 0);
    return facts;
}

LOGBRUSH FactsOf(HBRUSH brush)
{
    LOGBRUSH facts = {};
    EXPECT_NE(::GetObjectA(brush, sizeof facts, &facts), 0);
    return facts;
}

/// A system colour that is another one for a while.
class OtherSystemColor
{
public:
    OtherSystemColor(int index, COLORREF color) : m_index(index), m_former(::GetSysColor(index))
    {
        ::SetSysColors(1, &m_index, &color);
    }
    ~OtherSystemColor()
    {
        ::SetSysColors(1, &m_index, &m_former);
    }
    OtherSystemColor(const OtherSystemColor&) = delete;
    OtherSystemColor& operator=(const OtherSystemColor&) = delete;

private:
    int m_index;
    COLORREF m_former;
};

/// The chart library's colour state for a while.
class OtherState
{
public:
    explicit OtherState(ColorState state)
    {
        ColorContext::Instance()->SetCurrentState(state);
    }
    ~OtherState()
    {
        ColorContext::Instance()->SetCurrentState(COLORSTATE_DAY);
    }
    OtherState(const OtherState&) = delete;
    OtherState& operator=(const OtherState&) = delete;
};

} // namespace

TEST_F(Pens, EqualRequestsShareOneHandle)
{
    const HPEN pen = Manager().GetPen(PS_SOLID, 1, RGB(0, 0, 0));
    ASSERT_NE(pen, nullptr);
    EXPECT_EQ(Manager().GetPen(PS_SOLID, 1, RGB(0, 0, 0)), pen);
    EXPECT_EQ(Manager().GetResourceCount(), 1);
}

TEST_F(Pens, AreMadeOfTheirThreeValues)
{
    const LOGPEN facts = FactsOf(Manager().GetPen(PS_SOLID, 7, RGB(10, 20, 30)));
    EXPECT_EQ(facts.lopnStyle, UINT{PS_SOLID});
    EXPECT_EQ(facts.lopnWidth.x, 7);
    EXPECT_EQ(facts.lopnColor, RGB(10, 20, 30));
    EXPECT_EQ(FactsOf(Manager().GetPen(PS_DASHDOT, 1, 0)).lopnStyle, UINT{PS_DASHDOT});
}

TEST_F(Pens, EachValueTellsThemApartAsItWasGiven)
{
    std::set<HPEN> pens;
    for (const int width : {0, 1, 5, -3, INT_MAX, INT_MIN})
    {
        for (const int style : {PS_SOLID, PS_DASH, PS_INSIDEFRAME, 77, -1})
        {
            for (const COLORREF color : {RGB(1, 0, 0), RGB(0, 1, 0), PALETTERGB(1, 0, 0), COLORREF{CLR_INVALID}})
            {
                const HPEN pen = Manager().GetPen(style, width, color);
                EXPECT_NE(pen, nullptr) << style << ' ' << width << ' ' << color;
                EXPECT_EQ(Manager().GetPen(style, width, color), pen);
                pens.insert(pen);
            }
        }
    }
    EXPECT_EQ(Manager().GetResourceCount(), 6 * 5 * 4);
    EXPECT_EQ(pens.size(), 6U * 5 * 4);
}

TEST_F(Pens, ThereIsNoLimit)
{
    std::set<HPEN> pens;
    const HPEN first = Manager().GetStdPen(0);
    for (COLORREF color = 0; color < 3000; ++color)
    {
        pens.insert(Manager().GetStdPen(color));
    }
    EXPECT_EQ(pens.size(), 3000U);
    EXPECT_EQ(Manager().GetResourceCount(), 3000);
    EXPECT_EQ(Manager().GetStdPen(0), first);
}

TEST_F(Pens, StandardPensAreSolidAndOneWide)
{
    EXPECT_EQ(Manager().GetStdPen(RGB(9, 8, 7)), Manager().GetPen(PS_SOLID, 1, RGB(9, 8, 7)));
    EXPECT_EQ(Manager().GetStdSysPen(COLOR_BTNSHADOW), Manager().GetPen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW)));
    EXPECT_EQ(Manager().GetStdAppPen(APPCOLOR_ROUTE),
              Manager().GetPen(PS_SOLID, 1, ColorContext::Instance()->GetColor(APPCOLOR_ROUTE)));
    EXPECT_EQ(Manager().GetResourceCount(), 3);
}

TEST_F(Pens, SystemColoursAreLookedUpByEveryCall)
{
    const HPEN before = Manager().GetSysPen(PS_DOT, 1, COLOR_WINDOWFRAME);
    EXPECT_EQ(FactsOf(before).lopnColor, ::GetSysColor(COLOR_WINDOWFRAME));
    {
        const OtherSystemColor other(COLOR_WINDOWFRAME, RGB(11, 22, 33));
        ASSERT_EQ(::GetSysColor(COLOR_WINDOWFRAME), RGB(11, 22, 33));
        EXPECT_EQ(FactsOf(Manager().GetSysPen(PS_DOT, 1, COLOR_WINDOWFRAME)).lopnColor, RGB(11, 22, 33));
        EXPECT_EQ(FactsOf(Manager().GetStdSysPen(COLOR_WINDOWFRAME)).lopnColor, RGB(11, 22, 33));
        EXPECT_EQ(FactsOf(Manager().GetSysBrush(COLOR_WINDOWFRAME)).lbColor, RGB(11, 22, 33));
    }
    EXPECT_EQ(Manager().GetSysPen(PS_DOT, 1, COLOR_WINDOWFRAME), before);
}

TEST_F(Pens, TheApplicationsColoursChangeWithItsState)
{
    const ColorContext* const colors = ColorContext::Instance();
    const HPEN day = Manager().GetAppPen(PS_DASH, 1, APPCOLOR_LAND);
    EXPECT_EQ(FactsOf(day).lopnColor, colors->GetColor(APPCOLOR_LAND));
    {
        const OtherState night(COLORSTATE_NIGHT);
        const HPEN dark = Manager().GetAppPen(PS_DASH, 1, APPCOLOR_LAND);
        EXPECT_NE(dark, day);
        EXPECT_EQ(FactsOf(dark).lopnColor, colors->GetColor(APPCOLOR_LAND));
        EXPECT_EQ(FactsOf(Manager().GetStdAppPen(APPCOLOR_LAND)).lopnColor, colors->GetColor(APPCOLOR_LAND));
        EXPECT_EQ(FactsOf(Manager().GetAppBrush(APPCOLOR_LAND)).lbColor, colors->GetColor(APPCOLOR_LAND));
    }
    EXPECT_EQ(Manager().GetAppPen(PS_DASH, 1, APPCOLOR_LAND), day);
    EXPECT_EQ(FactsOf(Manager().GetStdAppPen(static_cast<AppColorsType>(999))).lopnColor, RGB(0, 0, 0));
}

TEST_F(Pens, TheNullPenIsKeptLikeAnyOther)
{
    const HPEN pen = Manager().GetNullPen();
    EXPECT_EQ(FactsOf(pen).lopnStyle, UINT{PS_NULL});
    EXPECT_EQ(Manager().GetPen(PS_NULL, 0, 0), pen);
    EXPECT_EQ(Manager().GetResourceCount(), 1);
    Manager().PurgeResources();
    EXPECT_EQ(FactsOf(static_cast<HPEN>(::GetStockObject(NULL_PEN))).lopnStyle, UINT{PS_NULL});
    EXPECT_NE(Manager().GetNullPen(), nullptr);
}

TEST_F(Brushes, EqualRequestsShareOneHandle)
{
    const HBRUSH brush = Manager().GetBrush(RGB(1, 2, 3));
    ASSERT_NE(brush, nullptr);
    EXPECT_EQ(Manager().GetBrush(BS_SOLID, RGB(1, 2, 3), 0), brush);
    EXPECT_EQ(Manager().GetResourceCount(), 1);
    EXPECT_NE(Manager().GetBrush(BS_SOLID, RGB(1, 2, 3), 4), brush) << "a hatch counts though it does not show";
    EXPECT_EQ(Manager().GetResourceCount(), 2);
}

TEST_F(Brushes, AreMadeOfTheirThreeValues)
{
    const LOGBRUSH facts = FactsOf(Manager().GetBrush(BS_HATCHED, RGB(40, 50, 60), HS_DIAGCROSS));
    EXPECT_EQ(facts.lbStyle, UINT{BS_HATCHED});
    EXPECT_EQ(facts.lbColor, RGB(40, 50, 60));
    EXPECT_EQ(facts.lbHatch, ULONG_PTR{HS_DIAGCROSS});
    EXPECT_EQ(FactsOf(Manager().GetSysBrush(COLOR_HIGHLIGHT)).lbColor, ::GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(Brushes, AStyleWithAnApplicationColourTakesItsNumber)
{
    EXPECT_EQ(FactsOf(Manager().GetAppBrush(APPCOLOR_TERRAIN)).lbColor,
              ColorContext::Instance()->GetColor(APPCOLOR_TERRAIN));
    EXPECT_EQ(Manager().GetAppBrush(BS_SOLID, APPCOLOR_TERRAIN, 0), Manager().GetBrush(BS_SOLID, COLORREF{14}, 0));
    EXPECT_EQ(FactsOf(Manager().GetAppBrush(BS_HATCHED, APPCOLOR_OVERLAY, HS_CROSS)).lbColor, COLORREF{15});
    EXPECT_EQ(Manager().GetResourceCount(), 3);
}

TEST_F(Brushes, TheNullBrushIsKeptLikeAnyOther)
{
    const HBRUSH brush = Manager().GetNullBrush();
    EXPECT_EQ(FactsOf(brush).lbStyle, UINT{BS_NULL});
    EXPECT_EQ(Manager().GetBrush(BS_NULL, 0, 0), brush);
    EXPECT_EQ(Manager().GetResourceCount(), 1);
    Manager().PurgeResources();
    EXPECT_NE(::GetObjectType(::GetStockObject(NULL_BRUSH)), 0U);
}

TEST_F(Brushes, WhatTheSystemDoesNotMakeIsKeptAsNull)
{
    EXPECT_EQ(Manager().GetBrush(4711, RGB(1, 2, 3), 0), nullptr);
    EXPECT_EQ(Manager().GetResourceCount(), 1);
    EXPECT_EQ(Manager().GetBrush(4711, RGB(1, 2, 3), 0), nullptr);
    EXPECT_EQ(Manager().GetResourceCount(), 1);
}

TEST_F(Resources, FailedPensAndBrushesStayNull)
{
    Manager(); // its own memory is there
    {
        const NoMoreHandles none;
        EXPECT_EQ(Manager().GetStdPen(RGB(5, 5, 5)), nullptr);
        EXPECT_EQ(Manager().GetBrush(RGB(5, 5, 5)), nullptr);
    }
    EXPECT_EQ(Manager().GetResourceCount(), 2);
    EXPECT_EQ(Manager().GetStdPen(RGB(5, 5, 5)), nullptr);
    EXPECT_EQ(Manager().GetBrush(RGB(5, 5, 5)), nullptr);
    EXPECT_NE(Manager().GetStdPen(RGB(6, 6, 6)), nullptr);
    Manager().PurgeResources();
    EXPECT_NE(Manager().GetStdPen(RGB(5, 5, 5)), nullptr);
}

TEST_F(Resources, PurgingDeletesEveryObject)
{
    Manager();
    const unsigned before = CountGdiObjects();
    const HPEN pen = Manager().GetStdPen(RGB(1, 1, 1));
    for (COLORREF color = 0; color < 200; ++color)
    {
        Manager().GetPen(PS_SOLID, 3, color);
        Manager().GetBrush(color);
        const LOGFONTA description = Face("Chart", static_cast<LONG>(color) + 1);
        Manager().GetFont(&description);
    }
    EXPECT_EQ(Manager().GetResourceCount(), 1 + 200 + 200 + 60);
    EXPECT_EQ(CountGdiObjects(), before + 1 + 200 + 200 + 60);
    Manager().PurgeResources();
    EXPECT_EQ(Manager().GetResourceCount(), 0);
    EXPECT_EQ(CountGdiObjects(), before);
    EXPECT_EQ(::GetObjectType(pen), 0U);
    Manager().PurgeResources();
    EXPECT_EQ(FactsOf(Manager().GetStdPen(RGB(1, 1, 1))).lopnColor, RGB(1, 1, 1));
    EXPECT_EQ(Manager().GetResourceCount(), 1);
}

TEST_F(Resources, OneManagerUntilItIsFreed)
{
    EXPECT_FALSE(ResMgr::FreeInst());
    ResMgr* const manager = ResMgr::Inst();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(ResMgr::Inst(), manager);
    const unsigned before = CountGdiObjects();
    const HBRUSH brush = manager->GetBrush(RGB(3, 3, 3));
    EXPECT_TRUE(ResMgr::FreeInst());
    EXPECT_EQ(CountGdiObjects(), before);
    EXPECT_EQ(::GetObjectType(brush), 0U);
    EXPECT_FALSE(ResMgr::FreeInst());
    EXPECT_EQ(ResMgr::Inst()->GetResourceCount(), 0);
    EXPECT_TRUE(ResMgr::FreeInst());
}

TEST(ManagedObjects, KnowWhatTheyWereMadeOfAndDeleteTheirHandles)
{
    const unsigned before = CountGdiObjects();
    {
        const ManagedPen pen(PS_DASH, 5, PALETTERGB(1, 2, 3));
        EXPECT_EQ(pen.GetStyle(), PS_DASH);
        EXPECT_EQ(pen.GetWidth(), 5);
        EXPECT_EQ(pen.GetColor(), PALETTERGB(1, 2, 3));
        EXPECT_EQ(::GetObjectType(pen.GetHandle()), UINT{OBJ_PEN});
        const ManagedBrush brush(BS_HATCHED, RGB(1, 2, 3), HS_CROSS);
        EXPECT_EQ(brush.GetStyle(), UINT{BS_HATCHED});
        EXPECT_EQ(brush.GetColor(), RGB(1, 2, 3));
        EXPECT_EQ(brush.GetHatch(), HS_CROSS);
        EXPECT_EQ(::GetObjectType(brush.GetHandle()), UINT{OBJ_BRUSH});
        const ManagedFont font(Face("Chart", 20));
        EXPECT_EQ(font.GetDescription().lfHeight, 20);
        EXPECT_STREQ(font.GetDescription().lfFaceName, "Chart");
        EXPECT_EQ(::GetObjectType(font.GetHandle()), UINT{OBJ_FONT});
        const CObject& object = font;
        EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject)));
    }
    EXPECT_EQ(CountGdiObjects(), before);
}
