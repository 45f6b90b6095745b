#include "framework/core/List.h"
#include "framework/core/TypedPtr.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace
{
std::string Joined(const CStringList& list)
{
    std::string text;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;)
    {
        text += list.GetNext(at);
    }
    return text;
}

std::string JoinedBackwards(const CStringList& list)
{
    std::string text;
    for (POSITION at = list.GetTailPosition(); at != nullptr;)
    {
        text += list.GetPrev(at);
    }
    return text;
}
} // namespace

TEST(StringList, KeepsOrderFromBothEnds)
{
    CStringList list;
    list.AddTail("b");
    list.AddTail("c");
    list.AddHead("a");
    EXPECT_EQ(Joined(list), "abc");
    EXPECT_EQ(JoinedBackwards(list), "cba");
    EXPECT_EQ(list.GetHead(), "a");
    EXPECT_EQ(list.GetTail(), "c");
    EXPECT_EQ(list.GetCount(), 3);
}

TEST(StringList, TakingFromAnEmptyListThrows)
{
    CStringList list;
    EXPECT_THROW(list.GetHead(), CInvalidArgException*);
    EXPECT_THROW(list.GetTail(), CInvalidArgException*);
    EXPECT_THROW(list.RemoveHead(), CInvalidArgException*);
    EXPECT_THROW(list.RemoveTail(), CInvalidArgException*);
    POSITION none = nullptr;
    EXPECT_THROW(list.GetNext(none), CInvalidArgException*);
    EXPECT_THROW(list.GetPrev(none), CInvalidArgException*);
    EXPECT_THROW(list.GetAt(none), CInvalidArgException*);
    EXPECT_THROW(list.SetAt(none, "x"), CInvalidArgException*);
    EXPECT_THROW(list.RemoveAt(none), CInvalidArgException*);
    CStringList* noList = nullptr;
    EXPECT_THROW(list.AddTail(noList), CInvalidArgException*);
    EXPECT_TRUE(list.IsEmpty());
}

TEST(StringList, RemovesAtEitherEnd)
{
    CStringList list;
    for (const char* text : {"a", "b", "c"})
    {
        list.AddTail(text);
    }
    EXPECT_EQ(list.RemoveHead(), "a");
    EXPECT_EQ(list.RemoveTail(), "c");
    EXPECT_EQ(list.RemoveTail(), "b");
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    EXPECT_EQ(list.GetTailPosition(), nullptr);
}

TEST(StringList, AddsWholeListsInTheirOrder)
{
    CStringList list;
    list.AddTail("m");
    CStringList more;
    more.AddTail("x");
    more.AddTail("y");
    list.AddHead(&more);
    list.AddTail(&more);
    EXPECT_EQ(Joined(list), "xymxy");
    list.AddTail(&list);
    EXPECT_EQ(Joined(list), "xymxyxymxy");
}

TEST(StringList, InsertsAroundPositions)
{
    CStringList list;
    const POSITION middle = list.AddTail("m");
    list.InsertBefore(middle, "l");
    list.InsertAfter(middle, "n");
    list.InsertBefore(nullptr, "<");
    list.InsertAfter(nullptr, ">");
    EXPECT_EQ(Joined(list), "<lmn>");
    EXPECT_EQ(JoinedBackwards(list), ">nml<");
}

TEST(StringList, FindsByValueAndIndex)
{
    CStringList list;
    for (const char* text : {"a", "b", "a"})
    {
        list.AddTail(text);
    }
    const POSITION first = list.Find("a");
    EXPECT_EQ(first, list.GetHeadPosition());
    EXPECT_EQ(list.Find("a", first), list.GetTailPosition());
    EXPECT_EQ(list.Find("a", list.GetTailPosition()), nullptr);
    EXPECT_EQ(list.Find("z"), nullptr);
    EXPECT_EQ(list.GetAt(list.FindIndex(1)), "b");
    EXPECT_EQ(list.FindIndex(3), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(StringList, PositionsSurviveOtherRemovals)
{
    CStringList list;
    list.AddTail("a");
    const POSITION b = list.AddTail("b");
    list.AddTail("c");
    list.RemoveHead();
    list.RemoveTail();
    EXPECT_EQ(list.GetAt(b), "b");
    list.SetAt(b, "B");
    EXPECT_EQ(list.GetHead(), "B");
    list.RemoveAt(b);
    EXPECT_TRUE(list.IsEmpty());
}

TEST(List, EndsEachElementOnce)
{
    const auto counted = std::make_shared<int>(1);
    {
        CList<std::shared_ptr<int>> list;
        list.AddTail(counted);
        list.AddHead(counted);
        list.AddTail(counted);
        EXPECT_EQ(list.RemoveHead().use_count(), 4);
        EXPECT_EQ(counted.use_count(), 3);
    }
    EXPECT_EQ(counted.use_count(), 1);
}

TEST(List, HasRuntimeClasses)
{
    const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("CStringList"));
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CStringList)));
}

TEST(TypedPtrList, GivesTypedPointers)
{
    CStringList inner;
    CTypedPtrList<CObList, CStringList*> list;
    const POSITION at = list.AddTail(&inner);
    list.GetHead()->AddTail("x");
    EXPECT_EQ(inner.GetCount(), 1);
    EXPECT_EQ(list.GetAt(at), &inner);
    POSITION next = list.GetHeadPosition();
    EXPECT_EQ(list.GetNext(next), &inner);
    EXPECT_EQ(next, nullptr);
    EXPECT_EQ(list.RemoveTail(), &inner);
}

TEST(ListMemory, PlacesOfRemovedElementsAreUsedAgain)
{
    CList<int, int> list(2);
    for (int i = 0; i < 1000; ++i)
    {
        list.AddTail(i);
    }
    for (int i = 0; i < 1000; i += 2)
    {
        EXPECT_EQ(list.RemoveHead(), i);
        EXPECT_EQ(list.RemoveHead(), i + 1);
        list.AddTail(1000 + i);
        list.AddTail(1001 + i);
    }
    EXPECT_EQ(list.GetCount(), 1000);
    int expected = 1000;
    for (POSITION at = list.GetHeadPosition(); at != nullptr; ++expected)
    {
        ASSERT_EQ(list.GetNext(at), expected);
    }
    EXPECT_EQ(expected, 2000);
}

TEST(ListMemory, AListIsUsableAfterRemoveAll)
{
    CStringList list(0); // a first piece of one element at least
    for (int round = 0; round < 3; ++round)
    {
        list.AddTail("a");
        list.AddTail("b");
        EXPECT_EQ(Joined(list), "ab");
        list.RemoveAll();
        EXPECT_TRUE(list.IsEmpty());
        EXPECT_EQ(list.GetHeadPosition(), nullptr);
    }
}

TEST(ListMemory, AnElementThatCannotBeCopiedLeavesTheListAsItWas)
{
    struct Refusing
    {
        Refusing() = default;
        Refusing(const Refusing& other) : refuses(other.refuses)
        {
            if (refuses)
            {
                throw 7;
            }
        }
        Refusing& operator=(const Refusing&) = default;
        bool refuses = false;
    };
    CList<Refusing> list;
    Refusing element;
    list.AddTail(element);
    element.refuses = true;
    EXPECT_THROW(list.AddTail(element), int);
    EXPECT_EQ(list.GetCount(), 1);
    element.refuses = false;
    list.AddTail(element);
    EXPECT_EQ(list.GetCount(), 2);
}
