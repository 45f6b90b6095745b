// What the system itself does to a table: full devices, limits of size, programs killed in the middle.
#ifndef _WIN32
#include "files/core/CDBFFile.h"
#include "tests/support/BrokenFiles.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using vorn::test::BrokenFiles;
using vorn::test::ScratchFolder;
using vorn::test::TableBytes;

constexpr int kKilled = 77;

TableBytes Table(bool isPacked)
{
    TableBytes table;
    table.Field("A", 'C', 60);
    for (int i = 0; i < 3000; ++i)
        if (i % 2 == 0 || !isPacked)
            table.Record(std::to_string(i), i % 2 == 0 ? ' ' : '*');
    return table;
}

class TablePosix : public testing::Test
{
protected:
    /// Runs `action` in a process of its own; its exit code, -1 when a signal ended it.
    static int InAnotherProcess(const std::function<int()>& action)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(action());
        int status = 0;
        return waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string Table() const
    {
        return m_folder.Read("t.dbf");
    }

    ScratchFolder m_folder;
    std::string m_before = ::Table(false).Bytes();
    std::string m_after = ::Table(true).Bytes();
    std::string m_path = m_folder.Write("t.dbf", m_before);
};

TEST_F(TablePosix, Pack_OntoAFullDeviceKeepsTheTable)
{
    std::filesystem::create_symlink("/dev/full", m_path + ".tmp");
    CDBFFile table(10);
    ASSERT_EQ(table.Open(m_path.c_str(), CFile::modeReadWrite), 1);
    EXPECT_EQ(table.Pack(), -1);
    EXPECT_TRUE(Table() == m_before);
    EXPECT_FALSE(std::filesystem::is_symlink(m_path + ".tmp"));
    EXPECT_EQ(table.Pack(), 0);
    EXPECT_TRUE(Table() == m_after);
}

TEST_F(TablePosix, Pack_BeyondALimitOfSizeKeepsTheTable)
{
    for (const rlim_t limit : {rlim_t{1}, rlim_t{70000}, rlim_t{m_after.size() - 1}})
    {
        const int result = InAnotherProcess(
            [&]
            {
                signal(SIGXFSZ, SIG_IGN);
                const rlimit sizes = {limit, limit};
                setrlimit(RLIMIT_FSIZE, &sizes);
                CDBFFile table(10);
                return table.Open(m_path.c_str(), CFile::modeReadWrite) == 1 && table.Pack() == -1 ? 1 : 2;
            });
        EXPECT_EQ(result, 1) << limit;
        EXPECT_TRUE(Table() == m_before) << limit;
        EXPECT_FALSE(std::filesystem::exists(m_path + ".tmp")) << limit;
    }
}

TEST_F(TablePosix, WriteRecord_BeyondALimitOfSizeAddsNothing)
{
    const auto limit = static_cast<rlim_t>(m_before.size() + 30);
    const int result = InAnotherProcess(
        [&]
        {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit sizes = {limit, limit};
            setrlimit(RLIMIT_FSIZE, &sizes);
            CDBFFile table(10);
            if (table.Open(m_path.c_str(), CFile::modeReadWrite) != 1 || table.ReadRecord(0) != 1)
                return 2;
            table.FP()->SeekToEnd();
            return table.WriteRecord(nullptr) == 0 ? 1 : 2;
        });
    EXPECT_EQ(result, 1);
    EXPECT_TRUE(Table() == m_before);
}

TEST_F(TablePosix, Pack_KilledAnywhereLeavesTheOldTable)
{
    int killed = 0;
    for (int step = 0;; ++step)
    {
        m_folder.Write("t.dbf", m_before);
        const int result = InAnotherProcess(
            [&]
            {
                CDBFFile table(10);
                table.Open(m_path.c_str(), CFile::modeReadWrite);
                BrokenFiles files;
                files.FailAt(step).WritingFirst(1000).Then(
                    []
                    {
                        _exit(kKilled);
                    });
                return table.Pack() == 0 ? 1 : 2;
            });
        if (result == 1)
            break;
        ASSERT_EQ(result, kKilled) << step;
        ASSERT_TRUE(Table() == m_before) << step;
        ++killed;
    }
    EXPECT_GT(killed, 10);
    EXPECT_TRUE(Table() == m_after);
}
} // namespace
#endif
