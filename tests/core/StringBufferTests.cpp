#include "frame/core/StringBuffer.h"

#include "frame/core/SharedArrays.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <thread>

namespace
{

/// Takes care of an array that assignment abandons, as the interface has it.
using Abandoned = std::unique_ptr<char[]>;

std::string Text(StringBuffer& buffer)
{
    return static_cast<char*>(buffer);
}

} // namespace

TEST(StringBuffer, OfASizeIsAllZero)
{
    StringBuffer buffer(5L);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(buffer[i], '\0');
    EXPECT_TRUE(buffer.IsEmpty());
    EXPECT_NE(static_cast<char*>(buffer), nullptr);
}

TEST(StringBuffer, OfASizeBelowOneIsNull)
{
    for (const long size : {0L, -1L, -2147483647L})
    {
        StringBuffer buffer(size);
        EXPECT_EQ(static_cast<char*>(buffer), nullptr) << size;
        EXPECT_TRUE(buffer.IsEmpty());
    }
}

TEST(StringBuffer, CopiesTheTextItIsMadeFrom)
{
    char text[] = "abc";
    StringBuffer buffer(text);
    text[0] = 'x';
    EXPECT_EQ(Text(buffer), "abc");
    EXPECT_FALSE(buffer.IsEmpty());
    StringBuffer empty("");
    EXPECT_NE(static_cast<char*>(empty), nullptr);
    EXPECT_TRUE(empty.IsEmpty());
}

TEST(StringBuffer, OfANullTextOrACopyOfANullBufferIsNull)
{
    const char* const none = nullptr;
    StringBuffer buffer(none);
    EXPECT_EQ(static_cast<char*>(buffer), nullptr);
    StringBuffer copy(buffer);
    EXPECT_EQ(static_cast<char*>(copy), nullptr);
}

TEST(StringBuffer, ACopyHasItsOwnArray)
{
    StringBuffer buffer("abc");
    StringBuffer copy(buffer);
    EXPECT_NE(static_cast<char*>(copy), static_cast<char*>(buffer));
    copy[0] = 'x';
    EXPECT_EQ(Text(buffer), "abc");
    EXPECT_EQ(Text(copy), "xbc");
}

TEST(StringBuffer, AssigningATextLeavesAnEmptyOneInANewArray)
{
    StringBuffer buffer("old text");
    const Abandoned old(static_cast<char*>(buffer));
    buffer = "text";
    EXPECT_NE(static_cast<char*>(buffer), old.get());
    EXPECT_TRUE(buffer.IsEmpty());
    EXPECT_STREQ(old.get(), "old text") << "the old array is alive";
    // The new array has room for the text and its end.
    std::strcpy(buffer, "text");
    EXPECT_EQ(Text(buffer), "text");
}

TEST(StringBuffer, AssigningNoTextEmptiesTheArrayAtHand)
{
    for (const char* const text : {"", static_cast<const char*>(nullptr)})
    {
        StringBuffer buffer("abc");
        char* const array = buffer;
        buffer = text;
        EXPECT_EQ(static_cast<char*>(buffer), array);
        EXPECT_EQ(Text(buffer), "");
        EXPECT_EQ(array[1], 'b') << "only the first character changes";
    }
}

TEST(StringBuffer, AssigningNoTextGivesANullBufferOneByte)
{
    for (const char* const text : {"", static_cast<const char*>(nullptr)})
    {
        StringBuffer buffer(0L);
        buffer = text;
        ASSERT_NE(static_cast<char*>(buffer), nullptr);
        EXPECT_EQ(Text(buffer), "");
    }
}

TEST(StringBuffer, AssigningABufferSharesItsArray)
{
    StringBuffer first("abc");
    StringBuffer second(0L);
    second = first;
    EXPECT_EQ(static_cast<char*>(second), static_cast<char*>(first));
    second[1] = 'x';
    EXPECT_EQ(Text(first), "axc");
}

TEST(StringBuffer, AssigningABufferAbandonsTheOldArray)
{
    StringBuffer first("abc");
    StringBuffer second("def");
    const Abandoned old(static_cast<char*>(second));
    second = first;
    EXPECT_STREQ(old.get(), "def");
}

TEST(StringBuffer, ASharedArrayLivesUntilItsLastHolderLetsGo)
{
    auto first = std::make_unique<StringBuffer>("abc");
    StringBuffer second(0L);
    {
        StringBuffer third(0L);
        second = *first;
        third = second;
    }
    first.reset();
    EXPECT_EQ(Text(second), "abc");
}

TEST(StringBuffer, ATemporaryHandsItsArrayOver)
{
    StringBuffer buffer(0L);
    buffer = StringBuffer("abc");
    EXPECT_EQ(Text(buffer), "abc");
}

TEST(StringBuffer, AssignedToItselfStays)
{
    StringBuffer buffer("abc");
    StringBuffer& same = buffer;
    buffer = same;
    buffer = same;
    EXPECT_EQ(Text(buffer), "abc");
    StringBuffer sharing(0L);
    sharing = buffer;
    sharing = buffer;
    EXPECT_EQ(Text(sharing), "abc");
}

TEST(StringBuffer, ANullBufferAssignedMakesNull)
{
    StringBuffer buffer("abc");
    const Abandoned old(static_cast<char*>(buffer));
    buffer = StringBuffer(0L);
    EXPECT_EQ(static_cast<char*>(buffer), nullptr);
}

TEST(StringBuffer, ChangesOfOneHolderLeaveTheOthersArrayAlone)
{
    StringBuffer first("abc");
    StringBuffer second(0L);

    second = first;
    second += "def";
    EXPECT_EQ(Text(first), "abc");
    EXPECT_EQ(Text(second), "abcdef");

    StringBuffer third(0L);
    third = first;
    third.Resize(10);
    EXPECT_EQ(Text(first), "abc");

    StringBuffer fourth(0L);
    fourth = first;
    fourth.SetString("xyz", 3);
    EXPECT_EQ(Text(first), "abc");
    EXPECT_EQ(Text(fourth), "xyz");
}

TEST(StringBuffer, ATextAssignedToOneHolderLeavesTheArrayToTheOther)
{
    StringBuffer first("abc");
    {
        StringBuffer second(0L);
        second = first;
        second = "text";
        EXPECT_TRUE(vorn::RemoveHolder(static_cast<char*>(first))) << "one holder is left, who will release it";
    }
    EXPECT_EQ(Text(first), "abc");
}

TEST(StringBuffer, HoldersOfOtherArraysAreCountedApart)
{
    StringBuffer pair("pair");
    StringBuffer secondOfPair(0L);
    secondOfPair = pair;
    StringBuffer three("three");
    StringBuffer secondOfThree(0L);
    StringBuffer thirdOfThree(0L);
    secondOfThree = three;
    thirdOfThree = three;
    secondOfPair.Resize(1);
    EXPECT_TRUE(vorn::RemoveHolder(static_cast<char*>(pair))) << "one holder is left";
    secondOfThree.Resize(1);
    thirdOfThree.Resize(1);
    EXPECT_TRUE(vorn::RemoveHolder(static_cast<char*>(three)));
    EXPECT_EQ(Text(three), "three");
}

TEST(StringBuffer, AppendsTexts)
{
    StringBuffer buffer("abc");
    buffer += "def";
    EXPECT_EQ(Text(buffer), "abcdef");
    StringBuffer none(0L);
    none += "abc";
    EXPECT_EQ(Text(none), "abc");
    buffer += none;
    EXPECT_EQ(Text(buffer), "abcdefabc");
}

TEST(StringBuffer, AppendingNothingChangesNothing)
{
    StringBuffer buffer("abc");
    char* const array = buffer;
    buffer += "";
    EXPECT_EQ(static_cast<char*>(buffer), array);
    EXPECT_EQ(Text(buffer), "abc");
    StringBuffer none(0L);
    none += "";
    EXPECT_EQ(static_cast<char*>(none), nullptr);
}

TEST(StringBuffer, AppendingNullEmpties)
{
    StringBuffer buffer("abc");
    buffer += nullptr;
    EXPECT_EQ(Text(buffer), "");
    StringBuffer other("abc");
    other += StringBuffer(0L);
    EXPECT_EQ(Text(other), "");
}

TEST(StringBuffer, AppendsItsOwnText)
{
    StringBuffer buffer("abc");
    buffer += buffer;
    EXPECT_EQ(Text(buffer), "abcabc");
    buffer += static_cast<char*>(buffer) + 4;
    EXPECT_EQ(Text(buffer), "abcabcbc");
}

TEST(StringBuffer, EmptyKeepsTheArray)
{
    StringBuffer buffer("abc");
    char* const array = buffer;
    buffer.Empty();
    EXPECT_EQ(static_cast<char*>(buffer), array);
    EXPECT_TRUE(buffer.IsEmpty());
    StringBuffer none(0L);
    none.Empty();
    EXPECT_NE(static_cast<char*>(none), nullptr);
}

TEST(StringBuffer, ResizeLosesTheText)
{
    StringBuffer buffer("abc");
    buffer.Resize(8);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(buffer[i], '\0');
    for (const int size : {1, 0, -5})
    {
        buffer.Resize(size);
        ASSERT_NE(static_cast<char*>(buffer), nullptr) << size;
        EXPECT_EQ(buffer[0], '\0');
    }
}

TEST(StringBuffer, SetStringTakesAtMostTheLength)
{
    StringBuffer buffer("old");
    buffer.SetString("abcdef", 3);
    EXPECT_EQ(Text(buffer), "abc");
    buffer.SetString("abc", 10);
    EXPECT_EQ(Text(buffer), "abc");
    buffer.SetString("abc", 0);
    EXPECT_EQ(Text(buffer), "");
}

TEST(StringBuffer, SetStringLooksAtNothingBeyondTheLength)
{
    const auto text = std::make_unique<char[]>(3); // no end in sight
    std::memcpy(text.get(), "abc", 3);
    StringBuffer buffer(0L);
    buffer.SetString(text.get(), 3);
    EXPECT_EQ(Text(buffer), "abc");
}

TEST(StringBuffer, SetStringTakesPartOfItsOwnText)
{
    StringBuffer buffer("abcdef");
    buffer.SetString(static_cast<char*>(buffer) + 1, 3);
    EXPECT_EQ(Text(buffer), "bcd");
}

TEST(StringBuffer, SetStringWithoutLengthActsAsAssignment)
{
    StringBuffer buffer("abc");
    const Abandoned old(static_cast<char*>(buffer));
    buffer.SetString("text", -1);
    EXPECT_NE(static_cast<char*>(buffer), old.get());
    EXPECT_EQ(Text(buffer), "");
    char* const array = buffer;
    buffer.SetString(nullptr, 5);
    EXPECT_EQ(static_cast<char*>(buffer), array);
    EXPECT_EQ(Text(buffer), "");
}

TEST(StringBuffer, PointsAsAPlainPointerDoes)
{
    StringBuffer buffer("abc");
    EXPECT_EQ(buffer - 1, static_cast<char*>(buffer) - 1);
    buffer[1] = 'x';
    const StringBuffer& constant = buffer;
    EXPECT_EQ(constant[1], 'x');
    EXPECT_EQ(sizeof(StringBuffer), sizeof(char*));
}

TEST(StringBuffer, SharingIsSafeOverThreads)
{
    const auto work = []
    {
        for (int i = 0; i < 2000; ++i)
        {
            StringBuffer first("abc");
            StringBuffer second(0L);
            second = first;
            second += "d";
        }
    };
    std::thread other(work);
    work();
    other.join();
}
