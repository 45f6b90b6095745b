#include "files/core/CDBFFile.h"
#include "framework/include/afx.h"
#include "tests/support/BrokenFiles.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace
{

using vorn::test::BrokenFiles;
using vorn::test::TableBytes;

constexpr UINT kKilled = 77;
constexpr const char* kTable = "VORN_TEST_TABLE";
constexpr const char* kStep = "VORN_TEST_STEP";

TableBytes Table(bool isPacked)
{
    TableBytes table;
    table.Field("A", 'C', 60);
    for (int i = 0; i < 3000; ++i)
        if (i % 2 == 0 || !isPacked)
            table.Record(std::to_string(i), i % 2 == 0 ? ' ' : '*');
    return table;
}

std::string Variable(const char* name)
{
    char value[MAX_PATH] = {};
    ::GetEnvironmentVariableA(name, value, sizeof(value));
    return value;
}

/// Runs the test below in a process of its own; its exit code.
DWORD PackElsewhere(const std::string& table, int step)
{
    char program[MAX_PATH] = {};
    ::GetModuleFileNameA(nullptr, program, sizeof(program));
    std::string line =
        std::string("\"") + program + "\" --gtest_brief=1 --gtest_also_run_disabled_tests --gtest_filter=KilledChild.*";
    ::SetEnvironmentVariableA(kTable, table.c_str());
    ::SetEnvironmentVariableA(kStep, std::to_string(step).c_str());
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    DWORD code = 0;
    if (!::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return code;
    ::WaitForSingleObject(process.hProcess, 30000);
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

} // namespace

/// No test by itself: packs the table that the other process names, and dies at the step it names.
TEST(KilledChild, DISABLED_PacksAndDies)
{
    CDBFFile table(100);
    ASSERT_EQ(table.Open(Variable(kTable).c_str(), CFile::modeReadWrite), 1);
    BrokenFiles files;
    files.FailAt(std::stoi(Variable(kStep)))
        .WritingFirst(1000)
        .Then(
            []
            {
                ::TerminateProcess(::GetCurrentProcess(), kKilled);
            });
    EXPECT_EQ(table.Pack(), 0);
}

TEST(KilledPack, LeavesTheOldTableOrTheNewOne)
{
    const vorn::test::ScratchFolder folder;
    const std::string before = Table(false).Bytes();
    const std::string after = Table(true).Bytes();
    int killed = 0;
    for (int step = 0; step < 40; step += 3)
    {
        const std::string path = folder.Write("t.dbf", before);
        const DWORD code = PackElsewhere(path, step);
        if (code == 0)
            break;
        ASSERT_EQ(code, kKilled) << step;
        ++killed;
        ASSERT_TRUE(folder.Read("t.dbf") == before) << step;
        CDBFFile table(10);
        ASSERT_EQ(table.Open(path.c_str(), CFile::modeReadWrite), 1);
        ASSERT_EQ(table.Pack(), 0) << "what the dead one left is no hindrance";
        ASSERT_TRUE(folder.Read("t.dbf") == after) << step;
    }
    EXPECT_GT(killed, 3);
}
