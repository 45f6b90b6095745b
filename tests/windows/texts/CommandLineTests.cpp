#include "frame/core/TextUtilities.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

namespace
{

std::vector<std::string> ArgumentsOf(const char* line, bool includeProgram)
{
    int argc = 99;
    char** argv = nullptr;
    ProcessCommandLine(line, argc, argv, includeProgram);
    std::vector<std::string> arguments(argv, argv + argc);
    CleanupCommandLine(argc, argv);
    return arguments;
}

} // namespace

TEST(ProcessCommandLine, MakesTheArguments)
{
    EXPECT_EQ(ArgumentsOf("a \"b c\" d", false), (std::vector<std::string>{"a", "b c", "d"}));
    EXPECT_TRUE(ArgumentsOf("", false).empty());
    EXPECT_TRUE(ArgumentsOf(nullptr, false).empty());
}

TEST(ProcessCommandLine, PutsTheProgramFirst)
{
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    EXPECT_EQ(ArgumentsOf("a", true), (std::vector<std::string>{program, "a"}));
    EXPECT_EQ(ArgumentsOf(nullptr, true), (std::vector<std::string>{program}));
}
