#include "files/core/CDBFFile.h"
#include "tests/oracle/OurTable.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <sys/types.h>

/// The program is linked so that the calls of read and lseek come here first.
extern "C" ssize_t __real_read(int file, void* buffer, size_t count);
extern "C" off_t __real_lseek(int file, off_t offset, int whence);

namespace
{

int s_reads = 0;
int s_seeks = 0;

} // namespace

extern "C" ssize_t __wrap_read(int file, void* buffer, size_t count)
{
    ++s_reads;
    return __real_read(file, buffer, count);
}

extern "C" off_t __wrap_lseek(int file, off_t offset, int whence)
{
    ++s_seeks;
    return __real_lseek(file, offset, whence);
}

/// How often the system is asked for the table's bytes.
namespace
{

using namespace vorn::test;

constexpr int kRecords = 5000;

class SystemCalls : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(WriteOurTable(m_path, m_facts));
    }

    void Open(CDBFFile& table)
    {
        ASSERT_EQ(1, table.Open(m_path.c_str(), CFile::modeRead));
        s_reads = 0;
        s_seeks = 0;
    }

    const ScratchFolder m_folder;
    const std::string m_path = m_folder.File("calls.dbf");
    const TableFacts m_facts = Numbered(InventFacts(91, 3, kRecords));
};

int ReadAll(CDBFFile& table)
{
    int records = 0;
    CString value;
    while (table.ReadRecord(-1) == 1)
    {
        table.GetFieldValue(0, value);
        ++records;
    }
    return records;
}

TEST_F(SystemCalls, ReadingAheadIsOneReadABlockAndNoSeek)
{
    CDBFFile table(500);
    Open(table);
    EXPECT_EQ(kRecords, ReadAll(table));
    EXPECT_EQ(kRecords / 500, s_reads);
    EXPECT_EQ(0, s_seeks);
}

TEST_F(SystemCalls, ReadingOneByOneIsOneReadARecordAndNoSeek)
{
    CDBFFile table(0);
    Open(table);
    EXPECT_EQ(kRecords, ReadAll(table));
    EXPECT_EQ(kRecords, s_reads);
    EXPECT_EQ(0, s_seeks);
}

/// Records that a binary search over the first `count` looks at until it stands on `wanted`.
int ProbesTo(int wanted, int count)
{
    int probes = 0;
    int low = 0;
    int high = count - 1;
    while (low < high)
    {
        const int middle = low + (high - low) / 2;
        ++probes;
        if (middle == wanted)
        {
            return probes;
        }
        (wanted < middle ? high : low) = wanted < middle ? middle - 1 : middle + 1;
    }
    return probes + 1;
}

TEST_F(SystemCalls, ASortedSearchIsAtMostOneSeekAndOneReadAProbe)
{
    for (const int readAhead : {0, 100})
    {
        CDBFFile table(readAhead);
        Open(table);
        int probes = 0;
        for (int i = 0; i < 10000; ++i)
        {
            const int wanted = i * 7919 % kRecords;
            const char* key = m_facts.rows[static_cast<std::size_t>(wanted)].front().c_str();
            ASSERT_EQ(1, table.QuerySortedStrData("NUMBER", key));
            ASSERT_EQ(wanted, table.CurRecIndex());
            // The record before is read to see that it holds another key, and then the one found again.
            probes += ProbesTo(wanted, kRecords) + 2;
        }
        EXPECT_LE(s_reads, probes);
        EXPECT_LE(s_seeks, probes);
        EXPECT_GT(s_reads, 10000);
    }
}

TEST_F(SystemCalls, ASortedSearchForANumberIsAtMostOneSeekAndOneReadAProbe)
{
    CDBFFile table(0);
    Open(table);
    int probes = 0;
    for (int i = 0; i < 10000; ++i)
    {
        const int wanted = i * 7919 % kRecords;
        ASSERT_EQ(1,
                  table.QuerySortedIntData("NUMBER", m_facts.rows[static_cast<std::size_t>(wanted)].front().c_str()));
        probes += ProbesTo(wanted, kRecords);
    }
    EXPECT_LE(s_reads, probes);
    EXPECT_LE(s_seeks, probes);
}

} // namespace
