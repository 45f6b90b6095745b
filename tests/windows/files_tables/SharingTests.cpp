#include "files/core/CDBFFile.h"
#include "framework/include/afx.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace
{

using vorn::test::TableBytes;

class TableSharing : public testing::Test
{
protected:
    /// Whether the system lets someone else open a file so, with all sharing allowed.
    static bool CanOpen(const std::string& path, DWORD access)
    {
        const HANDLE file = ::CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                          nullptr, OPEN_EXISTING, 0, nullptr);
        const bool isOpen = file != INVALID_HANDLE_VALUE;
        if (isOpen)
            ::CloseHandle(file);
        return isOpen;
    }
    bool HasTemporary() const
    {
        return ::GetFileAttributesA((m_path + ".tmp").c_str()) != INVALID_FILE_ATTRIBUTES;
    }

    vorn::test::ScratchFolder m_folder;
    std::string m_bytes = TableBytes().Field("A", 'C', 3).Record("one").Record("two", '*').Record("tri").Bytes();
    std::string m_path = m_folder.Write("t.dbf", m_bytes);
    std::string m_memo = m_folder.Write("t.dbt", std::string(512, '\0'));
    CDBFFile m_table{5};
};

} // namespace

TEST_F(TableSharing, AnOpenTableAndItsMemosLetReadersInAndKeepWritersOut)
{
    for (const int mode : {CFile::modeRead, CFile::modeReadWrite})
    {
        ASSERT_EQ(m_table.Open(m_path.c_str(), mode), 1);
        EXPECT_TRUE(CanOpen(m_path, GENERIC_READ));
        EXPECT_FALSE(CanOpen(m_path, GENERIC_WRITE));
        EXPECT_TRUE(CanOpen(m_memo, GENERIC_READ));
        EXPECT_FALSE(CanOpen(m_memo, GENERIC_WRITE));
    }
    m_table.Close();
    EXPECT_TRUE(CanOpen(m_path, GENERIC_WRITE));
    EXPECT_TRUE(CanOpen(m_memo, GENERIC_WRITE));
}

TEST_F(TableSharing, TheDenyWriteFlagReplacesAnyOtherSharing)
{
    for (const int sharing : {CFile::shareDenyNone, CFile::shareExclusive, CFile::shareDenyRead, CFile::shareDenyWrite})
    {
        ASSERT_EQ(m_table.Open(m_path.c_str(), CFile::modeRead | sharing), 1);
        EXPECT_TRUE(CanOpen(m_path, GENERIC_READ));
        EXPECT_FALSE(CanOpen(m_path, GENERIC_WRITE));
    }
}

TEST_F(TableSharing, OneTableReadsAndASecondReadsToo)
{
    CDBFFile second(0);
    ASSERT_EQ(m_table.Open(m_path.c_str(), CFile::modeRead), 1);
    ASSERT_EQ(second.Open(m_path.c_str(), CFile::modeRead), 1);
    EXPECT_EQ(second.ReadRecord(0), 1);
    EXPECT_EQ(second.Open(m_path.c_str(), CFile::modeReadWrite), 0) << "the first one denies writing";
    m_table.Close();
    EXPECT_EQ(second.Open(m_path.c_str(), CFile::modeReadWrite), 1);
}

TEST_F(TableSharing, ATableOpenElsewhereIsNotPackedAndNothingIsLost)
{
    CDBFFile elsewhere(0);
    ASSERT_EQ(m_table.Open(m_path.c_str(), CFile::modeRead), 1);
    ASSERT_EQ(elsewhere.Open(m_path.c_str(), CFile::modeRead), 1);
    EXPECT_EQ(m_table.Pack(), -1);
    EXPECT_FALSE(HasTemporary());
    EXPECT_EQ(m_folder.Read("t.dbf"), m_bytes);
    EXPECT_EQ(m_table.ReadRecord(0), 1) << "still open";
    EXPECT_STREQ(m_table.GetFieldValue(0), "one");
    elsewhere.Close();
    EXPECT_EQ(m_table.Pack(), 0);
    EXPECT_EQ(m_folder.Read("t.dbf"), TableBytes().Field("A", 'C', 3).Record("one").Record("tri").Bytes());
}

TEST_F(TableSharing, ATableOpenElsewhereIsNotReplacedByANewOne)
{
    CDBFFile elsewhere(0);
    ASSERT_EQ(elsewhere.Open(m_path.c_str(), CFile::modeRead), 1);
    m_table.AddNewField("NEW", 'C', 1);
    EXPECT_EQ(m_table.Create(m_path.c_str()), 0);
    EXPECT_FALSE(HasTemporary());
    EXPECT_EQ(m_folder.Read("t.dbf"), m_bytes);
    EXPECT_EQ(m_table.NumFields(), 1) << "the fields stay for another try";
    elsewhere.Close();
    EXPECT_EQ(m_table.Create(m_path.c_str()), 1);
}

TEST_F(TableSharing, AReadOnlyFileIsReadAndNeverChanged)
{
    ::SetFileAttributesA(m_path.c_str(), FILE_ATTRIBUTE_READONLY);
    ASSERT_EQ(m_table.Open(m_path.c_str(), CFile::modeRead), 1);
    EXPECT_EQ(m_table.ReadRecord(0), 1);
    m_table.DeleteRecord();
    EXPECT_EQ(m_table.WriteRecord(nullptr), 0);
    EXPECT_EQ(m_table.WriteNumRecords(nullptr, 1), 0);
    EXPECT_EQ(m_table.Pack(), -1);
    EXPECT_FALSE(HasTemporary());
    m_table.Close();
    m_table.AddNewField("NEW", 'C', 1);
    EXPECT_EQ(m_table.Create(m_path.c_str()), 0);
    m_table.Close();
    EXPECT_EQ(m_folder.Read("t.dbf"), m_bytes);
    ::SetFileAttributesA(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(TableSharing, ATemporaryFileInUseElsewhereStaysAndPackIsRefused)
{
    const std::string temporary = m_folder.Write("t.dbf.tmp", "someone else's");
    const HANDLE file =
        ::CreateFileA(temporary.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    ASSERT_EQ(m_table.Open(m_path.c_str(), CFile::modeRead), 1);
    EXPECT_EQ(m_table.Pack(), -1);
    ::CloseHandle(file);
    EXPECT_EQ(m_folder.Read("t.dbf.tmp"), "someone else's");
    EXPECT_EQ(m_folder.Read("t.dbf"), m_bytes);
}
