#include "frame/core/ProgramStats.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

#include <filesystem>

using namespace vorn::test;

namespace
{

// 2024-02-29 12:34:56 UTC is 0x65E079F0; two counters, 5 and 7.
const std::string kFile("\1\0\0\0\xF0\x79\xE0\x65\0\0\0\0\2\0\0\0\5\0\0\0\7\0\0\0", 24);

class StatsTool : public testing::Test
{
protected:
    ScratchFolder m_folder;
    const std::string m_file = m_folder.Write("use.stat", kFile);
};

} // namespace

TEST_F(StatsTool, ShowsFactsAndCounters)
{
    ExpectDone({"stats", m_file}, "Start     2024-02-29T12:34:56Z\n"
                                  "Counters  2\n"
                                  "Counted   12\n"
                                  "File      whole\n"
                                  "\n"
                                  "0  5\n"
                                  "1  7\n");
    EXPECT_EQ(m_folder.Read("use.stat"), kFile);
}

TEST_F(StatsTool, PrintsJson)
{
    const ToolRun run = RunVornTool({"stats", m_file, "--json"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_NE(run.text.find("use.stat\",\"start\":\"2024-02-29T12:34:56Z\",\"seconds\":1709210096,\"whole\":true,"
                            "\"counters\":[5,7]}\n"),
              std::string::npos)
        << run.text;
}

TEST_F(StatsTool, ShowsWhatTheLibrarySaved)
{
    ProgramStats stats;
    stats.Init(m_file.c_str());
    stats.Event(static_cast<APPSTAT>(3));
    ASSERT_TRUE(stats.SaveStats());
    const ToolRun run = RunVornTool({"stats", m_file});
    EXPECT_NE(run.text.find("Counters  4\n"), std::string::npos);
    EXPECT_NE(run.text.find("\n0  5\n1  7\n2  0\n3  1\n"), std::string::npos);
}

TEST_F(StatsTool, ReadsADamagedFileAsFarAsItGoes)
{
    m_folder.Write("use.stat", kFile.substr(0, 22));
    ExpectDone({"stats", m_file}, "Start     2024-02-29T12:34:56Z\n"
                                  "Counters  2\n"
                                  "Counted   12\n"
                                  "File      damaged: not as long as its count says\n"
                                  "\n"
                                  "0  5\n"
                                  "1  7\n");
    m_folder.Write("use.stat", kFile.substr(0, 4));
    ExpectDone({"stats", m_file}, "Start     -\n"
                                  "Counters  0\n"
                                  "Counted   0\n"
                                  "File      damaged: not as long as its count says\n");
    m_folder.Write("use.stat", kFile.substr(0, 12) + std::string(4, '\xFF'));
    ExpectDone({"stats", m_file}, "Start     2024-02-29T12:34:56Z\n"
                                  "Counters  0\n"
                                  "Counted   0\n"
                                  "File      damaged: not as long as its count says\n");
}

TEST_F(StatsTool, RefusesAFileWithoutStatistics)
{
    for (const std::string& content : {std::string(), std::string(24, '\0')})
    {
        m_folder.Write("use.stat", content);
        ExpectFailure({"stats", m_file}, 1, "vorntool stats: '" + m_file + "' holds no statistics");
        EXPECT_EQ(m_folder.Read("use.stat"), content);
    }
}

TEST_F(StatsTool, RefusesWhatIsNotThereAndMakesNothing)
{
    const std::string missing = m_folder.File("none.stat");
    ExpectFailure({"stats", missing}, 1, "vorntool stats: there is no file '" + missing + "'");
    EXPECT_FALSE(std::filesystem::exists(missing));
}

TEST_F(StatsTool, RefusesWhatCannotBeRead)
{
    const std::string folder = m_folder.Path().string();
    ExpectFailure({"stats", folder}, 1, "vorntool stats: '" + folder + "' cannot be read");
    const HANDLE held = CreateFileA(m_file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    ExpectFailure({"stats", m_file}, 1, "vorntool stats: '" + m_file + "' cannot be read");
    CloseHandle(held);
}

TEST_F(StatsTool, WithoutAFileIsWrongUse)
{
    ExpectFailure({"stats"}, 2, "vorntool stats: FILE is missing; see 'vorntool stats --help'");
}
