#include "family/TarnUtil/core/SynchObject.h"
#include "family/TarnUtil/core/TarnObject.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

namespace
{

static_assert(std::has_virtual_destructor_v<TarnObject>);
static_assert(std::has_virtual_destructor_v<Vornwald::SynchObject>);

// A lock that counts and cannot be tried.
class CountingLock : public Vornwald::SynchObject
{
public:
    explicit CountingLock(bool& deleted) : m_deleted(deleted)
    {
    }

    ~CountingLock() override
    {
        m_deleted = true;
    }

    bool Lock() override
    {
        ++m_depth;
        return true;
    }

    void Unlock() override
    {
        --m_depth;
    }

    int m_depth = 0;

private:
    bool& m_deleted;
};

} // namespace

TEST(ReadWriteSimpleValue, WritesTheFieldAndMovesOn)
{
    char buffer[8] = "#######";
    char* cursor = buffer + 1; // unaligned
    unsigned long remaining = 6;
    std::uint32_t value = 0x44434241;
    EXPECT_NE(TarnObject::ReadWriteSimpleValue(cursor, remaining, &value, 4, 0), 0);
    EXPECT_STREQ(buffer, "#ABCD##");
    EXPECT_EQ(cursor, buffer + 5);
    EXPECT_EQ(remaining, 2u);
}

TEST(ReadWriteSimpleValue, ReadsTheFieldAndMovesOn)
{
    char buffer[] = "#ABCD##";
    char* cursor = buffer + 1;
    unsigned long remaining = 4;
    std::uint32_t value = 0;
    EXPECT_NE(TarnObject::ReadWriteSimpleValue(cursor, remaining, &value, 4, 1), 0);
    EXPECT_EQ(value, 0x44434241u);
    EXPECT_EQ(cursor, buffer + 5);
    EXPECT_EQ(remaining, 0u);
    EXPECT_STREQ(buffer, "#ABCD##");
}

TEST(ReadWriteSimpleValue, MovesNothingWhenTooFewBytesRemain)
{
    for (const int read : {0, 1})
    {
        char buffer[] = "ABCD";
        char* cursor = buffer;
        unsigned long remaining = 3;
        std::uint32_t value = 0x5A5A5A5A;
        EXPECT_EQ(TarnObject::ReadWriteSimpleValue(cursor, remaining, &value, 4, read), 0);
        EXPECT_EQ(value, 0x5A5A5A5Au);
        EXPECT_STREQ(buffer, "ABCD");
        EXPECT_EQ(cursor, buffer);
        EXPECT_EQ(remaining, 3u);
    }
}

TEST(ReadWriteSimpleValue, FailsWithoutCursorOrAddress)
{
    char* cursor = nullptr;
    unsigned long remaining = 10;
    char value = 'x';
    EXPECT_EQ(TarnObject::ReadWriteSimpleValue(cursor, remaining, &value, 1, 1), 0);
    EXPECT_EQ(remaining, 10u);
    char buffer[] = "A";
    cursor = buffer;
    EXPECT_EQ(TarnObject::ReadWriteSimpleValue(cursor, remaining, nullptr, 1, 0), 0);
    EXPECT_EQ(cursor, buffer);
}

TEST(ReadWriteSimpleValue, AFieldOfNoBytesSucceedsEvenAtTheEnd)
{
    char* cursor = nullptr;
    unsigned long remaining = 0;
    EXPECT_NE(TarnObject::ReadWriteSimpleValue(cursor, remaining, nullptr, 0, 1), 0);
    EXPECT_EQ(cursor, nullptr);
    EXPECT_EQ(remaining, 0u);
}

TEST(ReadWriteSimpleValue, ASizeThatWouldWrapTheCursorFails)
{
    char buffer[] = "ABCD";
    char* cursor = buffer;
    unsigned long remaining = 4;
    EXPECT_EQ(TarnObject::ReadWriteSimpleValue(cursor, remaining, buffer, ~0ul, 1), 0);
    EXPECT_EQ(cursor, buffer);
}

TEST(SynchObject, DeletesThroughTheBaseAndNeverGetsATriedLock)
{
    bool deleted = false;
    auto* lock = new CountingLock(deleted);
    Vornwald::SynchObject* const base = lock;
    EXPECT_TRUE(base->Lock());
    base->Unlock();
    EXPECT_FALSE(base->TryLock(0));
    EXPECT_FALSE(base->TryLock(1000));
    EXPECT_EQ(lock->m_depth, 0);
    delete base;
    EXPECT_TRUE(deleted);
}
