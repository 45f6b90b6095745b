#include "framework/include/afxwin.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <sstream>

using vorn::test::ScratchFolder;

namespace
{

std::string FolderOfProgram()
{
    char path[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    const std::string text = path;
    return text.substr(0, text.rfind('\\') + 1);
}

/// Runs a program to its end; its exit status, or -1.
int RunProgram(const std::string& program, const std::string& arguments)
{
    std::string line = '"' + FolderOfProgram();
    line += program;
    line += "\" ";
    line += arguments;
    STARTUPINFO startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWMINNOACTIVE;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcess(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
    {
        return -1;
    }
    DWORD status = static_cast<DWORD>(-1);
    if (::WaitForSingleObject(process.hProcess, 20000) == WAIT_OBJECT_0)
    {
        ::GetExitCodeProcess(process.hProcess, &status);
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(status);
}

/// The line of a fact, without its name.
std::string Fact(const std::string& facts, const std::string& name)
{
    std::istringstream lines(facts);
    for (std::string line; std::getline(lines, line);)
    {
        if (!line.empty() && line.back() == '\r')
        {
            line.pop_back();
        }
        if (line.rfind(name + ' ', 0) == 0)
        {
            return line.substr(name.size() + 1);
        }
    }
    return "(missing)";
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

class Startup : public testing::TestWithParam<const char*>
{
protected:
    std::string Program() const
    {
        return std::string(GetParam()) + ".exe";
    }
    std::string Facts() const
    {
        return folder.Read("facts.txt");
    }
    std::string FactsPath() const
    {
        return '"' + folder.File("facts.txt") + '"';
    }
    ScratchFolder folder;
};

} // namespace

TEST_P(Startup, RunsAHostThatHasOnlyAnApplicationObject)
{
    EXPECT_EQ(RunProgram(Program(), FactsPath() + " /fast"), 40);
    const std::string facts = Facts();
    EXPECT_EQ(Fact(facts, "exe"), GetParam());
    EXPECT_EQ(Fact(facts, "app"), "Host Title") << "the title of the string table";
    EXPECT_EQ(Fact(facts, "profile"), std::string(GetParam()) + ".INI");
    EXPECT_TRUE(EndsWith(Fact(facts, "help"), std::string("\\") + GetParam() + ".HLP"));
    EXPECT_EQ(Fact(facts, "instance"), "1");
    EXPECT_EQ(Fact(facts, "flags"), "[fast]");
    EXPECT_TRUE(EndsWith(Fact(facts, "command"), "/fast"));
    EXPECT_EQ(Fact(facts, "exit"), "main window 0") << "the end of the main window ended the loop";
    EXPECT_NE(facts.find("gone"), std::string::npos) << "the application object was destroyed";
}

TEST_P(Startup, EndsAtOnceWhenInitInstanceRefuses)
{
    EXPECT_EQ(RunProgram(Program(), FactsPath() + " /refuse"), 40);
    EXPECT_NE(Facts().find("exit"), std::string::npos);
}

TEST_P(Startup, EndsWhenThereIsNoMainWindow)
{
    EXPECT_EQ(RunProgram(Program(), FactsPath() + " /windowless"), 40);
}

INSTANTIATE_TEST_SUITE_P(EachKind, Startup, testing::Values("framework_app_host", "framework_app_console_host"));

TEST(StartupCommand, TellsHowToShowTheMainWindow)
{
    const ScratchFolder folder;
    RunProgram("framework_app_host.exe", '"' + folder.File("facts.txt") + '"');
    EXPECT_EQ(Fact(folder.Read("facts.txt"), "show"), std::to_string(SW_SHOWMINNOACTIVE));
}
