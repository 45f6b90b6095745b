#include "frame/core/Serialisation.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace
{

/// A record buffer at an odd address.
struct Record
{
    explicit Record(std::string_view content)
        : bytes(std::string(1, '#').append(content)), cursor(bytes.data() + 1),
          remaining(static_cast<unsigned long>(content.size()))
    {
    }

    std::size_t Used() const
    {
        return static_cast<std::size_t>(cursor - bytes.data()) - 1;
    }

    std::string bytes;
    char* cursor;
    unsigned long remaining;
};

std::string Bytes(std::initializer_list<int> values)
{
    std::string bytes;
    for (const int value : values)
        bytes += static_cast<char>(value);
    return bytes;
}

std::string Written(CString text)
{
    Record record(std::string(100, '.'));
    EXPECT_TRUE(ReadWriteCString(record.cursor, record.remaining, text, false));
    EXPECT_EQ(record.remaining, 100 - record.Used());
    return record.bytes.substr(1, record.Used());
}

std::string ToString(const CString& text)
{
    return std::string(text.GetString(), static_cast<std::size_t>(text.GetLength()));
}

std::vector<std::string> TextsOf(const CStringList& list)
{
    std::vector<std::string> texts;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        texts.push_back(ToString(list.GetNext(position)));
    return texts;
}

bool Read(Record& record, CStringList& list)
{
    return ReadWriteCStringList(record.cursor, record.remaining, list, true);
}

} // namespace

TEST(ReadWriteCString, WritesALengthAndTheCharacters)
{
    EXPECT_EQ(Written("abc"), Bytes({3, 0, 0, 0, 'a', 'b', 'c'}));
    EXPECT_EQ(Written(""), Bytes({0, 0, 0, 0}));
    EXPECT_EQ(Written(CString("a\0b", 3)), Bytes({3, 0, 0, 0, 'a', 0, 'b'}));
}

TEST(ReadWriteCString, ReadsWhatItWrote)
{
    Record record(Bytes({3, 0, 0, 0, 'a', 0, 'c', '!'}));
    CString text = "old";
    EXPECT_TRUE(ReadWriteCString(record.cursor, record.remaining, text, true));
    EXPECT_EQ(ToString(text), std::string("a\0c", 3));
    EXPECT_EQ(record.Used(), 7U);
    EXPECT_EQ(record.remaining, 1UL);
}

TEST(ReadWriteCString, LeavesOtherStringsOfTheSameCharacters)
{
    Record record(Bytes({3, 0, 0, 0, 'x', 'y', 'z'}));
    const CString kept = "abc";
    CString text = kept;
    EXPECT_TRUE(ReadWriteCString(record.cursor, record.remaining, text, true));
    EXPECT_EQ(kept, "abc");
    EXPECT_EQ(text, "xyz");
}

TEST(ReadWriteCString, ReadsAnEmptyTextForALengthBelowOne)
{
    for (const std::string& length : {Bytes({0, 0, 0, 0}), Bytes({255, 255, 255, 255}), Bytes({0, 0, 0, 128})})
    {
        Record record(length + "abc");
        CString text = "old";
        EXPECT_TRUE(ReadWriteCString(record.cursor, record.remaining, text, true));
        EXPECT_EQ(text, "");
        EXPECT_EQ(record.Used(), 4U);
    }
}

TEST(ReadWriteCString, FailsOnALengthBeyondTheBufferWithoutAskingForMemory)
{
    for (const std::string& length : {Bytes({255, 255, 255, 127}), Bytes({4, 0, 0, 0})})
    {
        Record record(length + "abc");
        CString text = "old";
        EXPECT_FALSE(ReadWriteCString(record.cursor, record.remaining, text, true));
        EXPECT_EQ(text, "");
    }
}

TEST(ReadWriteCString, FailsOnShortBuffersAndNullCursors)
{
    CString text = "old";
    Record record(Bytes({3, 0, 0}));
    EXPECT_FALSE(ReadWriteCString(record.cursor, record.remaining, text, true));
    EXPECT_EQ(text, "");
    text = "abc";
    Record small(std::string(6, '.'));
    EXPECT_FALSE(ReadWriteCString(small.cursor, small.remaining, text, false));
    EXPECT_EQ(text, "abc");
    char* cursor = nullptr;
    unsigned long remaining = 100;
    EXPECT_FALSE(ReadWriteCString(cursor, remaining, text, false));
    EXPECT_FALSE(ReadWriteCString(cursor, remaining, text, true));
    EXPECT_EQ(text, "");
}

TEST(ReadWriteCStringList, WritesFromHeadToTail)
{
    CStringList list;
    list.AddTail("a");
    list.AddTail("");
    list.AddHead("xy");
    Record record(std::string(50, '.'));
    EXPECT_TRUE(ReadWriteCStringList(record.cursor, record.remaining, list, false));
    EXPECT_EQ(record.bytes.substr(1, record.Used()),
              Bytes({3, 0, 0, 0, 2, 0, 0, 0, 'x', 'y', 1, 0, 0, 0, 'a', 0, 0, 0, 0}));
    EXPECT_EQ(list.GetCount(), 3);
}

TEST(ReadWriteCStringList, ReadingAddsToTheTail)
{
    CStringList list;
    list.AddTail("first");
    Record record(Bytes({2, 0, 0, 0, 1, 0, 0, 0, 'a', 0, 0, 0, 0}));
    EXPECT_TRUE(Read(record, list));
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"first", "a", ""}));
}

TEST(ReadWriteCStringList, ReadsNothingForACountBelowOne)
{
    for (const std::string& count : {Bytes({0, 0, 0, 0}), Bytes({255, 255, 255, 255})})
    {
        CStringList list;
        Record record(count + Bytes({1, 0, 0, 0, 'a'}));
        EXPECT_TRUE(Read(record, list));
        EXPECT_EQ(list.GetCount(), 0);
        EXPECT_EQ(record.Used(), 4U);
    }
}

TEST(ReadWriteCStringList, KeepsWhatWasReadBeforeTheFailure)
{
    CStringList list;
    Record record(Bytes({255, 255, 255, 127, 1, 0, 0, 0, 'a', 0, 0, 0, 0, 9, 0, 0, 0, 'b'}));
    EXPECT_FALSE(Read(record, list));
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"a", ""})) << "only texts that were read whole";
}

TEST(ReadWriteCStringList, StopsWritingWhenTheRoomEnds)
{
    CStringList list;
    list.AddTail("abc");
    list.AddTail("def");
    Record record(std::string(12, '.'));
    EXPECT_FALSE(ReadWriteCStringList(record.cursor, record.remaining, list, false));
}

TEST(ReadWriteCStringList, ComesBackWhole)
{
    CStringList list;
    for (int i = 0; i < 1000; ++i)
        list.AddTail(CString("text ") + std::to_string(i).c_str());
    Record record(std::string(20'000, '.'));
    ASSERT_TRUE(ReadWriteCStringList(record.cursor, record.remaining, list, false));
    Record again(record.bytes.substr(1, record.Used()));
    CStringList back;
    EXPECT_TRUE(Read(again, back));
    EXPECT_EQ(again.remaining, 0UL);
    EXPECT_EQ(TextsOf(back), TextsOf(list));
}
