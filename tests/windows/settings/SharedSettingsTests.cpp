#include "config/AppRegMgr.h"
#include "config/GlobalRegData.h"
#include "tests/windows/settings/ScratchSettings.h"

using namespace vorn::test;

namespace
{
class SharedSettings : public ScratchSettings
{
protected:
    SharedSettings()
    {
        record.SetModName(App().c_str());
    }

    GlobalRegData record;
};

constexpr char kOneSection[] = "[Local Machine Sections]\r\nName0=Network\r\nNetwork=1\r\n";

/// Roots under which "Global" has a value; its section is then deleted from both.
std::string RootsOfGlobal(const std::string& section, const char* key)
{
    std::string found;
    for (const auto& [root, name] : {std::pair(HKEY_LOCAL_MACHINE, "machine "), std::pair(HKEY_CURRENT_USER, "user ")})
    {
        const std::string path = "Software\\Vornwald\\Global\\" + section;
        if (RegGetValueA(root, path.c_str(), key, RRF_RT_ANY, nullptr, nullptr, nullptr) == ERROR_SUCCESS)
        {
            found += name;
        }
        RegDeleteTreeA(root, path.c_str());
    }
    return found;
}
} // namespace

TEST_F(SharedSettings, AreTheMachinesWhenNoSectionIsListed)
{
    EXPECT_TRUE(record.WriteVornString("Network", "Host", "h"));
    EXPECT_TRUE(record.WriteVornInt("Network", "Port", 80));
    EXPECT_TRUE(record.WriteVornStrInt("Network", "Retries", "3"));
    EXPECT_EQ(Get("Network", "Host", HKEY_LOCAL_MACHINE), RawText("h"));
    EXPECT_EQ(Get("Network", "Port", HKEY_LOCAL_MACHINE), RawNumber(80));
    EXPECT_EQ(Get("Network", "Retries", HKEY_LOCAL_MACHINE), RawNumber(3));
    EXPECT_FALSE(HasKey("", HKEY_CURRENT_USER));
    EXPECT_STREQ(record.ReadVornString("Network", "Host", ""), "h");
    EXPECT_EQ(record.ReadVornInt("Network", "Port", 0), 80);
}

TEST_F(SharedSettings, AreTheUsersForSectionsThatAreNotListed)
{
    const ScratchFile ini(kOneSection);
    GlobalRegData::SetGlobalSections(ini.Path());
    EXPECT_TRUE(record.WriteVornString("network", "Host", "h"));
    EXPECT_TRUE(record.WriteVornString("Fonts", "Face", "f"));
    EXPECT_TRUE(record.WriteVornInt("Fonts", "Size", 9));
    EXPECT_TRUE(record.WriteVornStrInt("Fonts", "Weight", "700"));
    EXPECT_EQ(Get("Network", "Host", HKEY_LOCAL_MACHINE), RawText("h"));
    EXPECT_EQ(Get("Fonts", "Face", HKEY_CURRENT_USER), RawText("f"));
    EXPECT_EQ(Get("Fonts", "Size", HKEY_CURRENT_USER), RawNumber(9));
    EXPECT_EQ(Get("Fonts", "Weight", HKEY_CURRENT_USER), RawNumber(700));
    EXPECT_FALSE(HasKey("Fonts", HKEY_LOCAL_MACHINE));
    EXPECT_STREQ(record.ReadVornString("Fonts", "Face", ""), "f");
    EXPECT_EQ(record.ReadVornInt("Fonts", "Size", 0), 9);
}

TEST_F(SharedSettings, EmptySectionIsTheUsers)
{
    EXPECT_TRUE(record.WriteVornString("", "Version", "1"));
    EXPECT_EQ(Get("", "Version", HKEY_CURRENT_USER), RawText("1"));
    EXPECT_FALSE(HasKey("", HKEY_LOCAL_MACHINE));
}

TEST_F(SharedSettings, DeletesHitTheSameRoot)
{
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
    {
        Put("Network", "Host", RawText("h"), root);
        Put("Network", "Port", RawNumber(1), root);
    }
    EXPECT_TRUE(record.WriteVornString("Network", "Host", nullptr));
    EXPECT_TRUE(record.WriteVornStrInt("Network", "Port", nullptr));
    EXPECT_EQ(Get("Network", "Host", HKEY_LOCAL_MACHINE), std::nullopt);
    EXPECT_EQ(Get("Network", "Port", HKEY_LOCAL_MACHINE), std::nullopt);
    EXPECT_TRUE(record.WriteVornString("Network", nullptr, nullptr));
    EXPECT_FALSE(HasKey("Network", HKEY_LOCAL_MACHINE));
    EXPECT_EQ(Get("Network", "Host", HKEY_CURRENT_USER), RawText("h"));
    EXPECT_EQ(Get("Network", "Port", HKEY_CURRENT_USER), RawNumber(1));
}

TEST_F(SharedSettings, MoveFromTheIniFileIntoTheRegistryWhenFirstRead)
{
    WriteSharedIni("[Network]\r\nHost=h\r\nPort=-80\r\nBoth=12\r\n");
    EXPECT_STREQ(record.ReadVornString("Network", "Host", ""), "h");
    EXPECT_EQ(record.ReadVornInt("Network", "Port", 0), -80);
    EXPECT_STREQ(record.ReadVornString("Network", "Both", ""), "12");
    EXPECT_EQ(Get("Network", "Host", HKEY_LOCAL_MACHINE), RawText("h"));
    EXPECT_EQ(Get("Network", "Port", HKEY_LOCAL_MACHINE), RawNumber(static_cast<DWORD>(-80)));
    EXPECT_EQ(Get("Network", "Both", HKEY_LOCAL_MACHINE), RawText("12"));
    EXPECT_EQ(record.ReadVornInt("Network", "Both", 0), 12);
}

TEST_F(SharedSettings, MoveUnderTheChosenRoot)
{
    const ScratchFile ini(kOneSection);
    GlobalRegData::SetGlobalSections(ini.Path());
    WriteSharedIni("[Fonts]\r\nFace=f\r\n");
    EXPECT_STREQ(record.ReadVornString("Fonts", "Face", ""), "f");
    EXPECT_EQ(Get("Fonts", "Face", HKEY_CURRENT_USER), RawText("f"));
    EXPECT_FALSE(HasKey("", HKEY_LOCAL_MACHINE));
}

TEST_F(SharedSettings, DefaultsAreNotWrittenBack)
{
    EXPECT_STREQ(record.ReadVornString("Network", "Host", "d"), "d");
    EXPECT_EQ(record.ReadVornInt("Network", "Port", 7), 7);
    EXPECT_FALSE(HasKey("", HKEY_LOCAL_MACHINE));
    EXPECT_FALSE(HasKey("", HKEY_CURRENT_USER));
}

TEST_F(SharedSettings, TextTooLongToReadIsNotReplacedFromTheIniFile)
{
    const std::string longText(2000, 'a');
    Put("Network", "Host", RawText(longText), HKEY_LOCAL_MACHINE);
    WriteSharedIni("[Network]\r\nHost=h\r\n");
    EXPECT_STREQ(record.ReadVornString("Network", "Host", ""), "h");
    EXPECT_EQ(Get("Network", "Host", HKEY_LOCAL_MACHINE), RawText(longText));
}

TEST_F(SharedSettings, ProxySectionsOfGlobalAreTheUsers)
{
    const std::string section = App() + " My Proxy";
    GlobalRegData global;
    global.SetModName("Global");
    EXPECT_TRUE(global.WriteVornString(section.c_str(), "Host", "h"));
    EXPECT_STREQ(global.ReadVornString(section.c_str(), "Host", ""), "h");
    EXPECT_EQ(RootsOfGlobal(section, "Host"), "user ");
    EXPECT_TRUE(global.WriteVornString(App().c_str(), "Host", "h"));
    EXPECT_EQ(RootsOfGlobal(App(), "Host"), "machine ");
}

TEST_F(SharedSettings, ProxySectionsOfOtherNamesAreTheMachines)
{
    EXPECT_TRUE(record.WriteVornInt("Proxy", "Port", 1));
    EXPECT_EQ(Get("Proxy", "Port", HKEY_LOCAL_MACHINE), RawNumber(1));
}

TEST_F(SharedSettings, NullTextsGiveTheDefaultAndFalse)
{
    EXPECT_STREQ(record.ReadVornString(nullptr, "a", "d"), "d");
    EXPECT_STREQ(record.ReadVornString("a", nullptr, nullptr), "");
    EXPECT_EQ(record.ReadVornInt(nullptr, nullptr, 3), 3);
    EXPECT_FALSE(record.WriteVornString(nullptr, nullptr, nullptr));
    EXPECT_FALSE(record.WriteVornInt(nullptr, nullptr, 1));
    EXPECT_FALSE(record.WriteVornStrInt(nullptr, nullptr, nullptr));
}

TEST_F(SharedSettings, ListIsEmptyWithoutItsSection)
{
    const ScratchFile one(kOneSection);
    GlobalRegData::SetGlobalSections(one.Path());
    EXPECT_FALSE(GlobalRegData::FindGlobalSection("Fonts"));
    const ScratchFile none("[Other]\r\nName0=Network\r\nNetwork=1\r\n");
    GlobalRegData::SetGlobalSections(none.Path());
    EXPECT_TRUE(GlobalRegData::FindGlobalSection("Fonts"));
    GlobalRegData::SetGlobalSections(one.Path());
    GlobalRegData::SetGlobalSections("C:\\no such folder\\no.ini");
    EXPECT_TRUE(GlobalRegData::FindGlobalSection("Fonts"));
}

TEST_F(SharedSettings, ListTakesMarkedNamesUpToTheFirstGap)
{
    const ScratchFile ini("[Local Machine Sections]\r\nName0=One\r\nName1=Two\r\nName2=Three\r\nName4=Five\r\n"
                          "One=1\r\nTwo=0\r\nThree=10\r\nFive=1\r\n");
    GlobalRegData::SetGlobalSections(ini.Path());
    EXPECT_TRUE(GlobalRegData::FindGlobalSection("One"));
    EXPECT_TRUE(GlobalRegData::FindGlobalSection("oNE"));
    for (const char* section : {"Two", "Three", "Five", ""})
    {
        EXPECT_FALSE(GlobalRegData::FindGlobalSection(section)) << section;
    }
}

TEST_F(SharedSettings, ListCutsNamesAtNineCharacters)
{
    const ScratchFile ini("[Local Machine Sections]\r\nName0=Navigation\r\nName1=Waypoints\r\nNavigatio=1\r\n"
                          "Navigation=0\r\nWaypoints=1\r\n");
    GlobalRegData::SetGlobalSections(ini.Path());
    EXPECT_TRUE(GlobalRegData::FindGlobalSection("Navigatio"));
    EXPECT_FALSE(GlobalRegData::FindGlobalSection("Navigation"));
    EXPECT_TRUE(GlobalRegData::FindGlobalSection("Waypoints"));
}

TEST_F(SharedSettings, ListTakesAHundredNamesAtMost)
{
    std::string text = "[Local Machine Sections]\r\n";
    for (int i = 0; i < 102; ++i)
    {
        const std::string number = std::to_string(i);
        text += "Name" + number + "=S" + number + "\r\nS" + number + "=1\r\n";
    }
    const ScratchFile ini(text);
    GlobalRegData::SetGlobalSections(ini.Path());
    EXPECT_TRUE(GlobalRegData::FindGlobalSection("S99"));
    EXPECT_FALSE(GlobalRegData::FindGlobalSection("S100"));
}

TEST_F(SharedSettings, EmptySectionIsNeverListed)
{
    EXPECT_EQ(GlobalRegData::FindGlobalSection(""), FALSE);
    EXPECT_EQ(GlobalRegData::FindGlobalSection("x"), TRUE);
}
