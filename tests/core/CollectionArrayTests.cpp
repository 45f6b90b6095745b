#include "framework/core/Array.h"
#include "framework/core/TypedPtr.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>

TEST(StringArray, StartsEmpty)
{
    const CStringArray array;
    EXPECT_EQ(array.GetSize(), 0);
    EXPECT_EQ(array.GetCount(), 0);
    EXPECT_EQ(array.GetUpperBound(), -1);
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.GetData(), nullptr);
}

TEST(StringArray, AddReturnsTheIndex)
{
    CStringArray array;
    EXPECT_EQ(array.Add("north"), 0);
    EXPECT_EQ(array.Add(CString("south")), 1);
    EXPECT_EQ(array[0], "north");
    EXPECT_EQ(array.GetAt(1), "south");
    EXPECT_EQ(array.GetUpperBound(), 1);
}

TEST(StringArray, AddTakesItsOwnElementWhileGrowing)
{
    CStringArray array;
    array.Add("first");
    for (int i = 0; i < 100; ++i)
    {
        array.Add(array[0]);
    }
    EXPECT_EQ(array[100], "first");
}

TEST(StringArray, IndicesOutsideThrowInvalidArgument)
{
    CStringArray array;
    array.Add("only");
    EXPECT_THROW(array.GetAt(-1), CInvalidArgException*);
    EXPECT_THROW(array.GetAt(1), CInvalidArgException*);
    EXPECT_THROW(array[1], CInvalidArgException*);
    EXPECT_THROW(array[-1] = "x", CInvalidArgException*);
    EXPECT_THROW(array.ElementAt(1), CInvalidArgException*);
    EXPECT_THROW(array.SetAt(1, "x"), CInvalidArgException*);
    EXPECT_THROW(array.SetAtGrow(-1, "x"), CInvalidArgException*);
    EXPECT_THROW(array.SetSize(-1), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(-1, "x"), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(0, "x", 0), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(0, 2), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(-1), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(1), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(0, -1), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(0, std::numeric_limits<INT_PTR>::max()), CInvalidArgException*);
    EXPECT_THROW(array.Append(array), CInvalidArgException*);
    EXPECT_EQ(array.GetSize(), 1);
    EXPECT_EQ(array[0], "only");
}

TEST(StringArray, RemovingNothingAtTheEndIsAllowed)
{
    CStringArray array;
    array.RemoveAt(0, 0);
    EXPECT_TRUE(array.IsEmpty());
}

TEST(Array, ImpossibleSizesThrowTheMemoryException)
{
    CDWordArray array;
    array.Add(7);
    EXPECT_THROW(array.SetSize(std::numeric_limits<INT_PTR>::max()), CMemoryException*);
    EXPECT_THROW(array.SetAtGrow(std::numeric_limits<INT_PTR>::max(), 1), CMemoryException*);
    EXPECT_THROW(array.InsertAt(std::numeric_limits<INT_PTR>::max(), DWORD{1}), CMemoryException*);
    EXPECT_EQ(array.GetSize(), 1);
    EXPECT_EQ(array[0], 7u);
}

TEST(StringArray, SetAtGrowFillsTheGapWithEmptyTexts)
{
    CStringArray array;
    array.SetAtGrow(3, "last");
    EXPECT_EQ(array.GetSize(), 4);
    EXPECT_TRUE(array[0].IsEmpty());
    EXPECT_TRUE(array[2].IsEmpty());
    EXPECT_EQ(array[3], "last");
    array.SetAtGrow(0, array[3]);
    EXPECT_EQ(array[0], "last");
    EXPECT_EQ(array.GetSize(), 4);
}

TEST(StringArray, SetSizeCutsAndFills)
{
    CStringArray array;
    array.Add("a");
    array.Add("b");
    array.SetSize(1, 100);
    EXPECT_EQ(array.GetSize(), 1);
    array.SetSize(3);
    EXPECT_EQ(array[0], "a");
    EXPECT_TRUE(array[1].IsEmpty());
    array.SetSize(0);
    EXPECT_TRUE(array.IsEmpty());
}

TEST(Array, NewNumbersAreZero)
{
    CByteArray bytes;
    bytes.SetSize(5);
    for (INT_PTR i = 0; i < 5; ++i)
    {
        EXPECT_EQ(bytes[i], 0);
    }
}

TEST(Array, GrowthStepKeepsTheElementsInPlace)
{
    CUIntArray array;
    array.SetSize(1, 1000);
    array.Add(1);
    const UINT* data = array.GetData();
    for (UINT i = 0; i < 900; ++i)
    {
        array.Add(i);
    }
    EXPECT_EQ(array.GetData(), data);
}

TEST(StringArray, InsertAtShiftsTheRest)
{
    CStringArray array;
    array.Add("a");
    array.Add("d");
    array.InsertAt(1, "b", 2);
    ASSERT_EQ(array.GetSize(), 4);
    EXPECT_EQ(array[1], "b");
    EXPECT_EQ(array[2], "b");
    EXPECT_EQ(array[3], "d");
    array.InsertAt(0, array[3]);
    EXPECT_EQ(array[0], "d");
    EXPECT_EQ(array[1], "a");
}

TEST(StringArray, InsertBeyondTheEndFillsTheGap)
{
    CStringArray array;
    array.InsertAt(2, "c");
    ASSERT_EQ(array.GetSize(), 3);
    EXPECT_TRUE(array[1].IsEmpty());
    EXPECT_EQ(array[2], "c");
}

TEST(StringArray, InsertsAnotherArrayOrItself)
{
    CStringArray array;
    array.Add("a");
    array.Add("b");
    array.InsertAt(1, &array);
    ASSERT_EQ(array.GetSize(), 4);
    EXPECT_EQ(array[0], "a");
    EXPECT_EQ(array[1], "a");
    EXPECT_EQ(array[2], "b");
    EXPECT_EQ(array[3], "b");
    const CStringArray* none = nullptr;
    EXPECT_THROW(array.InsertAt(0, none), CInvalidArgException*);
}

TEST(StringArray, CopyAndAppend)
{
    CStringArray source;
    source.Add("x");
    source.Add("y");
    CStringArray target;
    target.Add("old");
    EXPECT_EQ(target.Append(source), 1);
    EXPECT_EQ(target[2], "y");
    target.Copy(source);
    EXPECT_EQ(target.GetSize(), 2);
    target.Copy(target);
    EXPECT_EQ(target[1], "y");
    source.SetAt(0, CString('x', 101));
    target.Copy(source);
    EXPECT_EQ(source[0].GetString(), target[0].GetString()) << "copies of long texts share their characters";
}

TEST(StringArray, RemoveAtClosesTheGap)
{
    CStringArray array;
    for (const char* text : {"0", "1", "2", "3", "4"})
    {
        array.Add(text);
    }
    array.RemoveAt(1, 2);
    ASSERT_EQ(array.GetSize(), 3);
    EXPECT_EQ(array[0], "0");
    EXPECT_EQ(array[1], "3");
    EXPECT_EQ(array[2], "4");
}

TEST(Array, FreeExtraKeepsTheElements)
{
    CDWordArray array;
    array.SetSize(10, 100);
    array[9] = 9;
    array.FreeExtra();
    EXPECT_EQ(array.GetSize(), 10);
    EXPECT_EQ(array[9], 9u);
    array.RemoveAll();
    array.FreeExtra();
    EXPECT_EQ(array.GetSize(), 0);
}

TEST(Array, HoldsTruthValuesInOnePiece)
{
    CArray<bool, bool> flags;
    flags.Add(true);
    flags.Add(false);
    EXPECT_TRUE(flags.GetData()[0]);
    EXPECT_FALSE(flags.GetData()[1]);
}

TEST(Array, EndsEachElementOnce)
{
    const auto counted = std::make_shared<int>(1);
    {
        CArray<std::shared_ptr<int>> array;
        for (int i = 0; i < 20; ++i)
        {
            array.Add(counted);
        }
        array.InsertAt(3, counted, 5);
        array.RemoveAt(0, 4);
        EXPECT_EQ(counted.use_count(), 22);
        array.SetSize(2);
        EXPECT_EQ(counted.use_count(), 3);
    }
    EXPECT_EQ(counted.use_count(), 1);
}

TEST(Array, HasRuntimeClasses)
{
    EXPECT_STREQ(RUNTIME_CLASS(CStringArray)->m_lpszClassName, "CStringArray");
    const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("CPtrArray"));
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CPtrArray)));
    EXPECT_FALSE(made->IsKindOf(RUNTIME_CLASS(CObArray)));
}

TEST(TypedPtrArray, GivesTypedPointers)
{
    int numbers[] = {1, 2, 3};
    CTypedPtrArray<CPtrArray, int*> array;
    array.Add(&numbers[0]);
    array.SetAtGrow(1, &numbers[1]);
    array.InsertAt(0, &numbers[2]);
    EXPECT_EQ(*array.GetAt(0), 3);
    int* second = array[1];
    EXPECT_EQ(*second, 1);
    array[1] = &numbers[2];
    EXPECT_EQ(*array[1], 3);
    EXPECT_THROW(array.GetAt(3), CInvalidArgException*);
    CTypedPtrArray<CPtrArray, int*> copy;
    copy.Copy(array);
    EXPECT_EQ(copy.Append(array), 3);
    EXPECT_EQ(copy.GetSize(), 6);
}
