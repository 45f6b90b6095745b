#include "tests/support/ScratchKey.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

#include <shlobj.h>

#include <algorithm>
#include <fstream>
#include <sstream>

using namespace vorn::test;

namespace
{

constexpr const char* kAppKey = "Software\\Vornwald\\VornToolTest";
const std::string kHome = "C:\\Program Files\\Vornwald\\VornToolTest\\";

// The tests' own application has nothing but a Home before each test, and nothing afterwards.
class PathsTool : public testing::Test
{
protected:
    PathsTool()
    {
        Put("Paths", "Home Path", kHome);
    }

    ~PathsTool() override
    {
        DeleteFileA(IniPath().c_str());
    }

    static void Put(const std::string& section, const char* key, const std::string& text)
    {
        ASSERT_EQ(RegSetKeyValueA(HKEY_CURRENT_USER, (kAppKey + ("\\" + section)).c_str(), key, REG_SZ, text.c_str(),
                                  static_cast<DWORD>(text.size() + 1)),
                  ERROR_SUCCESS);
    }

    static std::string IniPath()
    {
        char folder[MAX_PATH];
        GetWindowsDirectoryA(folder, MAX_PATH);
        return std::string(folder) + "\\VornToolTest.INI";
    }

    static void ExpectFolder(const std::string& name, const char* layout, const std::string& folder)
    {
        ExpectDone({"paths", "get", name, "--layout", layout, "--app", "VornToolTest"}, folder + "\n");
    }

    static std::string Listed(const std::vector<std::string>& more)
    {
        std::vector<std::string> words = {"paths", "list", "--app", "VornToolTest"};
        words.insert(words.end(), more.begin(), more.end());
        const ToolRun run = RunVornTool(words);
        EXPECT_EQ(run.status, 0u) << run.errors;
        return run.text;
    }

    ScratchKey m_settings{HKEY_CURRENT_USER, kAppKey};
};

std::string ShellFolder(int code)
{
    char folder[MAX_PATH];
    EXPECT_EQ(SHGetFolderPathA(nullptr, code, nullptr, SHGFP_TYPE_CURRENT, folder), S_OK);
    return std::string(folder) + "\\";
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(PathsTool, TheLegacyLayoutLiesUnderHome)
{
    ExpectFolder("DP_EXE", "legacy", kHome);
    ExpectFolder("root", "legacy", "C:\\Program Files\\");
    ExpectFolder("DATA", "legacy", kHome + "EnrouteData\\");
    ExpectFolder("vpl", "legacy", "C:\\Program Files\\Vornwald\\Common\\VPL\\");
    ExpectFolder("48", "legacy", kHome);
    ExpectFolder("84", "legacy", kHome + "Formats\\");
}

TEST_F(PathsTool, TheUserLayoutLiesInTheShellsFolders)
{
    const std::string common = ShellFolder(CSIDL_COMMON_APPDATA);
    ExpectFolder("DP_DATA", "user", common + "Vornwald\\VornToolTest\\EnrouteData\\");
    ExpectFolder("vpl", "user", common + "Vornwald\\Common\\VPL\\");
    ExpectFolder("Charts", "user", ShellFolder(CSIDL_PROFILE) + "Vornwald\\VornToolTest\\Charts\\");
    ExpectFolder("path52", "user", ShellFolder(CSIDL_LOCAL_APPDATA) + "Vornwald\\VornToolTest\\");
    ExpectFolder("Downloads", "user", common + "Downloads\\");
    ExpectFolder("Common", "user", kHome);
}

TEST_F(PathsTool, WithoutALayoutTheApplicationsOwnIsShown)
{
    ExpectDone({"paths", "get", "DP_TRACK", "--app", "VornToolTest"}, kHome + "Track\\\n");
    ExpectFolder("DP_TRACK", "auto", kHome + "Track\\");
}

TEST_F(PathsTool, SettingsMoveFoldersUnderTheirKeys)
{
    Put("Paths", "Charts Path", "D:\\Charts\\..\\Maps");
    ExpectFolder("Charts Path", "legacy", "D:\\Maps\\");
    ExpectFolder("charts path", "user", "D:\\Maps\\");
    ExpectFolder("Approach Path", "user", "D:\\Maps\\Approach\\");
    Put("Paths", "Theme Path", "D:\\Themes");
    ExpectFolder("Theme Path", "legacy", "D:\\Themes\\"); // the first of four
    ExpectFolder("DP_PATH69", "legacy", "D:\\Themes\\");
}

TEST_F(PathsTool, TheListNamesAll94WithTheirSources)
{
    Put("Paths", "Charts Path", "D:\\Maps");
    std::ofstream(IniPath(), std::ios::binary) << "[Weather]\r\nXMDataPath=D:\\Weather\r\n";
    const std::string list = Listed({"--layout", "legacy"});
    EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 94);
    EXPECT_EQ(list.find("0   DP_EXE              registry            " + kHome + "\n"), 0u) << list;
    EXPECT_TRUE(Contains(list, "\n8   DP_PATH8            registry            " + kHome + "\n"));
    EXPECT_TRUE(Contains(list, "\n10  DP_DATA             default             " + kHome + "EnrouteData\\\n"));
    EXPECT_TRUE(Contains(list, "\n22  DP_CHARTS           registry            D:\\Maps\\\n"));
    EXPECT_TRUE(Contains(list, "\n23  DP_APPROACH         default             D:\\Maps\\Approach\\\n"));
    EXPECT_TRUE(Contains(list, "\n80  DP_XMDATAPATH       INI file            D:\\Weather\\\n"));
    EXPECT_TRUE(Contains(list, "\n93  DP_TERMINALCHARTS2  default             "));
}

TEST_F(PathsTool, NumbersOfTheListAreTheirPlaces)
{
    std::istringstream lines(Listed({"--layout", "user"}));
    std::string line;
    for (int number = 0; std::getline(lines, line); ++number)
    {
        EXPECT_EQ(std::stoi(line), number) << line;
    }
}

TEST_F(PathsTool, AirportDiagramsFollowTheirSetting)
{
    Put("Paths", "AptDiagram Path", "D:\\Diagrams");
    ExpectFolder("AptDiagram Path", "legacy", "D:\\Diagrams"); // as it stands
    EXPECT_TRUE(Contains(Listed({"--layout", "user"}), "\n26  DP_APTDIAGRAM       registry            D:\\Diagrams\n"));
}

TEST_F(PathsTool, JsonGivesKeysAndSources)
{
    const std::string json = Listed({"--layout", "legacy", "--json"});
    EXPECT_EQ(
        json.find("{\"app\":\"VornToolTest\",\"layout\":\"legacy\",\"folders\":[{\"number\":0,\"name\":\"DP_EXE\","
                  "\"key\":\"Home Path\",\"folder\":\"C:\\\\Program Files\\\\Vornwald\\\\VornToolTest\\\\\","
                  "\"source\":\"registry\"},"),
        0u)
        << json;
    EXPECT_TRUE(Contains(json, "{\"number\":47,\"name\":\"DP_PATH47\",\"key\":null,"));
    ExpectDone({"paths", "get", "DP_VPL", "--layout", "legacy", "--app", "VornToolTest", "--json"},
               "{\"app\":\"VornToolTest\",\"layout\":\"legacy\",\"number\":12,\"name\":\"DP_VPL\",\"key\":\"VPL Path\","
               "\"folder\":\"C:\\\\Program Files\\\\Vornwald\\\\Common\\\\VPL\\\\\",\"source\":\"default\"}\n");
}

TEST_F(PathsTool, AProgramsHomeIsWhereTheFamilySaysItIsInstalled)
{
    const ScratchKey unused{HKEY_CURRENT_USER, "Software\\Vornwald\\Glasspad"};
    WritePrivateProfileStringA("Paths", "Glasspad3Dir", "C:\\Panels\\Vornwald\\Glasspad", "Vornwald.ini");
    const ToolRun run = RunVornTool({"paths", "list", "--app", "glasspad", "--layout", "legacy"});
    WritePrivateProfileStringA("Paths", "Glasspad3Dir", nullptr, "Vornwald.ini");
    EXPECT_EQ(run.status, 0u) << run.errors;
    EXPECT_EQ(run.text.find("0   DP_EXE              installation        C:\\Panels\\Vornwald\\Glasspad\\\n"
                            "1   DP_ROOT             default             C:\\Panels\\\n"),
              0u)
        << run.text;
    EXPECT_TRUE(Contains(run.text, " C:\\Panels\\Vornwald\\Common\\VPL\\\n"));
}

TEST_F(PathsTool, LookingStoresNothing)
{
    m_settings.Remove();
    Listed({"--layout", "user"});
    EXPECT_FALSE(m_settings.Exists());
}

TEST_F(PathsTool, UnknownFoldersAreRefusedAndUnknownLayoutsAreWrongUse)
{
    for (const char* name : {"94", "-1", "DP_NOTHING", "", "DP_", "Path"})
    {
        ExpectFailure({"paths", "get", name}, 1,
                      "vorntool paths get: there is no folder '" + std::string(name) +
                          "'; 'vorntool paths list' names them");
    }
    ExpectFailure({"paths", "list", "--layout", "vista"}, 2,
                  "vorntool paths list: --layout takes legacy, user or auto, not 'vista'");
    ExpectFailure({"paths", "list", "--app", "a\\b"}, 2,
                  "vorntool paths list: 'a\\b' cannot be the name of an application");
    ExpectFailure({"paths", "get"}, 2, "vorntool paths get: NAME|NUMBER is missing; see 'vorntool paths get --help'");
}
