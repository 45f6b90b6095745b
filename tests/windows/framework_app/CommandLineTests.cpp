#include "framework/include/afxwin.h"

#include <gtest/gtest.h>

namespace
{

/// Feeds arguments as ParseCommandLine does; a leading '/' marks a flag.
CCommandLineInfo& Parse(CCommandLineInfo& info, std::initializer_list<const char*> arguments)
{
    std::size_t left = arguments.size();
    for (const char* argument : arguments)
    {
        const bool flag = *argument == '/';
        info.ParseParam(flag ? argument + 1 : argument, flag, --left == 0);
    }
    return info;
}

} // namespace

TEST(CommandLine, OpensANewFileByItself)
{
    const CCommandLineInfo info;
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileNew);
    EXPECT_TRUE(info.m_bShowSplash);
    EXPECT_FALSE(info.m_bRunEmbedded);
    EXPECT_FALSE(info.m_bRunAutomated);
}

TEST(CommandLine, OpensTheFileNamed)
{
    CCommandLineInfo info;
    Parse(info, {"first.txt", "second.txt"});
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileOpen);
    EXPECT_EQ(info.m_strFileName, "first.txt");
}

TEST(CommandLine, PrintsAFile)
{
    CCommandLineInfo info;
    Parse(info, {"/p", "file.txt"});
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FilePrint);
    EXPECT_EQ(info.m_strFileName, "file.txt");
    CCommandLineInfo to;
    Parse(to, {"/pt", "file.txt", "printer", "driver", "port"});
    EXPECT_EQ(to.m_nShellCommand, CCommandLineInfo::FilePrintTo);
    EXPECT_EQ(to.m_strFileName, "file.txt");
    EXPECT_EQ(to.m_strPrinterName, "printer");
    EXPECT_EQ(to.m_strDriverName, "driver");
    EXPECT_EQ(to.m_strPortName, "port");
}

TEST(CommandLine, HidesTheSplashScreenForServers)
{
    CCommandLineInfo embedded;
    Parse(embedded, {"/Embedding"});
    EXPECT_TRUE(embedded.m_bRunEmbedded);
    EXPECT_FALSE(embedded.m_bShowSplash);
    CCommandLineInfo automated;
    Parse(automated, {"/automation"});
    EXPECT_TRUE(automated.m_bRunAutomated);
    EXPECT_FALSE(automated.m_bShowSplash);
}

TEST(CommandLine, KnowsTheOtherWords)
{
    CCommandLineInfo dde;
    EXPECT_EQ(Parse(dde, {"/dde"}).m_nShellCommand, CCommandLineInfo::FileDDE);
    CCommandLineInfo registered;
    EXPECT_EQ(Parse(registered, {"/Register"}).m_nShellCommand, CCommandLineInfo::AppRegister);
    CCommandLineInfo unregistered;
    EXPECT_EQ(Parse(unregistered, {"/unregserver"}).m_nShellCommand, CCommandLineInfo::AppUnregister);
    CCommandLineInfo unknown;
    EXPECT_EQ(Parse(unknown, {"/whatever"}).m_nShellCommand, CCommandLineInfo::FileNew);
}
