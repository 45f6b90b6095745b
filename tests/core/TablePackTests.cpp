#include "files/core/CDBFFile.h"
#include "tests/support/BrokenFiles.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace
{
using vorn::FileStep;
using vorn::test::BrokenFiles;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

constexpr int kRecords = 2000;

/// Two of three records live, more bytes than one block of copying takes.
TableBytes Large(bool isPacked)
{
    TableBytes table;
    table.Field("ID", 'N', 6, 1).Field("TEXT", 'C', 80).EndHeaderWith(std::string_view("\r\0", 2));
    for (int i = 0; i < kRecords; ++i)
    {
        const bool isDeleted = i % 3 == 1;
        if (!isDeleted || !isPacked)
            table.Record(std::to_string(100000 + i) + " text " + std::to_string(i), isDeleted ? '*' : ' ');
    }
    return table;
}

class TablePack : public testing::Test
{
protected:
    void Open(const std::string& bytes, int mode = CFile::modeReadWrite)
    {
        m_table.Close();
        ASSERT_EQ(m_table.Open(m_folder.Write("t.dbf", bytes).c_str(), mode), 1);
    }
    std::string Bytes() const
    {
        return m_folder.Read("t.dbf");
    }
    bool HasTemporary() const
    {
        return std::filesystem::exists(m_folder.Path() / "t.dbf.tmp");
    }

    ScratchFolder m_folder;
    CDBFFile m_table{7};
};

TEST_F(TablePack, Pack_KeepsLiveRecordsInOrderAndTheWholeHead)
{
    Open(Large(false).Bytes());
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_TRUE(Bytes() == Large(true).Bytes());
    EXPECT_FALSE(HasTemporary());
    EXPECT_EQ(m_table.NumFields(), 0) << "closed";
    ASSERT_EQ(m_table.Open(m_folder.File("t.dbf").c_str(), CFile::modeReadWrite), 1);
    EXPECT_EQ(m_table.NumRecords(), kRecords - 667);
}

TEST_F(TablePack, Pack_WorksOnATableOpenedForReadingToo)
{
    Open(Large(false).Bytes(), CFile::modeRead);
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_TRUE(Bytes() == Large(true).Bytes());
}

TEST_F(TablePack, Pack_LeavesTheMemoFileAlone)
{
    m_folder.Write("t.dbt", "memo");
    Open(Large(false).Bytes());
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_EQ(m_folder.Read("t.dbt"), "memo");
}

TEST_F(TablePack, Pack_OfEmptyAndOfWhollyDeletedTables)
{
    TableBytes table;
    table.Field("A", 'C', 3);
    Open(table.Bytes());
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_EQ(Bytes(), table.Bytes());
    TableBytes deleted;
    deleted.Field("A", 'C', 3).Record("x", '*').Record("y", '*');
    Open(deleted.Bytes());
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_EQ(Bytes(), table.Bytes());
}

TEST_F(TablePack, Pack_WithADecodeKeyWritesPlainRecords)
{
    TableBytes table;
    table.Field("A", 'C', 3);
    const std::string bytes =
        table.StateCount(2).Header() + vorn::test::Scrambled(" one", "xyz") + vorn::test::Scrambled("*two", "xyz");
    m_table.SetDecodeString("xyz", 0);
    Open(bytes);
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_EQ(Bytes(), table.StateCount(1).Header() + " one");
}

TEST_F(TablePack, Pack_OfATableShorterThanItsCountKeepsWhatIsThere)
{
    TableBytes table;
    table.Field("A", 'C', 3).Record("one").Record("two", '*').Record("tri").StateCount(4000000000UL);
    Open(table.Bytes() + " f"); // and a part of a fourth one
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_EQ(Bytes(), TableBytes().Field("A", 'C', 3).Record("one").Record("tri").Bytes());
}

TEST_F(TablePack, Pack_OfATableInsideAnotherFileIsRefused)
{
    const std::string bytes = "####" + Large(false).Bytes();
    m_table.SetBaseOffset(4);
    Open(bytes);
    EXPECT_EQ(m_table.Pack(), -1);
    EXPECT_TRUE(Bytes() == bytes);
    EXPECT_FALSE(HasTemporary());
    EXPECT_EQ(m_table.ReadRecord(0), 1);
}

TEST_F(TablePack, Pack_OfATableWithoutARecordLengthIsRefused)
{
    const std::string bytes = Large(false).StateRecordLength(0).Bytes();
    Open(bytes);
    EXPECT_EQ(m_table.Pack(), -1);
    EXPECT_TRUE(Bytes() == bytes);
    EXPECT_FALSE(HasTemporary());
}

TEST_F(TablePack, Pack_IsRefusedWhenItsFileCannotBeMade)
{
    std::filesystem::create_directory(m_folder.Path() / "t.dbf.tmp");
    Open(Large(false).Bytes());
    EXPECT_EQ(m_table.Pack(), -1);
    EXPECT_TRUE(Bytes() == Large(false).Bytes());
    EXPECT_TRUE(HasTemporary());
}

TEST_F(TablePack, Pack_OverwritesWhatAKilledOneLeft)
{
    m_folder.Write("t.dbf.tmp", std::string(1000000, 'x'));
    Open(Large(false).Bytes());
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_TRUE(Bytes() == Large(true).Bytes());
}

TEST_F(TablePack, Pack_DoesNotReplaceAReadOnlyTable)
{
    Open(Large(false).Bytes(), CFile::modeRead);
    const std::filesystem::path path = m_folder.Path() / "t.dbf";
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_EQ(m_table.Pack(), -1);
    EXPECT_FALSE(HasTemporary());
    EXPECT_EQ(m_table.ReadRecord(0), 1) << "still open";
    m_table.Close();
    std::filesystem::permissions(path, std::filesystem::perms::all);
    EXPECT_TRUE(Bytes() == Large(false).Bytes());
}

TEST_F(TablePack, Pack_OnAFullDiskKeepsTheTable)
{
    const std::string bytes = Large(false).Bytes();
    const auto needed = static_cast<UINT>(Large(true).Bytes().size());
    for (const UINT space : {0U, 1U, 98U, 5000U, 65536U, needed - 1})
    {
        Open(bytes);
        ASSERT_EQ(m_table.ReadRecord(3), 1);
        {
            BrokenFiles files;
            files.DiskSpace(space);
            EXPECT_EQ(m_table.Pack(), -1) << space;
            EXPECT_TRUE(files.HasFailed());
        }
        EXPECT_TRUE(Bytes() == bytes);
        EXPECT_FALSE(HasTemporary());
        EXPECT_EQ(m_table.CurRecIndex(), 3);
        EXPECT_STREQ(m_table.GetFieldValue("ID"), "100003") << "the current record stays";
        EXPECT_EQ(m_table.ReadRecord(-1), 1) << "4 is deleted";
        EXPECT_STREQ(m_table.GetFieldValue("ID"), "100005");
    }
}

/// Packs with the n-th step failing, for every n, until nothing fails any more; a failed run leaves the table as it was
/// and open.
TEST_F(TablePack, Pack_KeepsTheTableWhicheverStepFails)
{
    const std::string bytes = Large(false).Bytes();
    int failures = 0;
    for (int step = 0;; ++step)
    {
        Open(bytes);
        bool hasFailed = false;
        int result = 0;
        {
            BrokenFiles files;
            files.FailAt(step).WritingFirst(100);
            result = m_table.Pack();
            hasFailed = files.HasFailed();
        }
        ASSERT_FALSE(HasTemporary()) << step;
        if (result == 0) // no step failed, or one that the result does not hang on
        {
            ASSERT_TRUE(Bytes() == Large(true).Bytes()) << step;
            if (!hasFailed)
                break;
            continue;
        }
        ++failures;
        ASSERT_EQ(result, -1) << step;
        ASSERT_TRUE(Bytes() == bytes) << step;
        ASSERT_EQ(m_table.ReadRecord(0), 1) << step;
        ASSERT_STREQ(m_table.GetFieldValue("ID"), "100000");
    }
    EXPECT_GT(failures, 10);
}

/// The same with no further step made at all: the table is the old or the new one, whole.
TEST_F(TablePack, Pack_StoppedAnywhereLeavesTheOldTableOrTheNewOne)
{
    const std::string bytes = Large(false).Bytes();
    for (int step = 0;; ++step)
    {
        Open(bytes);
        bool hasFailed = false;
        {
            BrokenFiles files;
            files.StopAt(step).WritingFirst(100);
            m_table.Pack();
            hasFailed = files.HasFailed();
        }
        if (!hasFailed)
            break;
        m_table.Close();
        if (Bytes() == Large(true).Bytes())
            continue; // in place before it was stopped
        ASSERT_TRUE(Bytes() == bytes) << step;
        ASSERT_EQ(m_table.Open(m_folder.File("t.dbf").c_str(), CFile::modeReadWrite), 1);
        ASSERT_EQ(m_table.Pack(), 0) << "what the stopped one left is no hindrance";
        ASSERT_TRUE(Bytes() == Large(true).Bytes());
    }
    EXPECT_TRUE(Bytes() == Large(true).Bytes());
}
} // namespace
