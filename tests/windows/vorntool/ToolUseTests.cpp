#include "tests/windows/vorntool/ToolProcess.h"

using namespace vorn::test;

namespace
{

const std::vector<std::vector<std::string>> kCommands = {{"settings", "get"},
                                                         {"settings", "set"},
                                                         {"settings", "delete"},
                                                         {"settings", "list"},
                                                         {"settings", "apps"},
                                                         {"units", "convert"},
                                                         {"units", "show"},
                                                         {"version"},
                                                         {"format", "lat"},
                                                         {"format", "lon"},
                                                         {"format", "course"},
                                                         {"format", "alt"},
                                                         {"format", "fl"},
                                                         {"format", "time"},
                                                         {"format", "date"},
                                                         {"parse", "hhmm"},
                                                         {"parse", "base"},
                                                         {"date"},
                                                         {"paths", "list"},
                                                         {"paths", "get"},
                                                         {"find"},
                                                         {"image", "info"},
                                                         {"image", "convert"},
                                                         {"image", "resize"},
                                                         {"image", "rotate"},
                                                         {"morse"},
                                                         {"help", "list"},
                                                         {"help", "show"},
                                                         {"help", "search"},
                                                         {"stats"},
                                                         {"proxy", "list"},
                                                         {"proxy", "add"},
                                                         {"proxy", "delete"},
                                                         {"uri", "parse"},
                                                         {"log", "show"}};

std::string Joined(const std::vector<std::string>& words)
{
    std::string joined = "vorntool";
    for (const std::string& word : words)
    {
        joined += " " + word;
    }
    return joined;
}

} // namespace

TEST(ToolUse, HelpNamesEveryCommand)
{
    const ToolRun run = RunVornTool({"--help"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_EQ(run.errors, "");
    for (const auto& command : kCommands)
    {
        EXPECT_NE(run.text.find("  " + Joined(command).substr(9)), std::string::npos) << Joined(command);
    }
}

TEST(ToolUse, EveryCommandHasHelpWithItsUsage)
{
    for (const auto& command : kCommands)
    {
        std::vector<std::string> words = command;
        words.push_back("--help");
        const ToolRun run = RunVornTool(words);
        EXPECT_EQ(run.status, 0u);
        EXPECT_EQ(run.errors, "");
        EXPECT_EQ(run.text.find("Usage: " + Joined(command)), 0u) << run.text;
        EXPECT_NE(run.text.find("--json"), std::string::npos);
        EXPECT_NE(run.text.find("Exit status: 0 done, 1 not found or refused, 2 wrong use."), std::string::npos);
    }
}

TEST(ToolUse, LinesFitATerminalAndEndInOneLineFeed)
{
    for (const auto& command : kCommands)
    {
        std::vector<std::string> words = command;
        words.push_back("--help");
        const std::string text = RunVornTool(words).text;
        EXPECT_EQ(text.find('\r'), std::string::npos);
        EXPECT_EQ(text.back(), '\n');
        for (std::size_t start = 0; start < text.size();)
        {
            const std::size_t end = text.find('\n', start);
            EXPECT_LE(end - start, 100u) << text.substr(start, end - start);
            start = end + 1;
        }
    }
}

TEST(ToolUse, WrongUseIsStatusTwoAndOneLineOfReason)
{
    ExpectFailure({}, 2, "vorntool: a command is missing; see 'vorntool --help'");
    ExpectFailure({"fly"}, 2, "vorntool: unknown command 'fly'; see 'vorntool --help'");
    ExpectFailure({"units"}, 2, "vorntool units: a command is missing; see 'vorntool units --help'");
    ExpectFailure({"units", "fly"}, 2, "vorntool units: unknown command 'fly'; see 'vorntool units --help'");
    ExpectFailure({"units", "show", "--fast"}, 2,
                  "vorntool units show: unknown option '--fast'; see 'vorntool units show --help'");
    ExpectFailure({"settings", "get", "General"}, 2,
                  "vorntool settings get: KEY is missing; see 'vorntool settings get --help'");
    ExpectFailure({"settings", "get", "a", "b", "--app"}, 2,
                  "vorntool settings get: option '--app' needs a value NAME; see 'vorntool settings get --help'");
}

TEST(ToolUse, VersionOfTheToolIsPrinted)
{
    const ToolRun run = RunVornTool({"--version"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_EQ(run.text.find("vorntool "), 0u);
}

TEST(ToolUse, WildcardsInArgumentsStayAsTheyAre)
{
    ExpectFailure({"*"}, 2, "vorntool: unknown command '*'; see 'vorntool --help'");
}
