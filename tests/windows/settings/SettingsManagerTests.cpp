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
    AppRegMgr& Manager()
    {
        return *AppRegMgr::Instance();
    }

    std::string HostName()
    {
        char path[MAX_PATH];
        GetModuleFileNameA(nullptr, path, MAX_PATH);
        const std::string file = std::string(path).substr(std::string(path).find_last_of('\\') + 1);
        return file.substr(0, file.find_last_of('.'));
    }
};

bool IsShared(AppRegData* record)
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
    EXPECT_EQ(Manager().GetAppRegIndex(HostName().c_str()), 0);
    AppRegData* host = Manager().GetAppRegData(HostName().c_str());
    ASSERT_NE(host, nullptr);
    EXPECT_EQ(host->GetModName(), HostName().c_str());
    EXPECT_FALSE(IsShared(host));
}

TEST_F(SettingsManager, AddsAnApplicationOnce)
{
    EXPECT_EQ(Manager().AddApp(App().c_str()), 1);
    EXPECT_EQ(Manager().AddApp("VornTestOther"), 2);
    EXPECT_EQ(Manager().AddApp(App().c_str()), 1);
    EXPECT_EQ(Manager().AddApp(HostName().c_str()), 0);
    EXPECT_EQ(Manager().GetAppRegIndex(App().c_str()), 1);
    EXPECT_STREQ(Manager().GetAppRegData(App().c_str())->GetModName(), App().c_str());
}

TEST_F(SettingsManager, ComparesNamesExactly)
{
    Manager().AddApp(App().c_str());
    const std::string upper = CString(App().c_str()).MakeUpper().GetString();
    EXPECT_EQ(Manager().GetAppRegIndex(upper.c_str()), -1);
    EXPECT_EQ(Manager().GetAppRegData(upper.c_str()), nullptr);
    EXPECT_EQ(Manager().AddApp(upper.c_str()), 2);
}

TEST_F(SettingsManager, EmptyNameIsTheHostWhenAddedAndUnknownWhenLookedUp)
{
    EXPECT_EQ(Manager().AddApp(""), 0);
    EXPECT_EQ(Manager().GetAppRegIndex(""), -1);
    EXPECT_EQ(Manager().GetAppRegData(""), nullptr);
}

TEST_F(SettingsManager, GlobalAndInstallersAreShared)
{
    Manager().AddApp("Global");
    Manager().AddApp("Installers");
    Manager().AddApp("global");
    EXPECT_TRUE(IsShared(Manager().GetAppRegData("Global")));
    EXPECT_TRUE(IsShared(Manager().GetAppRegData("Installers")));
    EXPECT_FALSE(IsShared(Manager().GetAppRegData("global")));
}

TEST_F(SettingsManager, SharedNamesHoldForRecordsAddedLaterAndOutliveTheManager)
{
    const CString early = (App() + "Early").c_str();
    const CString late = (App() + "Late").c_str();
    Manager().AddApp(early);
    AppRegMgr::UseGlobalRegForApp(early);
    AppRegMgr::UseGlobalRegForApp(late);
    AppRegMgr::UseGlobalRegForApp(late);
    Manager().AddApp(late);
    EXPECT_FALSE(IsShared(Manager().GetAppRegData(early)));
    EXPECT_TRUE(IsShared(Manager().GetAppRegData(late)));
    AppRegMgr::FreeInst();
    Manager().AddApp(early);
    EXPECT_TRUE(IsShared(Manager().GetAppRegData(early)));
}

TEST_F(SettingsManager, IsMadeAnewAfterFreeing)
{
    Manager().AddApp(App().c_str());
    Manager().AllowNetwork(true);
    AppRegMgr::Instance()->FreeInst();
    EXPECT_EQ(Manager().GetAppRegIndex(App().c_str()), -1);
    EXPECT_FALSE(Manager().AllowNetwork());
    AppRegMgr::FreeInst();
    AppRegMgr::FreeInst();
}

TEST_F(SettingsManager, RemembersWhetherTheNetworkIsAllowed)
{
    EXPECT_FALSE(Manager().AllowNetwork());
    Manager().AllowNetwork(true);
    EXPECT_TRUE(Manager().AllowNetwork());
    Manager().AllowNetwork(false);
    EXPECT_FALSE(Manager().AllowNetwork());
}

TEST_F(SettingsManager, HandsCallsOnByIndex)
{
    const int index = Manager().AddApp(App().c_str());
    EXPECT_TRUE(Manager().WriteVornString("General", "Name", "Denver", index));
    EXPECT_TRUE(Manager().WriteVornInt("General", "Level", 5, index));
    EXPECT_TRUE(Manager().WriteVornStrInt("General", "Count", "6", index));
    EXPECT_FALSE(Manager().WriteVornStrInt("General", "Count", "-6", index));
    EXPECT_EQ(Get("General", "Name"), RawText("Denver"));
    EXPECT_EQ(Get("General", "Level"), RawNumber(5));
    EXPECT_EQ(Get("General", "Count"), RawNumber(6));
    EXPECT_STREQ(Manager().ReadVornString("General", "Name", "", index), "Denver");
    EXPECT_EQ(Manager().ReadVornInt("General", "Level", 0, index), 5);
}

TEST_F(SettingsManager, HandsCallsOnByName)
{
    const char* name = App().c_str();
    Manager().AddApp(name);
    EXPECT_TRUE(Manager().WriteVornString("General", "Name", "Denver", name));
    EXPECT_TRUE(Manager().WriteVornInt("General", "Level", 5, name));
    EXPECT_TRUE(Manager().WriteVornStrInt("General", "Count", "6", name));
    EXPECT_EQ(Get("General", "Name"), RawText("Denver"));
    EXPECT_EQ(Get("General", "Level"), RawNumber(5));
    EXPECT_EQ(Get("General", "Count"), RawNumber(6));
    EXPECT_STREQ(Manager().ReadVornString("General", "Name", "", name), "Denver");
    EXPECT_EQ(Manager().ReadVornInt("General", "Level", 0, name), 5);
}

TEST_F(SettingsManager, NullAndEmptyNamesAreTheHost)
{
    const char* const nobody = nullptr;
    EXPECT_TRUE(Manager().WriteVornInt(App().c_str(), "Level", 5, nobody));
    EXPECT_EQ(Manager().ReadVornInt(App().c_str(), "Level", 0, ""), 5);
    EXPECT_EQ(Manager().ReadVornInt(App().c_str(), "Level", 0, 0), 5);
    EXPECT_TRUE(Manager().WriteVornString(App().c_str(), nullptr, nullptr, ""));
    EXPECT_EQ(Manager().ReadVornInt(App().c_str(), "Level", 0, nobody), 0);
}

TEST_F(SettingsManager, UnknownNameOrIndexReadsTheDefaultAndWritesFalse)
{
    Put("General", "Level", RawNumber(5));
    const char* name = App().c_str();
    EXPECT_EQ(Manager().ReadVornInt("General", "Level", 3, name), 3);
    EXPECT_STREQ(Manager().ReadVornString("General", "Level", "d", name), "d");
    EXPECT_FALSE(Manager().WriteVornInt("General", "Level", 3, name));
    EXPECT_FALSE(Manager().WriteVornString("General", "Level", "3", name));
    EXPECT_FALSE(Manager().WriteVornStrInt("General", "Level", "3", name));
    for (const int index : {-1, 1, 1000, INT_MIN, INT_MAX})
    {
        EXPECT_EQ(Manager().ReadVornInt("General", "Level", 3, index), 3);
        EXPECT_STREQ(Manager().ReadVornString("General", "Level", nullptr, index), "");
        EXPECT_FALSE(Manager().WriteVornInt("General", "Level", 3, index));
        EXPECT_FALSE(Manager().WriteVornString("General", "Level", "3", index));
        EXPECT_FALSE(Manager().WriteVornStrInt("General", "Level", "3", index));
    }
}

TEST_F(SettingsManager, MachineWideMarkIsReadFromAnExistingFile)
{
    const auto isSet = [](std::string_view text)
    {
        const ScratchFile file(text);
        CString path = file.Path();
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
