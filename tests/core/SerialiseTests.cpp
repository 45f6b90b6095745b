#include "frame/core/Serialise.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

using namespace vorn;

namespace
{

/// Moves plain bytes and counts the moves.
int g_moves = 0;

int MoveBytes(char*& cursor, unsigned long& remaining, void* field, unsigned long size, int read)
{
    ++g_moves;
    if (cursor == nullptr || remaining < size)
        return 0;
    if (read != 0)
        std::memcpy(field, cursor, size);
    else
        std::memcpy(cursor, field, size);
    cursor += size;
    remaining -= size;
    return 1;
}

/// A record buffer that starts at an odd address, with its cursor.
struct Record
{
    explicit Record(std::string_view content)
        : bytes(std::string(1, '#').append(content)), cursor(bytes.data() + 1), remaining(content.size())
    {
    }

    auto Fields()
    {
        return RecordFields(cursor, remaining, &MoveBytes);
    }

    std::size_t Used() const
    {
        return static_cast<std::size_t>(cursor - bytes.data()) - 1;
    }

    std::string Written() const
    {
        return bytes.substr(1, Used());
    }

    std::string bytes;
    char* cursor;
    unsigned long remaining;
};

bool ReadInto(Record& record, std::string& text)
{
    text.clear();
    auto fields = record.Fields();
    return fields.ReadText(
        [&text](std::int32_t length)
        {
            text.resize(static_cast<std::size_t>(length));
            return text.data();
        });
}

std::string Bytes(std::initializer_list<int> values)
{
    std::string bytes;
    for (const int value : values)
        bytes += static_cast<char>(value);
    return bytes;
}

} // namespace

TEST(SerialisedText, IsALengthAndTheCharacters)
{
    Record record(std::string(10, '.'));
    EXPECT_TRUE(record.Fields().WriteText("abc"));
    EXPECT_EQ(record.Written(), Bytes({3, 0, 0, 0, 'a', 'b', 'c'}));
    EXPECT_EQ(record.remaining, 3UL);
}

TEST(SerialisedText, OfAnEmptyTextIsTheLengthAlone)
{
    Record record(std::string(10, '.'));
    g_moves = 0;
    EXPECT_TRUE(record.Fields().WriteText(""));
    EXPECT_EQ(record.Written(), Bytes({0, 0, 0, 0}));
    EXPECT_EQ(g_moves, 1);
}

TEST(SerialisedText, ComesBackAndAdvancesTheCursor)
{
    Record record(Bytes({3, 0, 0, 0, 'a', 'b', 'c', 'd'}));
    std::string text = "old";
    EXPECT_TRUE(ReadInto(record, text));
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(record.Used(), 7U);
    EXPECT_EQ(record.remaining, 1UL);
}

TEST(SerialisedText, KeepsZeroBytes)
{
    const std::string content("a\0b\0", 4);
    Record record(std::string(20, '.'));
    EXPECT_TRUE(record.Fields().WriteText(content));
    Record back(record.Written());
    std::string text;
    EXPECT_TRUE(ReadInto(back, text));
    EXPECT_EQ(text, content);
}

TEST(SerialisedText, ANegativeOrZeroLengthReadsAsEmpty)
{
    for (const std::string& length : {Bytes({0, 0, 0, 0}), Bytes({255, 255, 255, 255}), Bytes({0, 0, 0, 128})})
    {
        Record record(length + "abc");
        std::string text = "old";
        EXPECT_TRUE(ReadInto(record, text));
        EXPECT_EQ(text, "");
        EXPECT_EQ(record.Used(), 4U);
    }
}

TEST(SerialisedText, ALengthBeyondTheBufferFailsBeforeAnyRoomIsMade)
{
    for (const std::string& length : {Bytes({255, 255, 255, 127}), Bytes({4, 0, 0, 0})})
    {
        Record record(length + "abc");
        bool asked = false;
        EXPECT_FALSE(record.Fields().ReadText(
            [&asked](std::int32_t) -> char*
            {
                asked = true;
                return nullptr;
            }));
        EXPECT_FALSE(asked);
        EXPECT_EQ(record.Used(), 4U);
    }
}

TEST(SerialisedText, AShortLengthFieldFails)
{
    for (std::size_t size = 0; size < 4; ++size)
    {
        Record record(std::string(size, '\0'));
        std::string text = "old";
        EXPECT_FALSE(ReadInto(record, text));
        EXPECT_EQ(text, "");
        EXPECT_EQ(record.Used(), 0U);
    }
}

TEST(SerialisedText, WritingWithoutRoomFailsAndStopsAtTheFieldThatDoesNotFit)
{
    Record three(std::string(3, '.'));
    EXPECT_FALSE(three.Fields().WriteText("abc"));
    EXPECT_EQ(three.Used(), 0U);
    Record six(std::string(6, '.'));
    EXPECT_FALSE(six.Fields().WriteText("abc"));
    EXPECT_EQ(six.Used(), 4U);
}

TEST(SerialisedNumber, WritesNegativesAsZero)
{
    Record record(std::string(4, '.'));
    EXPECT_TRUE(record.Fields().WriteNumber(-7));
    EXPECT_EQ(record.Written(), Bytes({0, 0, 0, 0}));
}

TEST(SerialisedList, ReadsAsManyAsItsCountSays)
{
    Record record(Bytes({2, 0, 0, 0, 1, 0, 0, 0, 'x', 0, 0, 0, 0, 9}));
    int read = 0;
    EXPECT_TRUE(record.Fields().ReadList(
        [&read](auto& fields)
        {
            ++read;
            return fields.ReadText(
                [](std::int32_t)
                {
                    static char room[8];
                    return room;
                });
        }));
    EXPECT_EQ(read, 2);
    EXPECT_EQ(record.remaining, 1UL);
}

TEST(SerialisedList, ACountBelowOneReadsNothing)
{
    for (const std::string& count : {Bytes({0, 0, 0, 0}), Bytes({254, 255, 255, 255})})
    {
        Record record(count + std::string(20, '\0'));
        EXPECT_TRUE(record.Fields().ReadList(
            [](auto&)
            {
                ADD_FAILURE();
                return true;
            }));
        EXPECT_EQ(record.Used(), 4U);
    }
}

TEST(SerialisedList, AHugeCountStopsAtTheFirstTextThatFails)
{
    Record record(Bytes({255, 255, 255, 127, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
    int calls = 0;
    EXPECT_FALSE(record.Fields().ReadList(
        [&calls](auto& fields)
        {
            ++calls;
            return fields.ReadText(
                [](std::int32_t) -> char*
                {
                    return nullptr;
                });
        }));
    EXPECT_EQ(calls, 3);
}
