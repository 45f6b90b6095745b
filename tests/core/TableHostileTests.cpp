#include "files/core/CDBFFile.h"
#include "files/core/TableBox.h"
#include "framework/core/MemFile.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{
using vorn::test::MemoEntryBytes;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

class TableHostile : public testing::TestWithParam<int>
{
protected:
    int Open(const std::string& bytes, int mode = CFile::modeRead)
    {
        m_table.Close();
        return m_table.Open(m_folder.Write("t.dbf", bytes).c_str(), mode);
    }
    /// Calls everything that reads, for its effects on memory and time.
    int ReadAll()
    {
        int records = 0;
        CString out;
        while (m_table.ReadRecord(-1) == 1)
        {
            ++records;
            for (int field = -1; field <= m_table.NumFields(); ++field)
            {
                m_table.GetFieldValue(field, out);
                m_table.GetFieldValueRaw(m_table.GetFieldName(field));
            }
            m_table.SetFieldValue(0, "a value longer than most of the fields in which it is set");
            m_table.SetFieldValue(m_table.NumFields() - 1, "another value of some length");
            m_table.DumpCurrentRecord();
        }
        m_table.Query(0, "nothing", 0);
        m_table.QuerySortedIntData(m_table.GetFieldName(0), "1");
        m_table.QuerySortedStrData(m_table.GetFieldName(0), "1");
        return records;
    }

    ScratchFolder m_folder;
    CDBFFile m_table{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(ReadAhead, TableHostile, testing::Values(0, 3, 500, 2147483647));

TableBytes Table()
{
    TableBytes table;
    table.Field("A", 'C', 5).Field("N", 'N', 3).Field("M", 'M', 4);
    table.Record("first  1   1").Record("secnd 22   2", '*').Record("third333   9");
    return table;
}

TEST_P(TableHostile, Open_RefusesShortHeadersAndDescriptors)
{
    const std::string bytes = Table().Bytes();
    EXPECT_EQ(m_table.Open(m_folder.File("missing.dbf").c_str(), CFile::modeRead), 0);
    EXPECT_EQ(m_table.Open(nullptr, CFile::modeRead), 0);
    EXPECT_EQ(m_table.Open("", CFile::modeRead), 0);
    for (std::size_t size = 0; size < 32 + 3 * 32; ++size)
        ASSERT_EQ(Open(bytes.substr(0, size)), 0) << size;
    EXPECT_EQ(m_table.NumFields(), 0);
    EXPECT_EQ(m_table.FileLen(), 0) << "the file is closed";
    EXPECT_EQ(Open(bytes.substr(0, 32 + 3 * 32)), 1) << "only the end mark is missing";
    EXPECT_EQ(m_table.NumFields(), 3);
    EXPECT_EQ(ReadAll(), 0);
}

TEST_P(TableHostile, Open_RefusesHeaderLengthsBelow32)
{
    for (const int length : {0, 1, 31, 0xFFFF, 0x8000})
    {
        EXPECT_EQ(Open(Table().StateHeaderLength(length).Bytes()), 0) << length;
        EXPECT_EQ(m_table.NumRecords(), 0);
        EXPECT_EQ(ReadAll(), 0);
    }
    EXPECT_EQ(Open(Table().StateHeaderLength(32).Bytes()), 1);
    EXPECT_EQ(m_table.NumFields(), 0);
    EXPECT_EQ(Open(Table().StateHeaderLength(32767).Bytes()), 0) << "1,022 descriptors are not there";
}

TEST_P(TableHostile, Open_OfAFolderIsRefused)
{
    EXPECT_EQ(m_table.Open(m_folder.Path().string().c_str(), CFile::modeRead), 0);
}

TEST_P(TableHostile, RecordLengthBelowOne_HasNoRecords)
{
    for (const int length : {0, 0xFFFF, 0x8000})
    {
        EXPECT_EQ(Open(Table().StateRecordLength(length).StateCount(4294967295UL).Bytes()), 1);
        EXPECT_EQ(ReadAll(), 0) << length;
        EXPECT_EQ(m_table.ReadRecord(0), 0);
        EXPECT_EQ(m_table.ReadRecord(2147483647), 0);
        m_table.SetFieldValue(0, "x");
        EXPECT_EQ(m_table.WriteRecord(nullptr), 0);
        EXPECT_TRUE(m_table.GetFieldValue(0).IsEmpty());
    }
}

TEST_P(TableHostile, RecordOfTheFlagAlone_HasRecordsWithoutValues)
{
    EXPECT_EQ(Open(Table().StateRecordLength(1).StateCount(5).Header() + " * *."), 1);
    EXPECT_EQ(ReadAll(), 3);
}

TEST_P(TableHostile, Count_BeyondTheFileEndsWithTheFile)
{
    for (const unsigned long count : {4UL, 2147483647UL, 2147483648UL, 4294967295UL})
    {
        ASSERT_EQ(Open(Table().StateCount(count).Bytes()), 1);
        EXPECT_EQ(m_table.NumRecords(), count < 2147483647UL ? static_cast<int>(count) : 2147483647);
        EXPECT_EQ(ReadAll(), 2) << count;
        EXPECT_EQ(m_table.ReadRecord(2147483647), 0);
        EXPECT_EQ(m_table.ReadRecord(3), 0);
    }
}

TEST_P(TableHostile, AHalfRecordAtTheEnd_IsNoRecord)
{
    const std::string bytes = Table().Bytes();
    ASSERT_EQ(Open(bytes.substr(0, bytes.size() - 1)), 1);
    EXPECT_EQ(ReadAll(), 1);
}

TEST_P(TableHostile, DescriptorsThatAreNone_AreHarmless)
{
    // 263 bytes behind the end mark, as some programs leave room for, count as eight more fields.
    TableBytes table = Table();
    table.EndHeaderWith("\r" + std::string(263, '\xFE'));
    ASSERT_EQ(Open(table.Bytes()), 1);
    EXPECT_EQ(m_table.NumFields(), 3 + 8);
    EXPECT_STREQ(m_table.GetFieldName(1), "N");
    ASSERT_EQ(m_table.ReadRecord(0), 1);
    EXPECT_STREQ(m_table.GetFieldValue(0), "first");
    ASSERT_EQ(m_table.ReadRecord(2), 1);
    EXPECT_STREQ(m_table.GetFieldValue("N"), "333");
    EXPECT_EQ(ReadAll(), 0);
    m_table.DumpHeader();
}

TEST_P(TableHostile, Keys_OfAnyLengthStayInsideTheRecord)
{
    for (const std::size_t length : {1U, 7U, 8U, 16U, 17U, 255U, 256U, 257U, 4000U})
    {
        const std::string key(length, '\x20');
        m_table.SetDecodeString(key.c_str(), static_cast<int>(length));
        ASSERT_EQ(Open(Table().Bytes()), 1);
        ASSERT_EQ(m_table.ReadRecord(0), 1);
        EXPECT_STREQ(m_table.GetFieldValue("A"), "FIRST");
    }
}

TEST_P(TableHostile, BufferSizes_OfAnyNumberRead)
{
    ASSERT_EQ(Open(Table().Bytes()), 1);
    for (const int size : {-2147483647 - 1, -1, 0, 1, 2, 1000000, 2147483647})
    {
        m_table.SetBufferSize(size);
        EXPECT_EQ(m_table.GetBufferSize(), size > 0 ? size : 0);
        ASSERT_EQ(m_table.ReadRecord(0), 1);
        EXPECT_STREQ(m_table.GetFieldValue("A"), "first");
    }
}

TEST_P(TableHostile, BaseOffsets_OfAnyNumberAreHarmless)
{
    ASSERT_EQ(Open(Table().Bytes()), 1);
    for (const int offset : {-2147483647 - 1, -1, 1, 5, 100, 1000000, 2147483647})
    {
        m_table.SetBaseOffset(offset);
        ReadAll();
    }
    m_table.SetBaseOffset(0);
    EXPECT_EQ(ReadAll(), 2);
}

/// Every byte of head and first records takes a few values that hurt.
TEST_P(TableHostile, EachByteDamagedInTurn_NeverLeavesTheBuffers)
{
    m_folder.Write("t.dbt", std::string(512, '\0') + MemoEntryBytes("memo"));
    const std::string whole = Table().Bytes();
    vorn::SetTableBox([](const char*, const char*) {});
    for (std::size_t at = 0; at < whole.size(); ++at)
    {
        for (const char value : {'\0', '\x7F', '\xFF'})
        {
            std::string damaged = whole;
            damaged[at] = value;
            if (Open(damaged) == 1)
            {
                ReadAll();
                m_table.DumpHeader();
            }
        }
    }
    vorn::SetTableBox(nullptr);
}

/// The same for many bytes at once, reproducibly.
TEST_P(TableHostile, RandomBytes_NeverLeaveTheBuffers)
{
    std::mt19937 random(4711);
    const std::string whole = Table().Bytes();
    for (int round = 0; round < 100; ++round)
    {
        std::string damaged = whole;
        for (int i = 0; i < 12; ++i)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        if (Open(damaged) == 1)
            ReadAll();
    }
}

TEST_P(TableHostile, Memo_DamagedInEachByteOfItsHead)
{
    const std::string memo = std::string(512, '\0') + MemoEntryBytes("memo text");
    m_folder.Write("t.dbf", Table().Bytes());
    for (std::size_t at = 512; at < 528; ++at)
    {
        for (const char value : {'\0', '\x01', '\x1A', '\x7F', '\x80', '\xFF'})
        {
            std::string damaged = memo;
            damaged[at] = value;
            m_table.Close();
            m_folder.Write("t.dbt", damaged);
            ASSERT_EQ(m_table.Open(m_folder.File("t.dbf").c_str(), CFile::modeRead), 1);
            ASSERT_EQ(m_table.ReadRecord(0), 1);
            EXPECT_LE(m_table.GetFieldValue("M").GetLength(), 504);
        }
    }
}
} // namespace
