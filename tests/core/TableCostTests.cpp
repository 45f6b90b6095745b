// What reading costs in system calls.
#include "files/core/CDBFFile.h"
#include "tests/support/BrokenFiles.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

namespace
{
using vorn::FileStep;
using vorn::test::Padded;
using vorn::test::TableBytes;

constexpr int kRecords = 1000;
constexpr int kProbes = 10; // 2 to the tenth is 1,024

class TableCost : public testing::Test
{
protected:
    TableCost()
    {
        TableBytes bytes;
        bytes.Field("KEY", 'C', 6);
        for (int i = 0; i < kRecords; ++i)
            bytes.Record(Key(i));
        m_path = m_folder.Write("t.dbf", bytes.Bytes());
    }
    static std::string Key(int i)
    {
        const std::string digits = std::to_string(i);
        return "K" + Padded("", 4 - digits.size(), '0') + digits;
    }

    /// Steps of a kind while `action` runs on the table just opened.
    int Steps(FileStep kind, int readAhead, const std::function<void(CDBFFile&)>& action) const
    {
        CDBFFile table(readAhead);
        EXPECT_EQ(table.Open(m_path.c_str(), CFile::modeRead), 1);
        vorn::test::BrokenFiles files;
        files.FailAt(std::numeric_limits<int>::max(), kind);
        action(table);
        return files.Steps();
    }

    vorn::test::ScratchFolder m_folder;
    std::string m_path;
};

void ReadAll(CDBFFile& table)
{
    int records = 0;
    while (table.ReadRecord(-1) == 1)
        ++records;
    EXPECT_EQ(records, kRecords);
}

TEST_F(TableCost, SequentialReading_TakesOneReadABlockAndNoSeek)
{
    for (const int ahead : {100, 300, 1000, 5000})
    {
        EXPECT_EQ(Steps(FileStep::Read, ahead, ReadAll), (kRecords + ahead - 1) / ahead);
        EXPECT_EQ(Steps(FileStep::Seek, ahead, ReadAll), 0);
        EXPECT_EQ(Steps(FileStep::Length, ahead, ReadAll), 0);
    }
}

TEST_F(TableCost, SequentialReadingWithoutReadAhead_TakesOneReadARecordAndNoSeek)
{
    EXPECT_EQ(Steps(FileStep::Read, 0, ReadAll), kRecords);
    EXPECT_EQ(Steps(FileStep::Seek, 0, ReadAll), 0);
}

TEST_F(TableCost, ReadingByNumberInOrder_SeeksNowhereEither)
{
    const auto read = [](CDBFFile& table)
    {
        for (int i = 0; i < kRecords; ++i)
            EXPECT_EQ(table.ReadRecord(i), 1);
    };
    EXPECT_EQ(Steps(FileStep::Seek, 50, read), 0);
    EXPECT_EQ(Steps(FileStep::Read, 50, read), kRecords / 50);
}

TEST_F(TableCost, Query_ReadsAsSequentialReadingDoes)
{
    const auto query = [](CDBFFile& table)
    {
        EXPECT_EQ(table.Query("KEY", "K0999", 1), 1);
    };
    EXPECT_EQ(Steps(FileStep::Read, 200, query), 5);
    EXPECT_EQ(Steps(FileStep::Seek, 200, query), 0);
}

TEST_F(TableCost, AppendingRecords_TakesOneWriteEach)
{
    for (const FileStep kind : {FileStep::Write, FileStep::Seek, FileStep::Length})
    {
        CDBFFile table(100);
        ASSERT_EQ(table.Open(m_path.c_str(), CFile::modeReadWrite), 1);
        table.SetFieldValue("KEY", "K");
        table.FP()->SeekToEnd();
        vorn::test::BrokenFiles files;
        files.FailAt(std::numeric_limits<int>::max(), kind);
        for (int i = 0; i < 100; ++i)
            EXPECT_EQ(table.WriteRecord(nullptr), 1);
        EXPECT_LE(files.Steps(), kind == FileStep::Write ? 100 : 2) << "only the first has to look where it stands";
    }
}

TEST_F(TableCost, SortedSearch_TakesOneSeekAndOneReadAProbe)
{
    for (const int ahead : {0, 500})
    {
        for (int i = 0; i < kRecords; i += 37)
        {
            const auto search = [i](CDBFFile& table)
            {
                EXPECT_EQ(table.QuerySortedStrData("KEY", Key(i).c_str()), 1);
                EXPECT_EQ(table.CurRecIndex(), i);
            };
            // Looking at the record before the one found takes one more.
            EXPECT_LE(Steps(FileStep::Seek, ahead, search), kProbes + 1);
            EXPECT_LE(Steps(FileStep::Read, ahead, search), kProbes + 1);
        }
    }
}
} // namespace
