#include "family/VornChart/core/VornLog.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

using namespace vorn::test;

namespace
{

class LogTool : public testing::Test
{
protected:
    std::string Json(const std::string& messages) const
    {
        std::string file;
        for (const char c : m_file)
        {
            file += c == '\\' ? "\\\\" : std::string(1, c);
        }
        return "{\"file\":\"" + file + "\",\"messages\":" + messages + "}\n";
    }

    ScratchFolder m_folder;
    const std::string m_file = m_folder.Write("host.log", "one\r\nM\xFCller\r\n\r\na\tb\r\n");
};

} // namespace

TEST_F(LogTool, PrintsTheMessages)
{
    ExpectDone({"log", "show", m_file}, "one\nM\xC3\xBCller\n\na\\tb\n");
    ExpectDone({"log", "show", m_file, "--json"}, Json("[\"one\",\"M\xC3\xBCller\",\"\",\"a\\tb\"]"));
}

TEST_F(LogTool, PrintsTheLastOnes)
{
    ExpectDone({"log", "show", m_file, "--last", "2"}, "\na\\tb\n");
    ExpectDone({"log", "show", m_file, "--last", "99999999999"}, "one\nM\xC3\xBCller\n\na\\tb\n");
    for (const char* count : {"0", "-1", "x", "", "1.5"})
    {
        ExpectFailure({"log", "show", m_file, "--last", count}, 2,
                      "vorntool log show: '" + std::string(count) + "' is no number of messages");
    }
}

TEST_F(LogTool, ReadsALogThatIsBeingWritten)
{
    VornLog log;
    ASSERT_TRUE(log.InitLog(m_folder.File("open.log").c_str()));
    log.LogMsg("still open", LOG_INFO);
    ExpectDone({"log", "show", m_folder.File("open.log")}, "still open\n");
}

TEST_F(LogTool, AnEmptyLogHasNoMessages)
{
    m_folder.Write("host.log", "");
    ExpectDone({"log", "show", m_file}, "");
    ExpectDone({"log", "show", m_file, "--json"}, Json("[]"));
}

TEST_F(LogTool, RefusesWhatIsNotThereOrCannotBeRead)
{
    const std::string missing = m_folder.File("none.log");
    ExpectFailure({"log", "show", missing}, 1, "vorntool log show: there is no file '" + missing + "'");
    const std::string folder = m_folder.Path().string();
    ExpectFailure({"log", "show", folder}, 1, "vorntool log show: '" + folder + "' cannot be read");
    const HANDLE held = CreateFileA(m_file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    ExpectFailure({"log", "show", m_file}, 1, "vorntool log show: '" + m_file + "' cannot be read");
    CloseHandle(held);
    ExpectFailure({"log", "show"}, 2, "vorntool log show: FILE is missing; see 'vorntool log show --help'");
}
