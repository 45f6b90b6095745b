#include "files/core/CDBFFile.h"
#include "framework/core/MemFile.h"
#include "tests/support/BrokenFiles.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

namespace
{
using vorn::FileStep;
using vorn::test::BrokenFiles;
using vorn::test::MemoEntryBytes;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

TableBytes Table()
{
    TableBytes table;
    table.Field("A", 'C', 40).Field("NOTE", 'M', 10);
    table.Record("first").Record("second").Record("third");
    return table;
}

/// What an operation reports, and whether it is to succeed.
using Operation = std::function<bool(CDBFFile&)>;

class TableFault : public testing::Test
{
protected:
    TableFault()
    {
        m_folder.Write("t.dbf", m_bytes);
        m_folder.Write("t.dbt", m_memo);
    }

    void Open(CDBFFile& table) const
    {
        ASSERT_EQ(table.Open(m_folder.File("t.dbf").c_str(), CFile::modeReadWrite), 1);
        ASSERT_EQ(table.ReadRecord(1), 1);
        table.SetFieldValue("A", "changed");
    }

    /// Runs the operation with each write failing in turn, after a part of it was written, until none does.
    void FailEachWrite(const Operation& operation) const
    {
        int failures = 0;
        for (bool hasFailed = true; hasFailed; ++failures)
        {
            CDBFFile table(2);
            Open(table);
            bool isDone = true;
            {
                BrokenFiles files;
                files.FailAt(failures, FileStep::Write).WritingFirst(3);
                isDone = operation(table);
                hasFailed = files.HasFailed();
            }
            ASSERT_EQ(isDone, !hasFailed);
            if (hasFailed)
            {
                ASSERT_EQ(m_folder.Read("t.dbf"), m_bytes) << failures;
                ASSERT_EQ(m_folder.Read("t.dbt"), m_memo) << failures;
            }
        }
        EXPECT_GT(failures, 1) << "some write did fail";
        EXPECT_TRUE(m_folder.Read("t.dbf") != m_bytes || m_folder.Read("t.dbt") != m_memo) << "and the last did not";
    }

    ScratchFolder m_folder;
    std::string m_bytes = Table().Bytes();
    std::string m_memo = std::string(512, '\x01') + MemoEntryBytes("old memo");
};

TEST_F(TableFault, WriteRecord_OverARecordIsTakenBack)
{
    FailEachWrite(
        [](CDBFFile& table)
        {
            return table.WriteRecord(nullptr) == 1;
        });
}

TEST_F(TableFault, WriteRecord_AppendedIsTakenBack)
{
    FailEachWrite(
        [](CDBFFile& table)
        {
            table.FP()->SeekToEnd();
            return table.WriteRecord(nullptr) == 1;
        });
}

TEST_F(TableFault, WriteRecord_HalfBehindTheEndIsTakenBack)
{
    FailEachWrite(
        [](CDBFFile& table)
        {
            table.FP()->Seek(-20, CFile::end);
            return table.WriteRecord(nullptr) == 1;
        });
}

TEST_F(TableFault, WriteNumRecords_IsTakenBack)
{
    FailEachWrite(
        [](CDBFFile& table)
        {
            const bool isWritten = table.WriteNumRecords(nullptr, 0x01020304) == 1;
            EXPECT_EQ(table.NumRecords(), isWritten ? 0x01020304 : 3);
            return isWritten;
        });
}

TEST_F(TableFault, WriteDbtRecord_IsTakenBack)
{
    FailEachWrite(
        [](CDBFFile& table)
        {
            return table.WriteDBTRecord(nullptr, "new memo") == 3;
        });
}

TEST_F(TableFault, WriteDbtHeader_IsTakenBack)
{
    FailEachWrite(
        [](CDBFFile& table)
        {
            return table.WriteDBTHeader(nullptr) == 1;
        });
}

TEST_F(TableFault, WriteHeader_IsTakenBack)
{
    for (const UINT written : {0U, 1U, 40U})
    {
        CDBFFile table(2);
        Open(table);
        BrokenFiles files;
        files.FailAt(0, FileStep::Write).WritingFirst(written);
        EXPECT_EQ(table.WriteHeader(nullptr), 0);
        EXPECT_EQ(m_folder.Read("t.dbf"), m_bytes);
    }
}

TEST_F(TableFault, DeleteRecord_IsTakenBackInTheFileAndInTheRecord)
{
    CDBFFile table(2);
    Open(table);
    {
        BrokenFiles files;
        files.FailAt(0, FileStep::Write).WritingFirst(3);
        table.DeleteRecord();
        EXPECT_TRUE(files.HasFailed());
    }
    EXPECT_EQ(m_folder.Read("t.dbf"), m_bytes);
    EXPECT_STREQ(table.GetFieldValue("A"), "changed");
    EXPECT_EQ(table.ReadRecord(-1), 1);
    EXPECT_STREQ(table.GetFieldValue("A"), "third");
    EXPECT_EQ(table.ReadRecord(1), 1);
    EXPECT_STREQ(table.GetFieldValue("A"), "second") << "still live";
    table.DeleteRecord();
    EXPECT_EQ(table.ReadRecord(1), 1);
    EXPECT_STREQ(table.GetFieldValue("A"), "third");
}

TEST_F(TableFault, AfterAFailedWriteTheNextOneGoesToTheSamePlace)
{
    CDBFFile table(2);
    Open(table);
    table.FP()->SeekToEnd();
    {
        BrokenFiles files;
        files.FailAt(0, FileStep::Write).WritingFirst(10);
        EXPECT_EQ(table.WriteRecord(nullptr), 0);
    }
    EXPECT_EQ(table.WriteRecord(nullptr), 1);
    table.Close();
    EXPECT_EQ(m_folder.Read("t.dbf"), m_bytes + " changed" + std::string(33, ' ') + std::string(10, ' '));
}

TEST_F(TableFault, ADiskThatIsFullWhileAppending_KeepsWholeRecordsOnly)
{
    CDBFFile table(0);
    Open(table);
    table.FP()->SeekToEnd();
    int written = 0;
    {
        BrokenFiles files;
        files.DiskSpace(51 * 4 + 20);
        while (table.WriteRecord(nullptr) == 1)
            ++written;
    }
    EXPECT_EQ(written, 4);
    EXPECT_EQ(table.FileLen(), static_cast<LONGLONG>(m_bytes.size()) + 4 * 51);
}

TEST_F(TableFault, Create_ThatFailsLeavesTheOldFile)
{
    for (int step = 0;; ++step)
    {
        CDBFFile table(0);
        table.AddNewField("X", 'C', 5);
        BrokenFiles files;
        files.FailAt(step).WritingFirst(7);
        const int result = table.Create(m_folder.File("t.dbf").c_str());
        if (!files.HasFailed())
        {
            EXPECT_EQ(result, 1);
            break;
        }
        ASSERT_EQ(result, 0) << step;
        EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "t.dbf.tmp")) << step;
        if (m_folder.Read("t.dbf").size() == 65)
            break; // the new table was made whole, and only opening it failed
        ASSERT_EQ(m_folder.Read("t.dbf"), m_bytes) << step;
        EXPECT_EQ(table.NumFields(), 1) << "the fields stay";
    }
}

TEST_F(TableFault, ReadsThatFail_GiveNoRecordAndNoException)
{
    for (int step = 0; step < 40; ++step)
    {
        CDBFFile table(2);
        BrokenFiles files;
        files.StopAt(step);
        const int isOpen = table.Open(m_folder.File("t.dbf").c_str(), CFile::modeRead);
        int records = 0;
        while (records < 10 && table.ReadRecord(-1) == 1)
        {
            ++records;
            table.GetFieldValue("NOTE");
        }
        EXPECT_LE(records, isOpen == 1 ? 3 : 0);
        const int found = table.Query("A", "third", 1);
        EXPECT_EQ(found, files.HasFailed() ? 0 : 1) << step;
        const int foundSorted = table.QuerySortedStrData("A", "second");
        EXPECT_STREQ(table.GetFieldValue("A"), foundSorted == 1 ? "second" : "") << step;
    }
}

TEST_F(TableFault, AReadThatFailsOnce_IsMadeUpForByTheNext)
{
    CDBFFile table(2);
    Open(table);
    {
        BrokenFiles files;
        files.FailAt(0, FileStep::Read);
        EXPECT_EQ(table.ReadRecord(0), 0);
        EXPECT_TRUE(table.GetFieldValue("A").IsEmpty());
        table.DeleteRecord();
    }
    EXPECT_EQ(table.ReadRecord(0), 1);
    EXPECT_STREQ(table.GetFieldValue("A"), "first");
    {
        BrokenFiles files;
        files.FailAt(0, FileStep::Seek);
        EXPECT_EQ(table.ReadRecord(0), 0);
    }
    EXPECT_EQ(table.ReadRecord(2), 1);
    EXPECT_STREQ(table.GetFieldValue("A"), "third");
    table.Close();
    EXPECT_EQ(m_folder.Read("t.dbf"), m_bytes);
}

TEST_F(TableFault, DumpToFile_ThatFailsSaysSo)
{
    CDBFFile table(2);
    Open(table);
    BrokenFiles files;
    files.FailAt(0, FileStep::Write);
    EXPECT_EQ(table.DumpToFile(m_folder.File("dump.txt").c_str()), 0);
}

// --- The file layer itself ---

TEST_F(TableFault, FileFaults_SeeEveryKindOfStep)
{
    const CString path = m_folder.File("f.bin").c_str();
    for (const FileStep step :
         {FileStep::Open, FileStep::Close, FileStep::Read, FileStep::Write, FileStep::Flush, FileStep::Seek,
          FileStep::Length, FileStep::SetLength, FileStep::Rename, FileStep::Remove})
    {
        BrokenFiles files;
        files.FailAt(0, step);
        int thrown = 0;
        const auto run = [&thrown](const auto& action)
        {
            try
            {
                action();
            }
            catch (CFileException* exception)
            {
                ++thrown;
                exception->Delete();
            }
        };
        CFile file;
        char byte = 'x';
        const bool isOpen = file.Open(path, CFile::modeCreate | CFile::modeReadWrite) != FALSE;
        EXPECT_EQ(isOpen, step != FileStep::Open);
        if (isOpen)
        {
            run(
                [&]
                {
                    file.Write(&byte, 1);
                });
            run(
                [&]
                {
                    file.Seek(0, CFile::begin);
                });
            run(
                [&]
                {
                    file.Read(&byte, 1);
                });
            run(
                [&]
                {
                    file.Flush();
                });
            run(
                [&]
                {
                    file.GetLength();
                });
            run(
                [&]
                {
                    file.SetLength(4);
                });
            run(
                [&]
                {
                    file.Close();
                });
            run(
                [&]
                {
                    CFile::Rename(path, path + "2");
                });
            run(
                [&]
                {
                    CFile::Remove(step == FileStep::Rename ? path : path + "2");
                });
        }
        EXPECT_EQ(thrown, isOpen ? 1 : 0) << static_cast<int>(step);
        std::filesystem::remove(m_folder.Path() / "f.bin2");
    }
}
} // namespace
