#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>

using namespace vorn::test;

namespace
{
bool IsAlive(HGDIOBJ object)
{
    return ::GetObjectType(object) != 0;
}
} // namespace

TEST(GdiObject, DeletesItsHandleWithItself)
{
    HGDIOBJ handle = nullptr;
    {
        CPen pen(PS_SOLID, 1, kRed);
        handle = pen.GetSafeHandle();
        EXPECT_TRUE(IsAlive(handle));
    }
    EXPECT_FALSE(IsAlive(handle));
}

TEST(GdiObject, DeletesAnAttachedHandle)
{
    HBRUSH handle = ::CreateSolidBrush(kRed);
    {
        CBrush brush;
        EXPECT_TRUE(brush.Attach(handle));
    }
    EXPECT_FALSE(IsAlive(handle));
}

TEST(GdiObject, LeavesADetachedHandleAlive)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(kRed);
        handle = brush.Detach();
        EXPECT_EQ(nullptr, brush.GetSafeHandle());
    }
    EXPECT_TRUE(IsAlive(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, AttachRefusesNullAndASecondHandle)
{
    CPen pen(PS_SOLID, 1, kRed);
    HGDIOBJ first = pen.GetSafeHandle();
    HPEN second = ::CreatePen(PS_SOLID, 2, kBlue);
    EXPECT_FALSE(pen.Attach(second));
    EXPECT_EQ(first, pen.GetSafeHandle());
    CPen empty;
    EXPECT_FALSE(empty.Attach(nullptr));
    ::DeleteObject(second);
}

TEST(GdiObject, CreatingOverAnExistingHandleIsRefusedAndKeepsTheFirst)
{
    CBrush brush(kRed);
    EXPECT_FALSE(brush.CreateSolidBrush(kBlue));
    LOGBRUSH description{};
    brush.GetLogBrush(&description);
    EXPECT_EQ(kRed, description.lbColor);
}

TEST(GdiObject, DeleteObjectOfAnEmptyObjectFails)
{
    CFont font;
    EXPECT_FALSE(font.DeleteObject());
}

TEST(GdiObject, DeleteObjectLeavesTheObjectReadyForAnother)
{
    CPen pen(PS_SOLID, 1, kRed);
    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_EQ(nullptr, static_cast<HPEN>(pen));
    EXPECT_TRUE(pen.CreatePen(PS_DOT, 1, kBlue));
}

TEST(GdiObject, FromHandleFindsTheOwner)
{
    CBrush brush(kRed);
    EXPECT_EQ(&brush, CBrush::FromHandle(brush));
    EXPECT_EQ(&brush, CGdiObject::FromHandle(brush.GetSafeHandle()));
}

TEST(GdiObject, FromHandleOfNullIsNull)
{
    EXPECT_EQ(nullptr, CPen::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
}

TEST(GdiObject, FromHandleGivesOneTemporaryObjectForAHandle)
{
    HPEN handle = ::CreatePen(PS_SOLID, 1, kRed);
    CPen* pen = CPen::FromHandle(handle);
    EXPECT_EQ(handle, static_cast<HPEN>(*pen));
    EXPECT_EQ(pen, CPen::FromHandle(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, TemporaryObjectsAreOfTheClassOfTheirHandle)
{
    HPEN pen = ::CreatePen(PS_SOLID, 1, kRed);
    HFONT font = ::CreateFont(10, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    HRGN region = ::CreateRectRgn(0, 0, 5, 5);
    HBITMAP bitmap = ::CreateBitmap(2, 2, 1, 1, nullptr);
    EXPECT_TRUE(CGdiObject::FromHandle(pen)->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_TRUE(CGdiObject::FromHandle(font)->IsKindOf(RUNTIME_CLASS(CFont)));
    EXPECT_TRUE(CGdiObject::FromHandle(region)->IsKindOf(RUNTIME_CLASS(CRgn)));
    EXPECT_TRUE(CGdiObject::FromHandle(bitmap)->IsKindOf(RUNTIME_CLASS(CBitmap)));
    EXPECT_TRUE(CGdiObject::FromHandle(::GetStockObject(WHITE_BRUSH))->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_TRUE(CGdiObject::FromHandle(::GetStockObject(DEFAULT_PALETTE))->IsKindOf(RUNTIME_CLASS(CPalette)));
    CGdiObject::DeleteTempMap();
    for (HGDIOBJ handle : {HGDIOBJ(pen), HGDIOBJ(font), HGDIOBJ(region), HGDIOBJ(bitmap)})
        ::DeleteObject(handle);
}

TEST(GdiObject, FreeingTemporaryObjectsLeavesTheirHandlesAlive)
{
    HPEN handle = ::CreatePen(PS_SOLID, 1, kRed);
    CPen::FromHandle(handle);
    CGdiObject::DeleteTempMap();
    EXPECT_TRUE(IsAlive(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, APermanentObjectGoesBeforeATemporaryOneOfTheSameHandle)
{
    HPEN handle = ::CreatePen(PS_SOLID, 1, kRed);
    CPen* temporary = CPen::FromHandle(handle);
    CPen pen;
    pen.Attach(handle);
    EXPECT_NE(temporary, CPen::FromHandle(handle));
    EXPECT_EQ(&pen, CPen::FromHandle(handle));
}

TEST(GdiObject, IsForgottenByTheMapWhenItsHandleGoes)
{
    HGDIOBJ handle = nullptr;
    CBrush* former = nullptr;
    {
        CBrush brush(kRed);
        handle = brush.Detach();
        former = &brush;
    }
    EXPECT_NE(former, CBrush::FromHandle(static_cast<HBRUSH>(handle)));
    ::DeleteObject(handle);
}

TEST(GdiObject, StockObjectsCanBeHeldByManyAndSurviveThem)
{
    HGDIOBJ stock = ::GetStockObject(BLACK_PEN);
    {
        CPen first;
        CPen second;
        EXPECT_TRUE(first.CreateStockObject(BLACK_PEN));
        EXPECT_TRUE(second.CreateStockObject(BLACK_PEN));
        EXPECT_TRUE(first == second);
        first.Detach();
        EXPECT_EQ(&second, CPen::FromHandle(static_cast<HPEN>(stock)));
    }
    EXPECT_TRUE(IsAlive(stock));
    LOGPEN description{};
    CPen::FromHandle(static_cast<HPEN>(stock))->GetLogPen(&description);
    EXPECT_EQ(kBlack, description.lopnColor);
}

TEST(GdiObject, MadeOnOneThreadAndEndedOnAnotherIsForgottenOnBoth)
{
    auto pen = std::make_unique<CPen>(PS_SOLID, 1, kRed);
    HPEN handle = *pen;
    const CPen* former = pen.get();
    bool foundThere = false;
    std::thread(
        [&]
        {
            foundThere = CPen::FromHandle(handle) == former;
            pen->Detach();
            pen.reset();
        })
        .join();
    EXPECT_TRUE(foundThere);
    CPen* temporary = CPen::FromHandle(handle);
    EXPECT_TRUE(temporary->IsKindOf(RUNTIME_CLASS(CPen)));
    CPen other;
    EXPECT_TRUE(other.Attach(handle));
    EXPECT_EQ(&other, CPen::FromHandle(handle));
}

TEST(GdiObject, ComparesHandles)
{
    CPen first(PS_SOLID, 1, kRed);
    CPen second(PS_SOLID, 1, kRed);
    EXPECT_TRUE(first != second);
    EXPECT_TRUE(first == *CPen::FromHandle(first));
}

TEST(GdiObject, TellsItsType)
{
    EXPECT_EQ(UINT(OBJ_PEN), CPen(PS_SOLID, 1, kRed).GetObjectType());
    EXPECT_EQ(UINT(OBJ_BRUSH), CBrush(kRed).GetObjectType());
    EXPECT_EQ(0U, CBrush().GetObjectType());
}

TEST(GdiObject, IsMadeDynamicallyByItsClassRecord)
{
    CObject* object = RUNTIME_CLASS(CGdiObject)->CreateObject();
    ASSERT_NE(nullptr, object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CGdiObject)));
    delete object;
}

TEST(GdiObject, LeaksNoHandlesInMoreRoundsThanThereAreHandles)
{
    // A process has at most 65,536 of them; a lost one a round would end this early.
    for (int i = 0; i < 70000; ++i)
    {
        CPen pen(PS_SOLID, 1, kRed);
        CBrush brush(kRed);
        CRgn region;
        ASSERT_TRUE(region.CreateRectRgn(0, 0, 1, 1)) << "round " << i;
        if (i % 1000 == 0)
            CGdiObject::DeleteTempMap();
    }
}
