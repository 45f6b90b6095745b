#include "tests/support/ScratchKey.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

#include <optional>

using namespace vorn::test;
using namespace std::string_literals;

namespace
{

constexpr const char* kKey = "HKCU\\Software\\VornToolRegistry";
constexpr const char* kFullKey = "HKEY_CURRENT_USER\\Software\\VornToolRegistry";

struct RawValue
{
    DWORD type = 0;
    std::string bytes;
    bool operator==(const RawValue&) const = default;
};

class RegistryTool : public testing::Test
{
protected:
    static void Put(const std::string& below, const char* name, DWORD type, const std::string& bytes)
    {
        // The system takes a zero behind an unterminated text along: something else must stand there.
        const std::string guarded = bytes + '#';
        HKEY opened = nullptr;
        ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, Path(below).c_str(), 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY,
                                  nullptr, &opened, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegSetValueExA(opened, name, 0, type, reinterpret_cast<const BYTE*>(guarded.data()),
                                 static_cast<DWORD>(bytes.size())),
                  ERROR_SUCCESS);
        RegCloseKey(opened);
    }

    static std::optional<RawValue> Stored(const char* name, const std::string& below = "")
    {
        char bytes[2000];
        DWORD size = sizeof bytes;
        DWORD type = 0;
        const LSTATUS status =
            RegGetValueA(HKEY_CURRENT_USER, Path(below).c_str(), name, RRF_RT_ANY | RRF_NOEXPAND, &type, bytes, &size);
        return status == ERROR_SUCCESS ? std::optional(RawValue{type, std::string(bytes, size)}) : std::nullopt;
    }

    static bool HasKey(const std::string& below)
    {
        HKEY opened = nullptr;
        const bool found = RegOpenKeyExA(HKEY_CURRENT_USER, Path(below).c_str(), 0, KEY_READ, &opened) == ERROR_SUCCESS;
        RegCloseKey(opened);
        return found;
    }

    static std::string Path(const std::string& below)
    {
        return "Software\\VornToolRegistry" + (below.empty() ? "" : "\\" + below);
    }

private:
    const ScratchKey m_scratch{HKEY_CURRENT_USER, "Software\\VornToolRegistry"};
};

std::vector<std::string> Call(const char* command, const char* key, const std::vector<std::string>& words)
{
    std::vector<std::string> all = {"registry", command, key};
    all.insert(all.end(), words.begin(), words.end());
    return all;
}

} // namespace

TEST_F(RegistryTool, SetMakesTheKeyAndStoresEachType)
{
    ExpectDone(Call("set", kKey, {"Text", "Denver"}), "");
    EXPECT_EQ(Stored("Text"), (RawValue{REG_SZ, "Denver\0"s}));
    ExpectDone(Call("set", kKey, {"Number", "-1", "--type", "dword"}), "");
    EXPECT_EQ(Stored("Number"), (RawValue{REG_DWORD, "\xFF\xFF\xFF\xFF"}));
    ExpectDone(Call("set", kKey, {"Number", "0x10", "--type=dword"}), "");
    EXPECT_EQ(Stored("Number"), (RawValue{REG_DWORD, "\x10\0\0\0"s}));
    ExpectDone(Call("set", kKey, {"Bytes", "00 ff", "--type", "binary"}), "");
    EXPECT_EQ(Stored("Bytes"), (RawValue{REG_BINARY, "\0\xFF"s}));
    ExpectDone(Call("set", kKey, {"List", "a", "", "b c", "--type", "list"}), "");
    EXPECT_EQ(Stored("List"), (RawValue{REG_MULTI_SZ, "a\0\0b c\0\0"s}));
    ExpectDone(Call("set", kKey, {"Empty", "--type", "list"}), "");
    EXPECT_EQ(Stored("Empty"), (RawValue{REG_MULTI_SZ, "\0"s}));
    ExpectDone(Call("set", kKey, {"Variables", "%windir%", "--type", "expand"}), "");
    EXPECT_EQ(Stored("Variables"), (RawValue{REG_EXPAND_SZ, "%windir%\0"s}));
    ExpectDone(Call("set", kKey, {"", "default"}), "");
    EXPECT_EQ(Stored(""), (RawValue{REG_SZ, "default\0"s}));
}

TEST_F(RegistryTool, SetRefusesValuesThatAreNoneOfTheirType)
{
    ExpectFailure(Call("set", kKey, {"Name", "4294967296", "--type", "dword"}), 2,
                  "vorntool registry set: '4294967296' is no whole number of 32 bits");
    ExpectFailure(Call("set", kKey, {"Name", "0f0", "--type", "binary"}), 2,
                  "vorntool registry set: '0f0' has not pairs of hexadecimal digits");
    ExpectFailure(Call("set", kKey, {"Name", "x", "--type", "text"}), 2,
                  "vorntool registry set: 'text' is no type to set: there are sz, dword, binary, list and expand");
    ExpectFailure(Call("set", kKey, {"Name"}), 2, "vorntool registry set: VALUE is missing");
    ExpectFailure(Call("set", kKey, {"Name", "a", "b"}), 2,
                  "vorntool registry set: several VALUEs make a list only, with --type list");
    ExpectFailure(Call("set", kKey, {"Name", "\xD0\x96"}), 2,
                  "vorntool registry set: '\xD0\x96' has characters that the system's code page has not");
    ExpectFailure(Call("set", kKey, {"\xD0\x96", "x"}), 2,
                  "vorntool registry set: '\xD0\x96' cannot be the name of a value");
    EXPECT_FALSE(HasKey(""));
}

TEST_F(RegistryTool, GetPrintsEachType)
{
    Put("", "Text", REG_SZ, "15 \xB0\0"s);
    Put("", "Unended", REG_SZ, "abc");
    Put("", "Number", REG_DWORD, "\xFF\xFF\xFF\xFF");
    Put("", "Long number", REG_QWORD, "\0\0\0\0\1\0\0\0"s);
    Put("", "Short number", REG_DWORD, "12");
    Put("", "Bytes", REG_BINARY, std::string(3000, '\xAB'));
    Put("", "List", REG_MULTI_SZ, "one\0two\0\0"s);
    Put("", "None", REG_MULTI_SZ, "\0"s);
    Put("", "", REG_EXPAND_SZ, "%windir%\0"s);
    std::string digits;
    for (int i = 0; i < 3000; ++i)
    {
        digits += "ab";
    }
    ExpectDone(Call("get", kKey, {"Text"}), "15 \xC2\xB0\n");
    ExpectDone(Call("get", kKey, {"Unended"}), "abc\n");
    ExpectDone(Call("get", kKey, {"Number"}), "4294967295\n");
    ExpectDone(Call("get", kKey, {"Long number"}), "4294967296\n");
    ExpectDone(Call("get", kKey, {"Short number"}), "3132\n");
    ExpectDone(Call("get", kKey, {"Bytes"}), digits + "\n");
    ExpectDone(Call("get", kKey, {"List"}), "one\ntwo\n");
    ExpectDone(Call("get", kKey, {"None"}), "");
    ExpectDone(Call("get", kKey, {""}), "%windir%\n");
}

TEST_F(RegistryTool, GetSaysWhatIsNotThere)
{
    Put("", "Text", REG_SZ, "x\0"s);
    ExpectFailure(Call("get", kKey, {"Absent"}), 1,
                  "vorntool registry get: there is no value 'Absent' in '"s + kFullKey + "' (error 2: File not found)");
    ExpectFailure(Call("get", kKey, {""}), 1,
                  "vorntool registry get: there is no default value in '"s + kFullKey + "' (error 2: File not found)");
    ExpectFailure(Call("get", "hkcu\\Software\\VornToolRegistry\\Absent\\", {"Text"}), 1,
                  "vorntool registry get: there is no key '"s + kFullKey + "\\Absent' (error 2: File not found)");
}

TEST_F(RegistryTool, JsonTellsTheTypes)
{
    const std::string key = R"({"key":"HKEY_CURRENT_USER\\Software\\VornToolRegistry","name":)";
    ExpectDone(Call("set", kKey, {"T", "a\"b", "--json"}), key + R"("T","type":"sz","value":"a\"b"})" + "\n");
    ExpectDone(Call("get", kKey, {"T", "--json"}), key + R"("T","type":"sz","value":"a\"b"})" + "\n");
    Put("", "N", REG_DWORD, "\xFF\xFF\xFF\xFF");
    ExpectDone(Call("get", kKey, {"N", "--json"}), key + R"("N","type":"dword","value":4294967295})" + "\n");
    Put("", "L", REG_MULTI_SZ, "a\0b"s);
    ExpectDone(Call("get", kKey, {"L", "--json"}), key + R"("L","type":"list","value":["a","b"]})" + "\n");
    Put("", "O", 42, "\1");
    ExpectDone(Call("get", kKey, {"O", "--json"}), key + R"("O","type":"type 42","value":"01"})" + "\n");
    ExpectDone(Call("delete", kKey, {"O", "--json"}), key + R"("O","deleted":true})" + "\n");
}

TEST_F(RegistryTool, ListShowsValuesAndTheKeysBelow)
{
    Put("", "Text", REG_SZ, "two\nlines\0"s);
    Put("", "A list", REG_MULTI_SZ, "a\0b\0\0"s);
    Put("", "", REG_DWORD, "\5\0\0\0"s);
    Put("Charts", "Name", REG_SZ, "x\0"s);
    Put("Charts\\Deep", "Name", REG_SZ, "y\0"s);
    const std::string own = "["s + kFullKey +
                            "]\n"
                            "  (default)  dword  5\n"
                            "  A list     list   \"a\", \"b\"\n"
                            "  Text       sz     two\\nlines\n"
                            "  Charts\\    key\n";
    ExpectDone(Call("list", kKey, {}), own);
    ExpectDone(Call("list", kKey, {"--recursive"}), own + "\n[" + kFullKey +
                                                        "\\Charts]\n"
                                                        "  Name   sz   x\n"
                                                        "  Deep\\  key\n"
                                                        "\n[" +
                                                        kFullKey +
                                                        "\\Charts\\Deep]\n"
                                                        "  Name  sz  y\n");
}

TEST_F(RegistryTool, ListAsJsonIsAnArrayOfKeys)
{
    Put("Charts", "Name", REG_SZ, "x\0"s);
    const std::string own =
        R"([{"key":"HKEY_CURRENT_USER\\Software\\VornToolRegistry","values":[],"subkeys":["Charts"]})";
    ExpectDone(Call("list", kKey, {"--json"}), own + "]\n");
    ExpectDone(Call("list", kKey, {"--json", "--recursive"}),
               own + R"(,{"key":"HKEY_CURRENT_USER\\Software\\VornToolRegistry\\Charts",)" +
                   R"("values":[{"name":"Name","type":"sz","value":"x"}],"subkeys":[]}])" + "\n");
}

TEST_F(RegistryTool, ListSaysWhatIsNoKey)
{
    ExpectFailure(Call("list", kKey, {}), 1,
                  "vorntool registry list: there is no key '"s + kFullKey + "' (error 2: File not found)");
    for (const char* word : {"Software", "", "HKDD\\Software", "HKCU\\\\Software", "HKCU/Software"})
    {
        ExpectFailure(Call("list", word, {}), 2,
                      "vorntool registry list: '"s + word +
                          "' is no key: it begins with a root (HKCU, HKLM, HKCR, HKU or HKCC) and has one backslash "
                          "between names");
    }
}

TEST_F(RegistryTool, ListShowsRoots)
{
    const ToolRun run = RunVornTool({"registry", "list", "HKEY_CURRENT_USER"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_NE(run.text.find("  Software\\"), std::string::npos);
}

TEST_F(RegistryTool, DeleteTakesAValueAway)
{
    Put("", "Text", REG_SZ, "x\0"s);
    Put("", "", REG_SZ, "default\0"s);
    ExpectDone(Call("delete", kKey, {"Text"}), "");
    EXPECT_FALSE(Stored("Text"));
    EXPECT_TRUE(Stored(""));
    ExpectFailure(Call("delete", kKey, {"Text"}), 1,
                  "vorntool registry delete: there is no value 'Text' in '"s + kFullKey +
                      "' (error 2: File not found)");
    ExpectDone(Call("delete", kKey, {""}), "");
    EXPECT_FALSE(Stored(""));
    EXPECT_TRUE(HasKey(""));
}

TEST_F(RegistryTool, DeleteTakesAKeyAwayAndThoseBelowWhenAskedTo)
{
    Put("A\\B", "Text", REG_SZ, "x\0"s);
    ExpectFailure(Call("delete", kKey, {}), 1,
                  "vorntool registry delete: '"s + kFullKey +
                      "' has keys below it (1); to delete them too, say --recursive");
    EXPECT_TRUE(HasKey("A\\B"));
    ExpectFailure(Call("delete", kKey, {"A", "--recursive"}), 2,
                  "vorntool registry delete: --recursive goes without a NAME");
    ExpectDone(Call("delete", "HKCU\\Software\\VornToolRegistry\\A\\B", {}), "");
    EXPECT_FALSE(HasKey("A\\B"));
    EXPECT_TRUE(HasKey("A"));
    ExpectDone(Call("delete", kKey, {"--recursive", "--json"}),
               R"({"key":"HKEY_CURRENT_USER\\Software\\VornToolRegistry","deleted":true})"
               "\n");
    EXPECT_FALSE(HasKey(""));
    ExpectFailure(Call("delete", kKey, {}), 1,
                  "vorntool registry delete: there is no key '"s + kFullKey + "' (error 2: File not found)");
}

TEST_F(RegistryTool, RootsAreNeverDeleted)
{
    Put("", "Text", REG_SZ, "x\0"s);
    for (const char* root : {"HKCU", "HKEY_CURRENT_USER\\", "hku"})
    {
        for (const std::vector<std::string>& words : {std::vector<std::string>{}, {"--recursive"}})
        {
            const ToolRun run = RunVornTool(Call("delete", root, words));
            EXPECT_EQ(run.status, 1u);
            EXPECT_NE(run.errors.find("is a root, which is never deleted"), std::string::npos) << run.errors;
        }
    }
    EXPECT_TRUE(Stored("Text"));
}
