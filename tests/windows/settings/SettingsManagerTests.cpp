#include "config/AppRegMgr.h"
#include "config/GlobalRegData.h"
#include "tests/support/VirtualSlot.h"
#include "tests/windows/settings/ScratchSettings.h"

using namespace vorn::test;

namespace
{
class SettingsManager : public ScratchSettings
{
protected:
    AppRegMgr& manager()
    {
        return *AppRegMgr::Instance();
    }

    std::string hostName()
    {
        char path[MAX_PATH];
        GetModuleFileNameA(nullptr, path, MAX_PATH);
        const std::string file = std::string(path).substr(std::string(path).find_last_of('\\') + 1);
        return file.substr(0, file.find_last_of('.'));
    }
};

bool isShared(AppRegData* record)
{
    return dynamic_cast<GlobalRegData*>(record) != nullptr;
}
} // namespace

TEST_F(SettingsManager, IsMadeOnce)
{
    EXPECT_EQ(AppRegMgr::Instance(), AppRegMgr::Instance());
}

TEST_F(SettingsManager, StartsWithTheHostNamedAfterTheExecutable)
{
    EXPECT_EQ(manager().GetAppRegIndex(hostName().c_str()), 0);
    AppRegData* host = manager().GetAppRegData(hostName().c_str());
    ASSERT_NE(host, nullptr);
    EXPECT_EQ(host->GetModName(), hostName().c_str());
    EXPECT_FALSE(isShared(host));
}

TEST_F(SettingsManager, AddsAnApplicationOnce)
{
    EXPECT_EQ(manager().AddApp(app().c_str()), 1);
    EXPECT_EQ(manager().AddApp("VornTestOther"), 2);
    EXPECT_EQ(manager().AddApp(app().c_str()), 1);
    EXPECT_EQ(manager().AddApp(hostName().c_str()), 0);
    EXPECT_EQ(manager().GetAppRegIndex(app().c_str()), 1);
    EXPECT_STREQ(manager().GetAppRegData(app().c_str())->GetModName(), app().c_str());
}

TEST_F(SettingsManager, ComparesNamesExactly)
{
    manager().AddApp(app().c_str());
    const std::string upper = CString(app().c_str()).MakeUpper().GetString();
    EXPECT_EQ(manager().GetAppRegIndex(upper.c_str()), -1);
    EXPECT_EQ(manager().GetAppRegData(upper.c_str()), nullptr);
    EXPECT_EQ(manager().AddApp(upper.c_str()), 2);
}

TEST_F(SettingsManager, EmptyNameIsTheHostWhenAddedAndUnknownWhenLookedUp)
{
    EXPECT_EQ(manager().AddApp(""), 0);
    EXPECT_EQ(manager().GetAppRegIndex(""), -1);
    EXPECT_EQ(manager().GetAppRegData(""), nullptr);
}

TEST_F(SettingsManager, GlobalAndInstallersAreShared)
{
    manager().AddApp("Global");
    manager().AddApp("Installers");
    manager().AddApp("global");
    EXPECT_TRUE(isShared(manager().GetAppRegData("Global")));
    EXPECT_TRUE(isShared(manager().GetAppRegData("Installers")));
    EXPECT_FALSE(isShared(manager().GetAppRegData("global")));
}

TEST_F(SettingsManager, SharedNamesHoldForRecordsAddedLaterAndOutliveTheManager)
{
    const CString early = (app() + "Early").c_str();
    const CString late = (app() + "Late").c_str();
    manager().AddApp(early);
    AppRegMgr::UseGlobalRegForApp(early);
    AppRegMgr::UseGlobalRegForApp(late);
    AppRegMgr::UseGlobalRegForApp(late);
    manager().AddApp(late);
    EXPECT_FALSE(isShared(manager().GetAppRegData(early)));
    EXPECT_TRUE(isShared(manager().GetAppRegData(late)));
    AppRegMgr::FreeInst();
    manager().AddApp(early);
    EXPECT_TRUE(isShared(manager().GetAppRegData(early)));
}

TEST_F(SettingsManager, IsMadeAnewAfterFreeing)
{
    manager().AddApp(app().c_str());
    manager().AllowNetwork(true);
    AppRegMgr::Instance()->FreeInst();
    EXPECT_EQ(manager().GetAppRegIndex(app().c_str()), -1);
    EXPECT_FALSE(manager().AllowNetwork());
    AppRegMgr::FreeInst();
    AppRegMgr::FreeInst();
}

TEST_F(SettingsManager, RemembersWhetherTheNetworkIsAllowed)
{
    EXPECT_FALSE(manager().AllowNetwork());
    manager().AllowNetwork(true);
    EXPECT_TRUE(manager().AllowNetwork());
    manager().AllowNetwork(false);
    EXPECT_FALSE(manager().AllowNetwork());
}

TEST_F(SettingsManager, HandsCallsOnByIndex)
{
    const int index = manager().AddApp(app().c_str());
    EXPECT_TRUE(manager().WriteVornString("General", "Name", "Denver", index));
    EXPECT_TRUE(manager().WriteVornInt("General", "Level", 5, index));
    EXPECT_TRUE(manager().WriteVornStrInt("General", "Count", "6", index));
    EXPECT_FALSE(manager().WriteVornStrInt("General", "Count", "-6", index));
    EXPECT_EQ(get("General", "Name"), rawText("Denver"));
    EXPECT_EQ(get("General", "Level"), rawNumber(5));
    EXPECT_EQ(get("General", "Count"), rawNumber(6));
    EXPECT_STREQ(manager().ReadVornString("General", "Name", "", index), "Denver");
    EXPECT_EQ(manager().ReadVornInt("General", "Level", 0, index), 5);
}

TEST_F(SettingsManager, HandsCallsOnByName)
{
    const char* name = app().c_str();
    manager().AddApp(name);
    EXPECT_TRUE(manager().WriteVornString("General", "Name", "Denver", name));
    EXPECT_TRUE(manager().WriteVornInt("General", "Level", 5, name));
    EXPECT_TRUE(manager().WriteVornStrInt("General", "Count", "6", name));
    EXPECT_EQ(get("General", "Name"), rawText("Denver"));
    EXPECT_EQ(get("General", "Level"), rawNumber(5));
    EXPECT_EQ(get("General", "Count"), rawNumber(6));
    EXPECT_STREQ(manager().ReadVornString("General", "Name", "", name), "Denver");
    EXPECT_EQ(manager().ReadVornInt("General", "Level", 0, name), 5);
}

TEST_F(SettingsManager, NullAndEmptyNamesAreTheHost)
{
    const char* const nobody = nullptr;
    EXPECT_TRUE(manager().WriteVornInt(app().c_str(), "Level", 5, nobody));
    EXPECT_EQ(manager().ReadVornInt(app().c_str(), "Level", 0, ""), 5);
    EXPECT_EQ(manager().ReadVornInt(app().c_str(), "Level", 0, 0), 5);
    EXPECT_TRUE(manager().WriteVornString(app().c_str(), nullptr, nullptr, ""));
    EXPECT_EQ(manager().ReadVornInt(app().c_str(), "Level", 0, nobody), 0);
}

TEST_F(SettingsManager, UnknownNameOrIndexReadsTheDefaultAndWritesFalse)
{
    put("General", "Level", rawNumber(5));
    const char* name = app().c_str();
    EXPECT_EQ(manager().ReadVornInt("General", "Level", 3, name), 3);
    EXPECT_STREQ(manager().ReadVornString("General", "Level", "d", name), "d");
    EXPECT_FALSE(manager().WriteVornInt("General", "Level", 3, name));
    EXPECT_FALSE(manager().WriteVornString("General", "Level", "3", name));
    EXPECT_FALSE(manager().WriteVornStrInt("General", "Level", "3", name));
    for (const int index : {-1, 1, 1000, INT_MIN, INT_MAX})
    {
        EXPECT_EQ(manager().ReadVornInt("General", "Level", 3, index), 3);
        EXPECT_STREQ(manager().ReadVornString("General", "Level", nullptr, index), "");
        EXPECT_FALSE(manager().WriteVornInt("General", "Level", 3, index));
        EXPECT_FALSE(manager().WriteVornString("General", "Level", "3", index));
        EXPECT_FALSE(manager().WriteVornStrInt("General", "Level", "3", index));
    }
}

TEST_F(SettingsManager, MachineWideMarkIsReadFromAnExistingFile)
{
    const auto isSet = [](std::string_view text)
    {
        const ScratchFile file(text);
        CString path = file.path();
        return AppRegMgr::IsGlobalSet(path);
    };
    EXPECT_TRUE(isSet("[Registry Settings]\r\nLocal Machine=1\r\n"));
    EXPECT_FALSE(isSet("[Registry Settings]\r\nLocal Machine=0\r\n"));
    EXPECT_FALSE(isSet("[Registry Settings]\r\nLocal Machine=11\r\n"));
    EXPECT_FALSE(isSet("[Registry Settings]\r\nLocal Machine=yes\r\n"));
    EXPECT_FALSE(isSet("[Other]\r\nLocal Machine=1\r\n"));
    EXPECT_FALSE(isSet(""));
    CString missing = "C:\\no such folder\\no.ini";
    EXPECT_FALSE(AppRegMgr::IsGlobalSet(missing));
    CString empty;
    EXPECT_FALSE(AppRegMgr::IsGlobalSet(empty));
}

TEST(SettingsSlots, OfTheManagerStandInOrder)
{
    using M = AppRegMgr;
    using T = const char*;
    // The destructor takes the first two.
    EXPECT_EQ(SlotOf(static_cast<CString (M::*)(T, T, T, int)>(&M::ReadVornString)), 2);
    EXPECT_EQ(SlotOf(static_cast<CString (M::*)(T, T, T, T)>(&M::ReadVornString)), 3);
    EXPECT_EQ(SlotOf(static_cast<int (M::*)(T, T, int, int)>(&M::ReadVornInt)), 4);
    EXPECT_EQ(SlotOf(static_cast<int (M::*)(T, T, int, T)>(&M::ReadVornInt)), 5);
    EXPECT_EQ(SlotOf(static_cast<BOOL (M::*)(T, T, T, int)>(&M::WriteVornString)), 6);
    EXPECT_EQ(SlotOf(static_cast<BOOL (M::*)(T, T, T, T)>(&M::WriteVornString)), 7);
    EXPECT_EQ(SlotOf(static_cast<BOOL (M::*)(T, T, int, int)>(&M::WriteVornInt)), 8);
    EXPECT_EQ(SlotOf(static_cast<BOOL (M::*)(T, T, int, T)>(&M::WriteVornInt)), 9);
    EXPECT_EQ(SlotOf(static_cast<BOOL (M::*)(T, T, T, int)>(&M::WriteVornStrInt)), 10);
    EXPECT_EQ(SlotOf(static_cast<BOOL (M::*)(T, T, T, T)>(&M::WriteVornStrInt)), 11);
}

TEST(SettingsSlots, OfTheRecordsStandInOrder)
{
    EXPECT_EQ(SlotOf(&AppRegData::InitINITable), 0);
    EXPECT_EQ(SlotOf(&AppRegData::ReadVornString), 1);
    EXPECT_EQ(SlotOf(&AppRegData::ReadVornInt), 2);
    EXPECT_EQ(SlotOf(&AppRegData::WriteVornString), 3);
    EXPECT_EQ(SlotOf(&AppRegData::WriteVornInt), 4);
    EXPECT_EQ(SlotOf(&AppRegData::WriteVornStrInt), 5);
    EXPECT_EQ(SlotOf(&GlobalRegData::ReadVornString), 1);
    EXPECT_EQ(SlotOf(&GlobalRegData::WriteVornStrInt), 5);
}
