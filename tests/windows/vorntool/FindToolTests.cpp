#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

#include <filesystem>

using namespace vorn::test;

namespace
{

// A folder with files of three extensions, and one folder below it.
class FindTool : public testing::Test
{
protected:
    FindTool()
    {
        m_folder.Write("airports.dbf", "12345");
        m_folder.Write("airports.dbt", "123");
        m_folder.Write("notes.txt", "1");
        std::filesystem::create_directories(m_folder.Path() / "below.dbf" / "deep");
        m_folder.Write("below.dbf\\routes.dbf", "1234567890");
        m_folder.Write("below.dbf\\deep\\fixes.dbt", "");
    }

    std::string Folder() const
    {
        return m_folder.Path().string();
    }
    // The path of a file, as a line.
    std::string Line(const std::string& name) const
    {
        return Folder() + "\\" + name + "\n";
    }

    ScratchFolder m_folder;
};

// Sets a file's time of writing to 2024-02-29 12:34:56 UTC.
void SetTime(const std::string& file)
{
    const SYSTEMTIME time = {2024, 2, 4, 29, 12, 34, 56, 0};
    FILETIME written;
    SystemTimeToFileTime(&time, &written);
    const HANDLE handle = CreateFileA(file.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_TRUE(SetFileTime(handle, nullptr, nullptr, &written));
    CloseHandle(handle);
}

std::string Escaped(std::string path)
{
    for (std::size_t at = 0; (at = path.find('\\', at)) != std::string::npos; at += 2)
    {
        path.insert(at, "\\");
    }
    return path;
}

} // namespace

TEST_F(FindTool, PrintsTheFilesExtensionByExtension)
{
    ExpectDone({"find", Folder(), "dbt|.dbf"}, Line("airports.dbt") + Line("airports.dbf"));
    ExpectDone({"find", Folder() + "\\", " txt | doc"}, Line("notes.txt"));
}

TEST_F(FindTool, PrintsAFileThatFitsTwoExtensionsOnce)
{
    ExpectDone({"find", Folder(), "dbf|DBF|db?"}, Line("airports.dbf") + Line("airports.dbt"));
}

TEST_F(FindTool, GoesIntoTheFoldersBelow)
{
    ExpectDone({"find", Folder(), "dbf|dbt", "--recursive"}, Line("airports.dbf") + Line("airports.dbt") +
                                                                 Line("below.dbf\\routes.dbf") +
                                                                 Line("below.dbf\\deep\\fixes.dbt"));
}

TEST_F(FindTool, PrintsSizesAndTimes)
{
    SetTime(m_folder.File("airports.dbf"));
    ExpectDone({"find", Folder(), "dbf", "--long"},
               "5  2024-02-29T12:34:56Z  " + Line("airports.dbf") + "1 file, 5 bytes\n");
}

TEST_F(FindTool, PrintsTheNumberAlone)
{
    ExpectDone({"find", Folder(), "dbf|dbt", "--count"}, "2\n");
    ExpectDone({"find", Folder(), "dbf|dbt", "--count", "--recursive"}, "4\n");
}

TEST_F(FindTool, PrintsJson)
{
    SetTime(m_folder.File("airports.dbf"));
    ExpectDone({"find", Folder(), "dbf", "--json"},
               "{\"folder\":\"" + Escaped(Folder()) + "\",\"extensions\":\"dbf\",\"count\":1,\"files\":[{\"path\":\"" +
                   Escaped(m_folder.File("airports.dbf")) + "\",\"size\":5,\"written\":\"2024-02-29T12:34:56Z\"}]}\n");
}

TEST_F(FindTool, RefusesWhereThereIsNoFile)
{
    const std::string reason = "vorntool find: no file of '" + Folder() + "' has an extension of 'doc'";
    ExpectFailure({"find", Folder(), "doc"}, 1, reason);
    ExpectFailure({"find", Folder(), "doc", "--long"}, 1, reason);
    for (const auto& [option, text] :
         {std::pair<std::string, std::string>("--count", "0\n"),
          std::pair<std::string, std::string>("--json", "{\"folder\":\"" + Escaped(Folder()) +
                                                            "\",\"extensions\":\"doc\",\"count\":0,\"files\":[]}\n")})
    {
        const ToolRun run = RunVornTool({"find", Folder(), "doc", option});
        EXPECT_EQ(run.status, 1u);
        EXPECT_EQ(run.text, text);
        EXPECT_EQ(run.errors, reason + "\n");
    }
}

TEST_F(FindTool, RefusesWhatIsNoFolder)
{
    const std::string nowhere = Folder() + "\\nowhere";
    ExpectFailure({"find", nowhere, "dbf"}, 1, "vorntool find: there is no folder '" + nowhere + "'");
    const std::string file = m_folder.File("notes.txt");
    ExpectFailure({"find", file, "dbf"}, 1, "vorntool find: '" + file + "' is no folder");
    ExpectFailure({"find", "", "dbf"}, 1, "vorntool find: there is no folder ''");
}

TEST_F(FindTool, WithoutExtensionsIsWrongUse)
{
    for (const char* set : {"", "|", " | ", ".", "a\\b", "c:d", "a/b"})
    {
        ExpectFailure({"find", Folder(), set}, 2,
                      std::string("vorntool find: '") + set + "' is no set of extensions such as 'dbf|dbt'");
    }
    ExpectFailure({"find", Folder()}, 2, "vorntool find: EXT|EXT is missing; see 'vorntool find --help'");
}
