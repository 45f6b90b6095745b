#include "apps/vorntool/core/RunTool.h"
#include "apps/vorntool/core/ToolArguments.h"
#include "apps/vorntool/core/ToolHelp.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace vorn::tool;

namespace
{

constexpr Option kOptions[] = {{"app", "NAME", "the application"}, {"int", nullptr, "store a number"}};

// Prints what arrived, so that a test sees it.
ExitStatus Echo(const Command& self, const Invocation& call, Output& output)
{
    output.text = self.name;
    for (const std::string& value : call.values)
    {
        output.text += "|" + value;
    }
    for (const auto& [name, value] : call.options)
    {
        output.text += "|" + name + "=" + value;
    }
    return ExitStatus::Done;
}

ExitStatus Refuse(const Command& self, const Invocation&, Output& output)
{
    ReportError(output, self, "there is none");
    return ExitStatus::Refused;
}

ExitStatus Throw(const Command&, const Invocation&, Output&)
{
    throw std::runtime_error("short memory");
}

constexpr Command kThings[] = {
    {"thing", "put", "PLACE THING [NOTE]", "Put a thing somewhere", "It stays there.", 2, 3, kOptions, Echo},
    {"thing", "find", "THING", "Find a thing", "", 1, 1, {}, Refuse},
    {"thing", "drop", "", "Drop everything", "", 0, 0, {}, Throw},
};
constexpr Command kShow[] = {{"show", "", "NAME...", "Show things", "", 1, kAnyNumber, {}, Echo}};
constexpr CommandGroup kGroups[] = {{"thing", "Things and their places.", kThings}, {"show", "Things on show.", kShow}};
constexpr Tool kTool = {"A tool for things.", "1.2", kGroups};

struct Result
{
    ExitStatus status;
    std::string text;
    std::string errors;
};

Result RunWords(const std::vector<std::string>& words)
{
    Output output;
    const ExitStatus status = RunTool(kTool, words, output);
    return {status, output.text, output.errors};
}

void ExpectText(const std::vector<std::string>& words, const std::string& text)
{
    const Result result = RunWords(words);
    EXPECT_EQ(result.status, ExitStatus::Done);
    EXPECT_EQ(result.text, text);
    EXPECT_EQ(result.errors, "");
}

void ExpectWrongUse(const std::vector<std::string>& words, const std::string& error)
{
    const Result result = RunWords(words);
    EXPECT_EQ(result.status, ExitStatus::WrongUse);
    EXPECT_EQ(result.text, "");
    EXPECT_EQ(result.errors, error);
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(ToolArguments, ValuesArriveInOrder)
{
    ExpectText({"thing", "put", "shelf", "cup"}, "put|shelf|cup");
    ExpectText({"thing", "put", "shelf", "cup", "blue one"}, "put|shelf|cup|blue one");
    ExpectText({"thing", "put", "", "cup"}, "put||cup");
}

TEST(ToolArguments, OptionsStandAnywhereInBothForms)
{
    ExpectText({"thing", "put", "--app", "Home", "shelf", "--int", "cup"}, "put|shelf|cup|app=Home|int=");
    ExpectText({"thing", "put", "shelf", "cup", "--app=Home"}, "put|shelf|cup|app=Home");
    ExpectText({"thing", "put", "shelf", "cup", "--app="}, "put|shelf|cup|app=");
    ExpectText({"thing", "put", "shelf", "cup", "--app=a=b", "--json"}, "put|shelf|cup|app=a=b|json=");
    ExpectText({"thing", "put", "shelf", "cup", "--app", "one", "--app", "two"}, "put|shelf|cup|app=two");
}

TEST(ToolArguments, TheValueOfAnOptionMayLookLikeOne)
{
    ExpectText({"thing", "put", "shelf", "cup", "--app", "--int"}, "put|shelf|cup|app=--int");
}

TEST(ToolArguments, OneHyphenIsAValueAndTwoAloneEndTheOptions)
{
    ExpectText({"thing", "put", "-40", "-"}, "put|-40|-");
    ExpectText({"thing", "put", "--", "--app", "--"}, "put|--app|--");
    ExpectText({"thing", "put", "--", "--help", "x"}, "put|--help|x");
}

TEST(ToolArguments, AnyNumberOfValuesWhereTheCommandTakesThem)
{
    ExpectText({"show", "a"}, "|a");
    ExpectText({"show", "a", "b", "c", "d", "e"}, "|a|b|c|d|e");
}

TEST(ToolArguments, WrongUseIsToldInOneLine)
{
    const std::string help = "; see 'vorntool thing put --help'\n";
    ExpectWrongUse({"thing", "put"}, "vorntool thing put: PLACE is missing" + help);
    ExpectWrongUse({"thing", "put", "shelf"}, "vorntool thing put: THING is missing" + help);
    ExpectWrongUse({"thing", "put", "a", "b", "c", "d"}, "vorntool thing put: 'd' is one argument too many" + help);
    ExpectWrongUse({"thing", "put", "a", "b", "--far"}, "vorntool thing put: unknown option '--far'" + help);
    ExpectWrongUse({"thing", "put", "a", "b", "--=x"}, "vorntool thing put: unknown option '--'" + help);
    ExpectWrongUse({"thing", "put", "a", "b", "--app"}, "vorntool thing put: option '--app' needs a value NAME" + help);
    ExpectWrongUse({"thing", "put", "a", "b", "--int=1"}, "vorntool thing put: option '--int' takes no value" + help);
    ExpectWrongUse({"show"}, "vorntool show: NAME is missing; see 'vorntool show --help'\n");
}

TEST(ToolArguments, UnknownCommandsAreWrongUse)
{
    ExpectWrongUse({}, "vorntool: a command is missing; see 'vorntool --help'\n");
    ExpectWrongUse({"fly"}, "vorntool: unknown command 'fly'; see 'vorntool --help'\n");
    ExpectWrongUse({"thing"}, "vorntool thing: a command is missing; see 'vorntool thing --help'\n");
    ExpectWrongUse({"thing", "fly"}, "vorntool thing: unknown command 'fly'; see 'vorntool thing --help'\n");
    ExpectWrongUse({"Thing", "put"}, "vorntool: unknown command 'Thing'; see 'vorntool --help'\n");
    ExpectWrongUse({""}, "vorntool: unknown command ''; see 'vorntool --help'\n");
}

TEST(ToolArguments, ACommandThatRefusesSaysWhoAndWhy)
{
    const Result result = RunWords({"thing", "find", "cup"});
    EXPECT_EQ(result.status, ExitStatus::Refused);
    EXPECT_EQ(result.text, "");
    EXPECT_EQ(result.errors, "vorntool thing find: there is none\n");
}

TEST(ToolArguments, ACommandThatThrowsHasRefused)
{
    const Result result = RunWords({"thing", "drop"});
    EXPECT_EQ(result.status, ExitStatus::Refused);
    EXPECT_EQ(result.errors, "vorntool: short memory\n");
}

TEST(ToolHelp, IsPrintedOnEveryLevelAndInEverySpelling)
{
    for (const char* word : {"--help", "-h", "/?", "help"})
    {
        ExpectText({word}, HelpOn(kTool));
    }
    ExpectText({"thing", "--help"}, HelpOn(kGroups[0]));
    ExpectText({"help", "thing"}, HelpOn(kGroups[0]));
    ExpectText({"thing", "put", "--help"}, HelpOn(kThings[0]));
    ExpectText({"help", "thing", "put"}, HelpOn(kThings[0]));
    ExpectText({"show", "--help"}, HelpOn(kShow[0]));
    ExpectText({"help", "show"}, HelpOn(kShow[0]));
    ExpectText({"thing", "put", "too", "many", "things", "here", "--unknown", "-h"}, HelpOn(kThings[0]));
    ExpectWrongUse({"help", "fly"}, "vorntool: unknown command 'fly'; see 'vorntool --help'\n");
}

TEST(ToolHelp, OfTheToolNamesEveryCommandInLinedUpColumns)
{
    const std::string help = HelpOn(kTool);
    EXPECT_TRUE(Contains(help, "A tool for things."));
    EXPECT_TRUE(Contains(help, "  thing put PLACE THING [NOTE]  Put a thing somewhere\n"
                               "  thing find THING              Find a thing\n"
                               "  thing drop                    Drop everything\n"
                               "  show NAME...                  Show things\n"));
}

TEST(ToolHelp, OfACommandNamesItsOptionsAndTheCommonOnes)
{
    const std::string help = HelpOn(kThings[0]);
    EXPECT_TRUE(Contains(help, "Usage: vorntool thing put PLACE THING [NOTE] [OPTION...]\n\nPut a thing somewhere.\n"));
    EXPECT_TRUE(Contains(help, "It stays there."));
    EXPECT_TRUE(Contains(help, "  --app NAME  the application\n  --int       store a number\n  --json      "));
}

TEST(ToolHelp, VersionIsOneLine)
{
    ExpectText({"--version"}, "vorntool 1.2\n");
}

TEST(ToolMessages, WordsAreQuotedOnOneLine)
{
    EXPECT_EQ("''", Quoted(""));
    EXPECT_EQ("'C:\\Vornwald\\x'", Quoted("C:\\Vornwald\\x")) << "paths stay as they are";
    EXPECT_EQ("'a\\nb\\x07'", Quoted("a\nb\a"));
    EXPECT_EQ("'M\xC3\xBCller'", Quoted("M\xC3\xBCller"));
}

TEST(ToolMessages, VeryLongWordsAreCutBetweenCharacters)
{
    const std::string fits(260, 'x');
    EXPECT_EQ("'" + fits + "'", Quoted(fits));
    EXPECT_EQ("'" + fits + "...'", Quoted(fits + "x"));
    const std::string umlaut = std::string(259, 'x') + "\xC3\xBC";
    EXPECT_EQ("'" + std::string(259, 'x') + "...'", Quoted(umlaut));
    EXPECT_EQ("'...'", Quoted(std::string(300, '\x80'))) << "no character begins here";
}
