#include "framework/include/afxwin.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

using vorn::test::ScratchFolder;
using vorn::test::ScratchKey;

namespace
{

class Registry : public testing::Test
{
protected:
    Registry() : key(HKEY_CURRENT_USER, "Software\\VornTestCompany"), app("Test Product")
    {
        app.SetRegistryKey("VornTestCompany");
    }
    /// A value as the registry itself has it.
    std::string Raw(const char* entry, DWORD& type) const
    {
        char data[256] = {};
        DWORD size = sizeof(data);
        if (::RegGetValue(HKEY_CURRENT_USER, "Software\\VornTestCompany\\Test Product\\Section", entry, RRF_RT_ANY,
                          &type, data, &size) != ERROR_SUCCESS)
        {
            type = REG_NONE;
            return "(none)";
        }
        return {data, size};
    }
    void Put(const char* entry, DWORD type, const void* data, DWORD size)
    {
        HKEY section = app.GetSectionKey("Section");
        ::RegSetValueEx(section, entry, 0, type, static_cast<const BYTE*>(data), size);
        ::RegCloseKey(section);
    }
    ScratchKey key;
    CWinApp app;
};

class IniFile : public testing::Test
{
protected:
    IniFile() : path(folder.File("test.ini")), app("Test Product")
    {
        app.m_pszProfileName = ::_strdup(path.c_str());
    }
    ScratchFolder folder;
    std::string path;
    CWinApp app;
};

using Bytes = std::vector<BYTE>;

/// What GetProfileBinary gives; a single 0xEE when it fails.
Bytes Binary(CWinApp& app, const char* entry)
{
    LPBYTE data = reinterpret_cast<LPBYTE>(1);
    UINT size = 99;
    if (!app.GetProfileBinary("Section", entry, &data, &size))
    {
        EXPECT_EQ(data, nullptr);
        EXPECT_EQ(size, 0U);
        return {0xEE};
    }
    const std::unique_ptr<BYTE[]> owner(data);
    return {data, data + size};
}

const Bytes kFailed = {0xEE};

} // namespace

TEST_F(Registry, IsWhereTheKeysNamesSay)
{
    EXPECT_TRUE(app.WriteProfileInt("Section", "Number", -7));
    EXPECT_TRUE(app.WriteProfileString("Section", "Text", "a text"));
    DWORD type = 0;
    const std::string number = Raw("Number", type);
    EXPECT_EQ(type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(number, std::string("\xF9\xFF\xFF\xFF", 4));
    EXPECT_EQ(Raw("Text", type), std::string("a text\0", 7));
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
}

TEST_F(Registry, GivesBackWhatWasWritten)
{
    app.WriteProfileInt("Section", "Number", -7);
    EXPECT_EQ(static_cast<int>(app.GetProfileInt("Section", "Number", 3)), -7);
    app.WriteProfileString("Section", "Text", "");
    EXPECT_EQ(app.GetProfileString("Section", "Text", "default"), "");
    const std::string longText(5000, 'L');
    app.WriteProfileString("Section", "Text", longText.c_str());
    EXPECT_EQ(app.GetProfileString("Section", "Text"), longText.c_str());
}

TEST_F(Registry, GivesDefaultsForWhatIsNotThereAndMakesNothing)
{
    EXPECT_EQ(app.GetProfileInt("Section", "Number", 3), 3U);
    EXPECT_EQ(app.GetProfileString("Section", "Text", "default"), "default");
    EXPECT_EQ(app.GetProfileString("Section", "Text"), "");
    EXPECT_EQ(Binary(app, "Data"), kFailed);
    EXPECT_FALSE(key.Exists());
}

TEST_F(Registry, GivesDefaultsForValuesOfOtherTypes)
{
    app.WriteProfileString("Section", "Text", "12");
    EXPECT_EQ(app.GetProfileInt("Section", "Text", 3), 3U);
    app.WriteProfileInt("Section", "Number", 5);
    EXPECT_EQ(app.GetProfileString("Section", "Number", "default"), "default");
    EXPECT_EQ(Binary(app, "Number"), kFailed);
    Put("Short", REG_DWORD, "ab", 2);
    EXPECT_EQ(app.GetProfileInt("Section", "Short", 3), 3U);
}

TEST_F(Registry, EndsTextsThatHaveNoEnd)
{
    Put("Open", REG_SZ, "open", 4);
    EXPECT_EQ(app.GetProfileString("Section", "Open"), "open");
    Put("Holed", REG_SZ, "ab\0cd", 6);
    EXPECT_EQ(app.GetProfileString("Section", "Holed"), "ab");
    Put("Empty", REG_SZ, "", 0);
    EXPECT_EQ(app.GetProfileString("Section", "Empty", "default"), "");
}

TEST_F(Registry, KeepsBytes)
{
    Bytes data(700);
    for (std::size_t i = 0; i < data.size(); ++i)
    {
        data[i] = static_cast<BYTE>(i * 7);
    }
    EXPECT_TRUE(app.WriteProfileBinary("Section", "Data", data.data(), static_cast<UINT>(data.size())));
    EXPECT_EQ(Binary(app, "Data"), data);
    EXPECT_TRUE(app.WriteProfileBinary("Section", "Data", nullptr, 0));
    EXPECT_EQ(Binary(app, "Data"), Bytes());
    DWORD type = 0;
    Raw("Data", type);
    EXPECT_EQ(type, static_cast<DWORD>(REG_BINARY));
}

TEST_F(Registry, ForgetsEntriesAndSections)
{
    app.WriteProfileInt("Section", "Number", 5);
    app.WriteProfileInt("Section", "Other", 6);
    EXPECT_TRUE(app.WriteProfileString("Section", "Number", nullptr));
    EXPECT_EQ(app.GetProfileInt("Section", "Number", 3), 3U);
    EXPECT_EQ(app.GetProfileInt("Section", "Other", 3), 6U);
    EXPECT_TRUE(app.WriteProfileString("Section", "Number", nullptr)) << "already gone";
    EXPECT_TRUE(app.WriteProfileString("Section", nullptr, nullptr));
    EXPECT_EQ(app.GetProfileInt("Section", "Other", 3), 3U);
}

TEST_F(Registry, DeletesWhatIsNotThereWithoutFailingOrMakingKeys)
{
    EXPECT_TRUE(app.WriteProfileString("Nowhere", "entry", nullptr));
    HKEY section = nullptr;
    EXPECT_NE(
        ::RegOpenKeyEx(HKEY_CURRENT_USER, "Software\\VornTestCompany\\Test Product\\Nowhere", 0, KEY_READ, &section),
        ERROR_SUCCESS);
    ASSERT_TRUE(app.WriteProfileInt("Section", "other", 1));
    EXPECT_TRUE(app.WriteProfileString("Section", "entry", nullptr));
}

TEST_F(Registry, NeverDeletesTheWholeProductForAnEmptySection)
{
    app.WriteProfileInt("Section", "Number", 5);
    EXPECT_FALSE(app.WriteProfileString("", nullptr, nullptr));
    EXPECT_EQ(app.GetProfileInt("Section", "Number", 3), 5U);
}

TEST_F(Registry, RefusesNullNames)
{
    EXPECT_EQ(app.GetProfileInt(nullptr, "Number", 3), 3U);
    EXPECT_EQ(app.GetProfileInt("Section", nullptr, 3), 3U);
    EXPECT_FALSE(app.WriteProfileInt(nullptr, "Number", 3));
    EXPECT_EQ(app.GetProfileString("Section", nullptr, "d"), "d");
    EXPECT_FALSE(app.WriteProfileString(nullptr, "Text", "t"));
    LPBYTE data = nullptr;
    UINT size = 0;
    EXPECT_FALSE(app.GetProfileBinary("Section", "Data", nullptr, &size));
    EXPECT_FALSE(app.GetProfileBinary("Section", "Data", &data, nullptr));
    EXPECT_FALSE(app.WriteProfileBinary("Section", "Data", nullptr, 5));
    EXPECT_FALSE(key.Exists());
}

TEST_F(IniFile, HasSectionsAndEntries)
{
    EXPECT_TRUE(app.WriteProfileInt("Section", "Number", -7));
    EXPECT_TRUE(app.WriteProfileString("Section", "Text", "a text"));
    EXPECT_EQ(folder.Read("test.ini"), "[Section]\r\nNumber=-7\r\nText=a text\r\n");
    EXPECT_EQ(static_cast<int>(app.GetProfileInt("Section", "Number", 3)), -7);
    EXPECT_EQ(app.GetProfileString("Section", "Text"), "a text");
    EXPECT_EQ(app.GetProfileString("Section", "None", "default"), "default");
    EXPECT_EQ(app.GetProfileString("Section", "None"), "");
    EXPECT_TRUE(app.WriteProfileString("Section", "Text", nullptr));
    EXPECT_EQ(app.GetProfileString("Section", "Text", "default"), "default");
}

TEST_F(IniFile, HoldsTextsLongerThanOneBuffer)
{
    const std::string longText(5000, 'L');
    EXPECT_TRUE(app.WriteProfileString("Section", "Text", longText.c_str()));
    EXPECT_EQ(app.GetProfileString("Section", "Text"), longText.c_str());
}

TEST_F(IniFile, HoldsBytesAsLettersLowerHalfFirst)
{
    BYTE data[] = {0x00, 0x1F, 0xA0};
    EXPECT_TRUE(app.WriteProfileBinary("Section", "Data", data, 3));
    EXPECT_EQ(folder.Read("test.ini"), "[Section]\r\nData=AAPBAK\r\n");
    EXPECT_EQ(Binary(app, "Data"), (Bytes{0x00, 0x1F, 0xA0}));
}

TEST_F(IniFile, RefusesDamagedBytes)
{
    folder.Write("test.ini", "[Section]\r\nOdd=AAP\r\nForeign=AAPQ\r\nEmpty=\r\n");
    EXPECT_EQ(Binary(app, "Odd"), kFailed);
    EXPECT_EQ(Binary(app, "Foreign"), kFailed);
    EXPECT_EQ(Binary(app, "None"), kFailed);
    EXPECT_EQ(Binary(app, "Empty"), Bytes());
}

TEST(IniFileName, IsMadeFromTheApplicationsNameBeforeStartUp)
{
    CWinApp app("VornNeverStarted");
    char windows[MAX_PATH] = {};
    ::GetWindowsDirectory(windows, MAX_PATH);
    const std::string path = std::string(windows) + "\\VornNeverStarted.INI";
    ::DeleteFile(path.c_str());
    EXPECT_TRUE(app.WriteProfileInt("Section", "Number", 5));
    EXPECT_EQ(app.GetProfileInt("Section", "Number", 3), 5U);
    EXPECT_TRUE(::DeleteFile(path.c_str()));
}
