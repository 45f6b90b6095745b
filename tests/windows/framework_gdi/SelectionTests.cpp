#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

using namespace vorn::test;

TEST(Selection, PenGivesBackTheFormerOne)
{
    Canvas canvas(1, 1);
    CPen red(PS_SOLID, 1, kRed);
    CPen blue(PS_SOLID, 1, kBlue);
    CPen* former = canvas.dc.SelectObject(&red);
    ASSERT_NE(nullptr, former);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), former->GetSafeHandle());
    EXPECT_EQ(&red, canvas.dc.SelectObject(&blue));
    EXPECT_EQ(&blue, canvas.dc.GetCurrentPen());
    EXPECT_EQ(&blue, canvas.dc.SelectObject(former));
}

TEST(Selection, BrushGivesBackTheFormerOne)
{
    Canvas canvas(1, 1);
    CBrush red(kRed);
    CBrush* former = canvas.dc.SelectObject(&red);
    EXPECT_EQ(::GetStockObject(WHITE_BRUSH), former->GetSafeHandle());
    EXPECT_EQ(&red, canvas.dc.GetCurrentBrush());
    EXPECT_EQ(&red, canvas.dc.SelectObject(former));
}

TEST(Selection, FontGivesBackTheFormerOne)
{
    Canvas canvas(1, 1);
    CFont font;
    font.CreatePointFont(100, "Arial", &canvas.dc);
    CFont* former = canvas.dc.SelectObject(&font);
    EXPECT_EQ(::GetStockObject(SYSTEM_FONT), former->GetSafeHandle());
    EXPECT_EQ(&font, canvas.dc.GetCurrentFont());
    EXPECT_EQ(&font, canvas.dc.SelectObject(former));
}

TEST(Selection, BitmapGivesBackTheFormerOne)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 1, nullptr);
    CBitmap* former = dc.SelectObject(&bitmap);
    ASSERT_NE(nullptr, former);
    EXPECT_EQ(&bitmap, dc.GetCurrentBitmap());
    CDC other;
    other.CreateCompatibleDC(nullptr);
    EXPECT_EQ(nullptr, other.SelectObject(&bitmap)) << "a bitmap is in one context at a time";
    EXPECT_EQ(&bitmap, dc.SelectObject(former));
}

TEST(Selection, RegionBecomesTheClipRegion)
{
    Canvas canvas(4, 4);
    CRgn region;
    region.CreateRectRgn(1, 1, 2, 2);
    EXPECT_EQ(SIMPLEREGION, canvas.dc.SelectObject(&region));
    EXPECT_EQ(ERROR, canvas.dc.SelectObject(static_cast<CRgn*>(nullptr)));
    CRect box;
    canvas.dc.GetClipBox(&box);
    EXPECT_EQ(CRect(1, 1, 2, 2), box);
}

TEST(Selection, GeneralFormChoosesByTheObject)
{
    Canvas canvas(4, 4);
    CPen pen(PS_SOLID, 1, kRed);
    CRgn region;
    region.CreateRectRgn(1, 1, 2, 2);
    CGdiObject* former = canvas.dc.SelectObject(static_cast<CGdiObject*>(&pen));
    EXPECT_EQ(::GetStockObject(BLACK_PEN), former->GetSafeHandle());
    EXPECT_EQ(&pen, canvas.dc.SelectObject(former));
    EXPECT_EQ(nullptr, canvas.dc.SelectObject(static_cast<CGdiObject*>(&region)));
    EXPECT_EQ(nullptr, canvas.dc.SelectObject(static_cast<CGdiObject*>(nullptr)));
    CRect box;
    canvas.dc.GetClipBox(&box);
    EXPECT_EQ(CRect(1, 1, 2, 2), box);
}

TEST(Selection, StockObjectsGiveBackTheFormerOne)
{
    Canvas canvas(1, 1);
    CPen pen(PS_SOLID, 1, kRed);
    canvas.dc.SelectObject(&pen);
    EXPECT_EQ(&pen, canvas.dc.SelectStockObject(NULL_PEN));
    CFont font;
    font.CreatePointFont(100, "Arial", &canvas.dc);
    canvas.dc.SelectObject(&font);
    EXPECT_EQ(&font, canvas.dc.SelectStockObject(SYSTEM_FONT));
}

TEST(Selection, NullAndEmptyObjectsChangeNothing)
{
    Canvas canvas(1, 1);
    CPen empty;
    EXPECT_EQ(nullptr, canvas.dc.SelectObject(static_cast<CPen*>(nullptr)));
    EXPECT_EQ(nullptr, canvas.dc.SelectObject(&empty));
    EXPECT_EQ(::GetStockObject(BLACK_PEN), canvas.dc.GetCurrentPen()->GetSafeHandle());
}

TEST(TwoContexts, AttributesGoToBothAndTheAnswerIsTheAttributeContexts)
{
    Canvas output(1, 1);
    Canvas attributes(1, 1);
    attributes.dc.SetTextColor(kGreen);
    output.dc.SetAttribDC(attributes.dc);
    EXPECT_EQ(kGreen, output.dc.SetTextColor(kRed));
    EXPECT_EQ(kRed, ::GetTextColor(output.dc.m_hDC));
    EXPECT_EQ(kRed, ::GetTextColor(attributes.dc.m_hDC));
    ::SetBkMode(attributes.dc.m_hDC, TRANSPARENT);
    EXPECT_EQ(TRANSPARENT, output.dc.GetBkMode());
    EXPECT_EQ(OPAQUE, ::GetBkMode(output.dc.m_hDC));
    output.dc.SetAttribDC(output.dc.m_hDC);
}

TEST(TwoContexts, ObjectsAreSelectedInBoth)
{
    Canvas output(1, 1);
    Canvas attributes(1, 1);
    CPen red(PS_SOLID, 1, kRed);
    CPen blue(PS_SOLID, 1, kBlue);
    attributes.dc.SelectObject(&blue);
    output.dc.SetAttribDC(attributes.dc);
    EXPECT_EQ(&blue, output.dc.SelectObject(&red));
    EXPECT_EQ(red.m_hObject, ::GetCurrentObject(output.dc.m_hDC, OBJ_PEN));
    EXPECT_EQ(red.m_hObject, ::GetCurrentObject(attributes.dc.m_hDC, OBJ_PEN));
    output.dc.SelectStockObject(BLACK_PEN);
    output.dc.SetAttribDC(output.dc.m_hDC);
}

TEST(TwoContexts, DrawingGoesToTheOutputAndTheOtherFollowsThePosition)
{
    Canvas output(4, 1);
    Canvas attributes(4, 1);
    output.dc.SetAttribDC(attributes.dc);
    output.dc.MoveTo(0, 0);
    output.dc.LineTo(3, 0);
    EXPECT_EQ(CPoint(3, 0), output.dc.GetCurrentPosition());
    EXPECT_EQ("###.\n", output.Picture());
    EXPECT_EQ("....\n", attributes.Picture());
    const POINT bezier[3] = {{3, 0}, {2, 0}, {1, 0}};
    output.dc.PolyBezierTo(bezier, 3);
    EXPECT_EQ(CPoint(1, 0), output.dc.GetCurrentPosition());
    output.dc.SetAttribDC(output.dc.m_hDC);
}

TEST(TwoContexts, StatesAreSavedAndRestoredInBoth)
{
    Canvas output(1, 1);
    Canvas attributes(1, 1);
    output.dc.SetAttribDC(attributes.dc);
    output.dc.SetTextColor(kRed);
    output.dc.SaveDC();
    output.dc.SetTextColor(kBlue);
    EXPECT_TRUE(output.dc.RestoreDC(-1));
    EXPECT_EQ(kRed, ::GetTextColor(output.dc.m_hDC));
    EXPECT_EQ(kRed, ::GetTextColor(attributes.dc.m_hDC));
    output.dc.SetAttribDC(output.dc.m_hDC);
}

TEST(TwoContexts, ReleasingOneLeavesTheOther)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.ReleaseAttribDC();
    EXPECT_EQ(nullptr, dc.m_hAttribDC);
    EXPECT_NE(nullptr, dc.m_hDC);
    dc.SetAttribDC(dc.m_hDC);
    EXPECT_EQ(dc.m_hDC, dc.m_hAttribDC);
}
