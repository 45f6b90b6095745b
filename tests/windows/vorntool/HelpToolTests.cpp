#include "tests/windows/vorntool/ToolProcess.h"

#include <algorithm>

using namespace vorn::test;

TEST(HelpTool, ListsEveryText)
{
    const ToolRun run = RunVornTool({"help", "list"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(std::count(run.text.begin(), run.text.end(), '\n'), 1063);
    EXPECT_EQ(run.text.find("700   The display name for this view.\n"), 0u);
    EXPECT_NE(run.text.find("\n999   Enter the weight.\n"), std::string::npos);
    EXPECT_NE(run.text.find("\n1149  Minimum aircraft CG as set in the aircraft CG model data.\n"), std::string::npos);
    EXPECT_NE(run.text.find("\n1810  "), std::string::npos);
}

TEST(HelpTool, ShowsOneWithItsLineBreaks)
{
    ExpectDone({"help", "show", "1149"}, "Minimum aircraft CG as set in\nthe aircraft CG model data.\n");
    ExpectDone({"help", "show", "999"}, "Enter the weight.\n");
    const ToolRun both = RunVornTool({"help", "show", "1319"});
    EXPECT_EQ(both.status, 0u);
    EXPECT_EQ(both.text.find("\n\n"), std::string::npos) << "no info box";
    const ToolRun info = RunVornTool({"help", "show", "1303"});
    EXPECT_NE(info.text.find("\n\n"), std::string::npos) << info.text;
}

TEST(HelpTool, FindsTextsThatHaveEveryWord)
{
    const ToolRun run = RunVornTool({"help", "search", "POINT of", "arrival"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_NE(run.text.find("1601  Select a point of arrival\n"), std::string::npos) << run.text;
    EXPECT_EQ(run.text.find("999   "), std::string::npos);
    ExpectDone({"help", "search", "cg as set in the aircraft"},
               "1149  Minimum aircraft CG as set in the aircraft CG model data.\n");
}

TEST(HelpTool, JsonHasNumberTipAndInfo)
{
    ExpectDone({"help", "show", "1601", "--json"},
               "{\"id\":1601,\"tip\":\"Select a point of arrival\",\"info\":\"\"}\n");
    ExpectDone(
        {"help", "search", "--json", "cg as set in the aircraft"},
        "[{\"id\":1149,\"tip\":\"Minimum aircraft CG as set in\\nthe aircraft CG model data.\",\"info\":\"\"}]\n");
    const ToolRun all = RunVornTool({"help", "list", "--json"});
    std::size_t count = 0;
    for (std::size_t at = 0; (at = all.text.find("{\"id\":", at)) != std::string::npos; ++at)
    {
        ++count;
    }
    EXPECT_EQ(count, 1063u);
}

TEST(HelpTool, WhatIsNotThereIsRefused)
{
    ExpectFailure({"help", "show", "722"}, 1, "vorntool help show: there is no help text 722");
    ExpectFailure({"help", "show", "699"}, 1, "vorntool help show: there is no help text 699");
    ExpectFailure({"help", "show", "60000"}, 1, "vorntool help show: there is no help text 60000");
    ExpectFailure({"help", "search", "zeppelin", "mooring mast"}, 1,
                  "vorntool help search: no help text has 'zeppelin' 'mooring mast'");
}

TEST(HelpTool, WrongUseIsStatusTwo)
{
    ExpectFailure({"help", "show", "x"}, 2, "vorntool help show: 'x' is no number of a help text");
    ExpectFailure({"help", "show"}, 2, "vorntool help show: ID is missing; see 'vorntool help show --help'");
    ExpectFailure({"help", "search", "weight", " "}, 2, "vorntool help search: ' ' is no word to look for");
    ExpectFailure({"help", "search", ""}, 2, "vorntool help search: '' is no word to look for");
    ExpectFailure({"help", "show", std::string(8000, '9')}, 2,
                  "vorntool help show: '" + std::string(260, '9') + "...' is no number of a help text");
    ExpectFailure({"help", "search"}, 2, "vorntool help search: WORDS is missing; see 'vorntool help search --help'");
    ExpectFailure({"help", "list", "all"}, 2,
                  "vorntool help list: 'all' is one argument too many; see 'vorntool help list --help'");
}

TEST(HelpTool, HelpOnCommandsIsStillThere)
{
    EXPECT_EQ(RunVornTool({"help"}).text, RunVornTool({"--help"}).text);
    EXPECT_EQ(RunVornTool({"help", "settings", "get"}).text, RunVornTool({"settings", "get", "--help"}).text);
    const ToolRun own = RunVornTool({"help", "help"});
    EXPECT_EQ(own.status, 0u);
    EXPECT_NE(own.text.find("help search"), std::string::npos);
}
