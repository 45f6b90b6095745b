#include "tests/support/ScratchKey.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

#include <fstream>
#include <optional>

using namespace vorn::test;

namespace
{

constexpr const char* kApp = "VornToolTest";
constexpr const char* kAppKey = "Software\\Vornwald\\VornToolTest";

struct RawValue
{
    DWORD type = 0;
    std::string bytes;
};

// The application of the tests has no settings and no INI file before and after each test.
class SettingsTool : public testing::Test
{
protected:
    SettingsTool()
    {
        DeleteFileA(IniPath().c_str());
    }

    ~SettingsTool() override
    {
        DeleteFileA(IniPath().c_str());
    }

    static std::string IniPath()
    {
        char folder[MAX_PATH];
        GetWindowsDirectoryA(folder, MAX_PATH);
        return std::string(folder) + "\\" + kApp + ".INI";
    }

    static void WriteIni(const std::string& text)
    {
        std::ofstream(IniPath(), std::ios::binary) << text;
    }

    static void Put(const std::string& section, const char* key, DWORD type, const std::string& bytes,
                    HKEY root = HKEY_CURRENT_USER, const std::string& app = kAppKey)
    {
        HKEY opened = nullptr;
        ASSERT_EQ(RegCreateKeyExA(root, (app + "\\" + section).c_str(), 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY,
                                  nullptr, &opened, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegSetValueExA(opened, key, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                                 static_cast<DWORD>(bytes.size())),
                  ERROR_SUCCESS);
        RegCloseKey(opened);
    }

    static std::optional<RawValue> Stored(const char* section, const char* key, HKEY root = HKEY_CURRENT_USER,
                                          const std::string& app = kAppKey)
    {
        char bytes[2000];
        DWORD size = sizeof bytes;
        DWORD type = 0;
        const LSTATUS status = RegGetValueA(root, (app + "\\" + section).c_str(), key, RRF_RT_ANY, &type, bytes, &size);
        return status == ERROR_SUCCESS ? std::optional(RawValue{type, std::string(bytes, size)}) : std::nullopt;
    }

    static void ExpectStored(const char* section, const char* key, DWORD type, const std::string& bytes)
    {
        const std::optional<RawValue> value = Stored(section, key);
        ASSERT_TRUE(value.has_value());
        EXPECT_EQ(value->type, type);
        EXPECT_EQ(value->bytes, bytes);
    }

    // The words of a call about the tests' own application.
    static std::vector<std::string> Call(std::vector<std::string> words)
    {
        words.insert(words.begin(), "settings");
        words.insert(words.end(), {"--app", kApp});
        return words;
    }

private:
    const ScratchKey m_settings{HKEY_CURRENT_USER, kAppKey};
};

std::string Text(const std::string& text)
{
    return text + '\0';
}

} // namespace

TEST_F(SettingsTool, SetStoresATextThatGetPrints)
{
    ExpectDone(Call({"set", "General", "Pilot", "Joe \"Ace\" Blow"}), "");
    ExpectStored("General", "Pilot", REG_SZ, Text("Joe \"Ace\" Blow"));
    ExpectDone(Call({"get", "General", "Pilot"}), "Joe \"Ace\" Blow\n");
    ExpectDone(Call({"set", "General", "Pilot", ""}), "");
    ExpectStored("General", "Pilot", REG_SZ, Text(""));
    ExpectDone(Call({"get", "General", "Pilot"}), "\n");
}

TEST_F(SettingsTool, SetStoresNumbersOfAllThirtyTwoBits)
{
    ExpectDone(Call({"set", "Units", "Distance", "2", "--int"}), "");
    ExpectStored("Units", "Distance", REG_DWORD, std::string("\2\0\0\0", 4));
    ExpectDone(Call({"set", "Units", "Distance", "-1", "--int"}), "");
    ExpectStored("Units", "Distance", REG_DWORD, "\xFF\xFF\xFF\xFF");
    ExpectDone(Call({"get", "Units", "Distance"}), "-1\n");
    ExpectDone(Call({"set", "Units", "Distance", "4294967295", "--int"}), "");
    ExpectStored("Units", "Distance", REG_DWORD, "\xFF\xFF\xFF\xFF");
    ExpectFailure(Call({"set", "Units", "Distance", "4294967296", "--int"}), 2,
                  "vorntool settings set: '4294967296' is no whole number of 32 bits");
    ExpectFailure(Call({"set", "Units", "Distance", "2.5", "--int"}), 2,
                  "vorntool settings set: '2.5' is no whole number of 32 bits");
    ExpectStored("Units", "Distance", REG_DWORD, "\xFF\xFF\xFF\xFF");
}

TEST_F(SettingsTool, TextGoesInAndOutAsUtf8AndIsStoredInTheCodePage)
{
    ExpectDone(Call({"set", "General", "Temp",
                     "15 \xC2\xB0"
                     "C, 3 \xE2\x82\xAC"}),
               "");
    ExpectStored("General", "Temp", REG_SZ,
                 Text("15 \xB0"
                      "C, 3 \x80"));
    ExpectDone(Call({"get", "General", "Temp"}), "15 \xC2\xB0"
                                                 "C, 3 \xE2\x82\xAC\n");
    ExpectFailure(Call({"set", "General", "Temp", "\xD0\x96"}), 1,
                  "vorntool settings set: 'Temp' in section 'General' of VornToolTest was not set: the text has "
                  "characters that settings cannot hold");
    ExpectStored("General", "Temp", REG_SZ,
                 Text("15 \xB0"
                      "C, 3 \x80"));
}

TEST_F(SettingsTool, JsonEscapesTextsAndKeepsNumbers)
{
    const std::string start = "{\"app\":\"VornToolTest\",\"section\":\"General\",\"key\":";
    Put("General", "Odd", REG_SZ, Text("a\"b\\c\n\t\x01 \xE9"));
    ExpectDone(Call({"get", "General", "Odd", "--json"}),
               start +
                   "\"Odd\",\"type\":\"text\",\"source\":\"registry\",\"value\":\"a\\\"b\\\\c\\n\\t\\u0001 \xC3\xA9\","
                   "\"readable\":true}\n");
    ExpectDone(Call({"set", "General", "Num", "-7", "--int", "--json"}),
               start + "\"Num\",\"type\":\"number\",\"source\":\"registry\",\"value\":-7,\"readable\":true}\n");
}

TEST_F(SettingsTool, GetOfWhatIsNotThereIsRefused)
{
    ExpectFailure(Call({"get", "General", "Nothing"}), 1,
                  "vorntool settings get: there is no value 'Nothing' in section 'General' of VornToolTest");
}

TEST_F(SettingsTool, TheIniFileAnswersWhereTheRegistryHasNothing)
{
    WriteIni("[General]\r\nPilot=\"Jane\"\r\nSeat=2\r\n");
    Put("General", "Seat", REG_DWORD, std::string("\5\0\0\0", 4));
    ExpectDone(Call({"get", "General", "Pilot"}), "\"Jane\"\n");
    ExpectDone(Call({"get", "General", "Seat"}), "5\n");
    ExpectDone(
        Call({"get", "General", "Pilot", "--json"}),
        "{\"app\":\"VornToolTest\",\"section\":\"General\",\"key\":\"Pilot\",\"type\":\"text\",\"source\":\"ini\","
        "\"value\":\"\\\"Jane\\\"\",\"readable\":true}\n");
}

TEST_F(SettingsTool, ListShowsEveryValueWithTypeAndPlace)
{
    WriteIni("[General]\r\nPilot=Jane\r\nseat=9\r\n[Old]\r\nKey=C:\\Data\\\r\n");
    Put("General", "Seat", REG_DWORD, std::string("\5\0\0\0", 4));
    Put("Views\\Chart 1", "Name", REG_SZ, Text("two\r\nlines"));
    Put("Views", "Blob", REG_BINARY, std::string("\x00\xAB\x7F", 3));
    ExpectDone(Call({"list"}), "[General]\n"
                               "  Pilot  text    INI file  Jane\n"
                               "  Seat   number  registry  5\n"
                               "\n[Old]\n"
                               "  Key    text    INI file  C:\\Data\\\n"
                               "\n[Views]\n"
                               "  Blob   binary  registry  00ab7f\n"
                               "\n[Views\\Chart 1]\n"
                               "  Name   text    registry  two\\r\\nlines\n");
    ExpectDone(Call({"list", "views"}), "[Views]\n  Blob  binary  registry  00ab7f\n");
    ExpectFailure(Call({"list", "None"}), 1,
                  "vorntool settings list: there is no value in section 'None' of VornToolTest");
}

TEST_F(SettingsTool, ListAsJsonIsOneArray)
{
    Put("A", "k", REG_SZ, Text("v"));
    Put("B", "k", REG_DWORD, std::string("\1\0\0\0", 4));
    const std::string app = "{\"app\":\"VornToolTest\",";
    ExpectDone(Call({"list", "--json"}),
               "[" + app +
                   "\"section\":\"A\",\"key\":\"k\",\"type\":\"text\",\"source\":\"registry\",\"value\":\"v\","
                   "\"readable\":true}," +
                   app +
                   "\"section\":\"B\",\"key\":\"k\",\"type\":\"number\",\"source\":\"registry\",\"value\":1,"
                   "\"readable\":true}]\n");
}

TEST_F(SettingsTool, ListOfNothingIsRefused)
{
    ExpectFailure(Call({"list"}), 1, "vorntool settings list: there are no settings of VornToolTest");
}

TEST_F(SettingsTool, TextsTooLongForTheApplicationsAreMarkedAndNeverStored)
{
    const std::string longest(1023, 'x');
    ExpectDone(Call({"set", "General", "Long", longest}), "");
    ExpectDone(Call({"get", "General", "Long"}), longest + "\n");
    ExpectFailure(Call({"set", "General", "Long", longest + "x"}), 1,
                  "vorntool settings set: 'Long' in section 'General' of VornToolTest was not set: the text is longer "
                  "than 1,023 characters, which no application could read");
    ExpectStored("General", "Long", REG_SZ, Text(longest));
    Put("General", "Long", REG_SZ, Text(longest + "x"));
    ExpectDone(Call({"list"}),
               "[General]\n  Long  text    registry  " + longest + "x  (too long for the applications)\n");
    ExpectFailure(Call({"get", "General", "Long"}), 1,
                  "vorntool settings get: there is no value 'Long' in section 'General' of VornToolTest");
}

TEST_F(SettingsTool, DeleteTakesAValueAway)
{
    Put("General", "Pilot", REG_SZ, Text("Joe"));
    Put("General", "Seat", REG_SZ, Text("2"));
    ExpectDone(Call({"delete", "General", "Pilot"}), "");
    EXPECT_FALSE(Stored("General", "Pilot"));
    EXPECT_TRUE(Stored("General", "Seat"));
    ExpectFailure(Call({"delete", "General", "Pilot"}), 1,
                  "vorntool settings delete: there is no value 'Pilot' in section 'General' of VornToolTest");
}

TEST_F(SettingsTool, DeleteLeavesTheIniFile)
{
    WriteIni("[General]\r\nPilot=Jane\r\n");
    ExpectFailure(
        Call({"delete", "General", "Pilot"}), 1,
        "vorntool settings delete: 'Pilot' in section 'General' of VornToolTest stands in the INI file, which "
        "is never changed");
}

TEST_F(SettingsTool, AWholeSectionGoesOnlyWhenAskedFor)
{
    Put("General", "Pilot", REG_SZ, Text("Joe"));
    Put("Other", "Seat", REG_SZ, Text("2"));
    ExpectFailure(Call({"delete", "General"}), 2,
                  "vorntool settings delete: KEY is missing; to delete a whole section, say --section");
    ExpectFailure(Call({"delete", "General", "Pilot", "--section"}), 2,
                  "vorntool settings delete: --section goes without a KEY");
    EXPECT_TRUE(Stored("General", "Pilot"));
    ExpectDone(Call({"delete", "General", "--section", "--json"}),
               "{\"app\":\"VornToolTest\",\"section\":\"General\",\"deleted\":true}\n");
    EXPECT_FALSE(Stored("General", "Pilot"));
    EXPECT_TRUE(Stored("Other", "Seat"));
}

TEST_F(SettingsTool, NamesThatWouldMeanTheWholeApplicationAreWrongUse)
{
    Put("General", "Pilot", REG_SZ, Text("Joe"));
    for (const char* section : {"", "\\", "\\\\"})
    {
        ExpectFailure(Call({"delete", section, "--section"}), 2,
                      std::string("vorntool settings delete: '") + section + "' cannot be the name of a section");
    }
    ExpectFailure(Call({"delete", "General", ""}), 2, "vorntool settings delete: '' cannot be the name of a key");
    ExpectFailure({"settings", "list", "--app", ""}, 2,
                  "vorntool settings list: '' cannot be the name of an application");
    ExpectFailure({"settings", "list", "--app", "a\\b"}, 2,
                  "vorntool settings list: 'a\\b' cannot be the name of an application");
    EXPECT_TRUE(Stored("General", "Pilot"));
}

TEST_F(SettingsTool, SharedSettingsAreTheMachinesAndProxiesTheUsers)
{
    const ScratchKey machine{HKEY_LOCAL_MACHINE, "Software\\Vornwald\\Global\\VornToolTest"};
    const ScratchKey user{HKEY_CURRENT_USER, "Software\\Vornwald\\Global\\VornToolTest proxy"};
    ExpectDone({"settings", "set", "VornToolTest", "Key", "m", "--app", "global"}, "");
    ExpectDone({"settings", "set", "VornToolTest proxy", "Key", "u", "--app", "Global"}, "");
    EXPECT_TRUE(Stored("VornToolTest", "Key", HKEY_LOCAL_MACHINE, "Software\\Vornwald\\Global"));
    EXPECT_TRUE(Stored("VornToolTest proxy", "Key", HKEY_CURRENT_USER, "Software\\Vornwald\\Global"));
    ExpectDone({"settings", "get", "VornToolTest", "Key", "--app", "Global"}, "m\n");
    ExpectDone({"settings", "list", "VornToolTest", "--app", "Global"},
               "[VornToolTest]\n  Key  text    registry (machine)  m\n");
    ExpectDone({"settings", "list", "VornToolTest proxy", "--app", "Global"},
               "[VornToolTest proxy]\n  Key  text    registry  u\n");
    ExpectDone({"settings", "delete", "VornToolTest", "Key", "--app", "Global"}, "");
    EXPECT_FALSE(Stored("VornToolTest", "Key", HKEY_LOCAL_MACHINE, "Software\\Vornwald\\Global"));
}

TEST_F(SettingsTool, AppsNamesTheApplication)
{
    Put("General", "Pilot", REG_SZ, Text("Joe"));
    const ToolRun run = RunVornTool({"settings", "apps"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_NE(("\n" + run.text).find("\nVornToolTest\n"), std::string::npos);
}
