#include "config/AppPathData.h"

#include "config/AppRegMgr.h"
#include "tests/support/ImportRedirect.h"
#include "tests/support/VirtualSlot.h"
#include "tests/windows/paths/PathSettings.h"

#include <windows.h>

#include <shlobj.h>

using namespace vorn::test;

namespace
{

class PathRecord : public PathSettings
{
protected:
    static std::string ExecutableFolder()
    {
        char path[MAX_PATH] = {};
        GetModuleFileNameA(nullptr, path, MAX_PATH);
        const std::string text = path;
        return text.substr(0, text.rfind('\\') + 1);
    }

    static std::string Instance(AppPathData& record, int path)
    {
        return std::string(record.GetPathInst(static_cast<DefinedPath>(path)));
    }

    static std::string Known(AppPathData& record, int base, int beneath, const char* subfolder)
    {
        return std::string(
            record.GetKnownPath(static_cast<KnownPath>(base), static_cast<VornPath>(beneath), subfolder));
    }

    static std::string Profile(AppPathData& record, const char* key, const char* standard)
    {
        return std::string(record.GetProfilePath(key, standard, "Paths"));
    }
};

std::vector<HANDLE> g_closed; ///< searches that the library ended

BOOL WINAPI NoteFindClose(HANDLE search)
{
    g_closed.push_back(search);
    return FindClose(search);
}

/// Counts what goes through the virtual operations.
class CountingRecord : public AppPathData
{
public:
    using AppPathData::AppPathData;

    CString GetKnownPath(KnownPath base, VornPath beneath, const char* subfolder) override
    {
        ++known;
        return AppPathData::GetKnownPath(base, beneath, subfolder);
    }

    bool AddPathInst(DefinedPath path, CString folder, PathCfgVer layout) override
    {
        ++added;
        return AppPathData::AddPathInst(path, folder, layout);
    }

    CString GetProfilePath(const char* key, const char* standard, const char* section) override
    {
        ++profile;
        return AppPathData::GetProfilePath(key, standard, section);
    }

    int known = 0;
    int added = 0;
    int profile = 0;
};

} // namespace

TEST(PathRecordInterface, VirtualOperationsStandInTheirOrder)
{
    using D = AppPathData;
    EXPECT_EQ(SlotOf(&D::GetPathCfgVer), 0);
    EXPECT_EQ(SlotOf(&D::SetPathCfgVer), 1);
    EXPECT_EQ(SlotOf(&D::GetPathInst), 2);
    EXPECT_EQ(SlotOf(&D::AddPathInst), 3);
    EXPECT_EQ(SlotOf(&D::RemovePathInst), 4);
    EXPECT_EQ(SlotOf(&D::ReplacePathInst), 5);
    EXPECT_EQ(SlotOf(&D::ClearPathInst), 6);
    EXPECT_EQ(SlotOf(&D::GetPathInstList), 7);
    EXPECT_EQ(SlotOf(&D::GetKnownPath), 8);
    EXPECT_EQ(SlotOf(&D::Initialize), 11); // the destructor takes 9 and 10
    EXPECT_EQ(SlotOf(&D::InitKnownPaths), 12);
    EXPECT_EQ(SlotOf(&D::InitLegacyPaths), 13);
    EXPECT_EQ(SlotOf(&D::InitVistaPaths), 14);
    EXPECT_EQ(SlotOf(&D::GetProfilePath), 15);
}

TEST_F(PathRecord, OfTheHostStandsInTheExecutablesFolder)
{
    AppPathData record(PCV_LEGACY, nullptr);
    const std::string folder = ExecutableFolder();
    EXPECT_EQ(Instance(record, DP_EXE), folder);
    EXPECT_EQ(Instance(record, DP_PATH8), folder);
    const std::string inner = folder.substr(0, folder.size() - 1);
    EXPECT_EQ(std::string(record.GetModuleName()), inner.substr(inner.rfind('\\') + 1));
}

TEST_F(PathRecord, OfTheHostReadsTheHostsSettings)
{
    Set("Home Path", "Q:\\Fam\\Vornwald\\Viewer", kHost);
    AppPathData record(PCV_LEGACY, "");
    EXPECT_EQ(std::string(record.GetModuleName()), "Viewer");
    EXPECT_EQ(Instance(record, DP_EXE), ExecutableFolder());
    EXPECT_EQ(Instance(record, DP_ROOT), "Q:\\Fam\\");
    EXPECT_EQ(Instance(record, DP_BITMAP), "Q:\\Fam\\Vornwald\\Viewer\\Bitmaps\\");
}

TEST_F(PathRecord, OfAnotherApplicationHasItsExecutableAtHome)
{
    Set("Home Path", "Q:\\Fam\\Vornwald\\Plan");
    AppPathData record(PCV_LEGACY, kApp);
    EXPECT_EQ(Instance(record, DP_EXE), "Q:\\Fam\\Vornwald\\Plan\\");
    EXPECT_EQ(std::string(record.GetModuleName()), "Planner") << "the name given, not the folder's";
    EXPECT_EQ(std::string(record.GetApplication()), "Planner");
}

TEST_F(PathRecord, OfTheHostByNameKeepsItsExecutable)
{
    Set("Home Path", "Q:\\Fam\\Vornwald\\Viewer", kHost);
    AppPathData record(PCV_LEGACY, kHost);
    EXPECT_EQ(Instance(record, DP_EXE), ExecutableFolder());
    EXPECT_EQ(std::string(record.GetModuleName()), kHost);
}

TEST_F(PathRecord, RootIsTheWholeOfHomeOutsideTheFamily)
{
    Set("Home Path", "Q:\\Apps\\Planner\\");
    AppPathData record(PCV_LEGACY, kApp);
    EXPECT_EQ(Instance(record, DP_ROOT), "Q:\\Apps\\Planner\\");
}

TEST_F(PathRecord, TakesTheShellsFolders)
{
    AppPathData record(PCV_VISTA, kApp);
    EXPECT_EQ(Instance(record, DP_USER), Shell(CSIDL_PROFILE));
    EXPECT_EQ(Instance(record, DP_USERHIDDEN), Shell(CSIDL_LOCAL_APPDATA));
    EXPECT_EQ(Instance(record, DP_USERROAM), Shell(CSIDL_APPDATA));
    EXPECT_EQ(Instance(record, DP_PUBLICHIDDEN), Shell(CSIDL_COMMON_APPDATA));
    EXPECT_EQ(Instance(record, DP_PATH7), Shell(CSIDL_PROGRAM_FILES));
    const std::string documents = Shell(CSIDL_COMMON_DOCUMENTS);
    EXPECT_EQ(Instance(record, DP_PUBLIC), documents.substr(0, documents.rfind('\\', documents.size() - 2) + 1));
}

TEST_F(PathRecord, ChoosesTheLayoutByTheMarkerAtHome)
{
    Set("Home Path", Folder());
    EXPECT_EQ(AppPathData(PCV_AUTO, kApp).GetPathCfgVer(), PCV_LEGACY);
    Scratch().Write("Vista.app", "");
    EXPECT_EQ(AppPathData(PCV_AUTO, kApp).GetPathCfgVer(), PCV_VISTA);
    EXPECT_EQ(AppPathData(PCV_LEGACY, kApp).GetPathCfgVer(), PCV_LEGACY) << "asked for";
    EXPECT_EQ(AppPathData(static_cast<PathCfgVer>(7), kApp).GetPathCfgVer(), PCV_VISTA) << "automatic";
    EXPECT_EQ(AppPathData(static_cast<PathCfgVer>(-1), kApp).GetPathCfgVer(), PCV_VISTA);
}

TEST_F(PathRecord, SettingsGetABackslashAndBecomeFullPaths)
{
    AppPathData record(PCV_LEGACY, kApp);
    Set("Data Path", "Q:\\a\\..\\b\\.\\c");
    EXPECT_EQ(Profile(record, "Data Path", "x"), "Q:\\b\\c\\");
    Set("Data Path", "Q:/a");
    EXPECT_EQ(Profile(record, "Data Path", "x"), "Q:\\a\\");
    EXPECT_EQ(Profile(record, "No such key", "Q:\\std\\"), "Q:\\std\\");
    EXPECT_EQ(Profile(record, "No such key", nullptr), Profile(record, "No such key", ""));
}

TEST_F(PathRecord, AnEmptySettingIsTheRootOfTheCurrentDrive)
{
    AppPathData record(PCV_LEGACY, kApp);
    char current[MAX_PATH] = {};
    GetCurrentDirectoryA(MAX_PATH, current);
    Set("Data Path", "");
    EXPECT_EQ(Profile(record, "Data Path", "Q:\\"), std::string(current).substr(0, 3));
    EXPECT_EQ(Instance(record, DP_XMDATAPATH), std::string(current).substr(0, 3));
}

TEST_F(PathRecord, TextsWithoutAFullPathStay)
{
    AppPathData record(PCV_LEGACY, kApp);
    const std::string longFolder = "Q:\\" + std::string(300, 'x');
    Set("Data Path", longFolder);
    EXPECT_EQ(Profile(record, "Data Path", ""), longFolder + "\\");
    CString empty;
    record.SimplifyPath(empty);
    EXPECT_EQ(empty, "");
}

TEST_F(PathRecord, SimplifyPathForcesNoBackslash)
{
    AppPathData record(PCV_LEGACY, kApp);
    CString path = "Q:\\a\\..\\b";
    record.SimplifyPath(path);
    EXPECT_EQ(path, "Q:\\b");
}

TEST_F(PathRecord, ComposesFolders)
{
    Set("Home Path", "Q:\\Fam\\Vornwald\\Planner\\");
    AppPathData record(PCV_VISTA, kApp);
    const std::string common = Shell(CSIDL_COMMON_APPDATA);
    EXPECT_EQ(Known(record, KP_PUBLICHIDDEN, VP_APP, "Bitmaps"), common + "Vornwald\\Planner\\Bitmaps\\");
    EXPECT_EQ(Known(record, KP_PUBLICHIDDEN, VP_NONE, "Downloads"), common + "Downloads\\");
    for (const int base : {-1, 0, 3, 7, 99})
        EXPECT_EQ(Known(record, base, VP_COMMONAPPDATA, "x"), common + "Vornwald\\Planner\\x\\") << base;
    for (const int base : {-1, 7, 8})
        EXPECT_EQ(Known(record, base, VP_NONE, nullptr), "Q:\\Fam\\\\") << base;
}

TEST_F(PathRecord, ComposesFromTheLastInstance)
{
    AppPathData record(PCV_LEGACY, kApp);
    record.AddPathInst(DP_USER, "Q:\\mine", PCV_LEGACY);
    EXPECT_EQ(Known(record, KP_USER, VP_NONE, nullptr), "Q:\\mine") << "no backslash without a subfolder";
    EXPECT_EQ(Known(record, KP_USER, VP_NONE, ""), "Q:\\mine\\");
}

TEST_F(PathRecord, AirportDiagramsGoWhereTheFilesAre)
{
    Set("Home Path", Folder());
    const std::string first = MakeFolder("AptDiagram");
    AppPathData without(PCV_LEGACY, kApp);
    EXPECT_NE(Instance(without, DP_APTDIAGRAM), first);
    Scratch().Write("AptDiagram\\kbos.data", "");
    Scratch().Write("AptDiagram\\kbos.txt", "");
    MakeFolder("AptDiagram\\folder.dat");
    AppPathData still(PCV_LEGACY, kApp);
    EXPECT_NE(Instance(still, DP_APTDIAGRAM), first) << "neither a longer ending nor a folder counts";
    Scratch().Write("AptDiagram\\kbos.DAT", "");
    AppPathData with(PCV_LEGACY, kApp);
    EXPECT_EQ(Instance(with, DP_APTDIAGRAM), first);
    Set("AptDiagram Path", "Q:/as it stands");
    EXPECT_EQ(std::string(with.GetProfileAptDiagramPath("AptDiagram Path", first.c_str(), "x")), "Q:/as it stands");
}

TEST_F(PathRecord, AServerInstallationMovesHomeAndRoot)
{
    SetServer("N:\\Share\\VornView3\\Themes");
    AppRegMgr::Instance()->AddApp("Installers");
    AppRegMgr::Instance()->WriteVornString("Paths", "PlannerDir", "S:\\Apps\\Vornwald", "Installers");
    AppPathData record(PCV_LEGACY, kApp);
    EXPECT_EQ(Instance(record, DP_PATH8), "S:\\Apps\\Vornwald\\Planner\\");
    EXPECT_EQ(Instance(record, DP_ROOT), "S:\\Apps\\");
    Set("Root Path", "Q:\\R");
    AppPathData moved(PCV_LEGACY, kApp);
    EXPECT_EQ(Instance(moved, DP_ROOT), "Q:\\R\\");
    EXPECT_EQ(Instance(moved, DP_USER), "S:\\Apps\\") << "the field, not row 1";
}

TEST_F(PathRecord, AServerInstallationFallsBackToTheSetupFolder)
{
    SetServer("N:\\Share");
    AppRegMgr::Instance()->AddApp("Installers");
    AppRegMgr::Instance()->WriteVornString("Paths", "SetupDir", "S:\\Setup\\", "Installers");
    AppPathData record(PCV_LEGACY, kApp);
    EXPECT_EQ(Instance(record, DP_PATH8), "S:\\Setup\\Planner\\");
    EXPECT_EQ(Instance(record, DP_ROOT), "S:\\Setup\\");
}

TEST_F(PathRecord, AServerInstallationWithoutAFolderStandsAtTheDriveRoot)
{
    SetServer("N:\\Share");
    AppPathData record(PCV_LEGACY, kApp);
    EXPECT_EQ(Instance(record, DP_PATH8), "\\Planner\\");
}

TEST_F(PathRecord, AServerInNetworkUseHoldsTheData)
{
    SetServer("N:\\Share\\Vornwald\\VornView3\\Themes");
    AppRegMgr::Instance()->AllowNetwork(true);
    Set("Home Path", "Q:\\Fam\\Vornwald\\Planner\\");
    AppPathData record(PCV_VISTA, kApp);
    for (int path = DP_USER; path <= DP_PUBLICHIDDEN; ++path)
        EXPECT_EQ(Instance(record, path), "N:\\Share\\Vornwald\\") << path;
    EXPECT_EQ(Instance(record, DP_PATH8), "Q:\\Fam\\Vornwald\\Planner\\") << "Home stays";
    EXPECT_EQ(Known(record, KP_USER, VP_APP, "Vornwald\\x"), "N:\\Share\\Planner\\Vornwald\\x\\");
    AppRegMgr::Instance()->AllowNetwork(false);
    EXPECT_EQ(Known(record, KP_USER, VP_APP, nullptr), "N:\\Share\\Vornwald\\Vornwald\\Planner\\")
        << "asked at every call";
}

TEST_F(PathRecord, FillingAgainAddsSecondInstances)
{
    Set("Home Path", Folder());
    AppPathData record(PCV_LEGACY, kApp);
    Set("Home Path", "Q:\\elsewhere");
    Set("Data Path", "Q:\\data");
    EXPECT_EQ(record.SetPathCfgVer(PCV_LEGACY, kApp), PCV_LEGACY);
    for (int path = 0; path < DP_COUNT; ++path)
        EXPECT_EQ(record.GetPathInstList(static_cast<DefinedPath>(path))->size(), 2U) << path;
    EXPECT_EQ(Instance(record, DP_DATA), "Q:\\data\\");
    EXPECT_EQ(Instance(record, DP_PATH8), Folder()) << "Home is worked out once";
    EXPECT_EQ(record.SetPathCfgVer(PCV_VISTA, kApp), PCV_LEGACY);
    EXPECT_EQ(record.GetPathInstList(DP_DATA)->size(), 1U);
    EXPECT_EQ(record.GetPathInstVec(DP_DATA, PCV_LEGACY)->size(), 2U);
}

TEST_F(PathRecord, InstancesWorkOnTheCurrentLayout)
{
    AppPathData record(PCV_LEGACY, kApp);
    EXPECT_FALSE(record.AddPathInst(DP_DATA, "x", PCV_VISTA)) << "never filled";
    EXPECT_EQ(record.GetPathConfig(PCV_VISTA), nullptr);
    EXPECT_EQ(record.GetPathInstVec(DP_DATA, PCV_VISTA), nullptr);
    EXPECT_TRUE(record.AddPathInst(DP_DATA, "Q:/as given", PCV_LEGACY));
    EXPECT_EQ(Instance(record, DP_DATA), "Q:/as given");
    EXPECT_TRUE(record.ReplacePathInst(DP_DATA, "q:/AS GIVEN", "Q:\\new"));
    EXPECT_EQ(Instance(record, DP_DATA), "Q:\\new");
    EXPECT_TRUE(record.RemovePathInst(DP_DATA, "q:\\NEW"));
    EXPECT_FALSE(record.RemovePathInst(DP_DATA, "q:\\NEW"));
    EXPECT_TRUE(record.ClearPathInst(DP_DATA));
    EXPECT_EQ(Instance(record, DP_DATA), "");
    EXPECT_EQ(record.GetPathConfig(PCV_LEGACY)->size(), static_cast<std::size_t>(DP_COUNT));
}

TEST_F(PathRecord, NumbersOutsideTheTableAreHarmless)
{
    AppPathData record(PCV_LEGACY, kApp);
    for (const int number : {-1, static_cast<int>(DP_COUNT), 65536, 2147483647})
    {
        const auto path = static_cast<DefinedPath>(number);
        EXPECT_EQ(record.GetPathInst(path), "") << number;
        EXPECT_EQ(record.GetPathInstList(path), nullptr) << number;
        EXPECT_FALSE(record.ClearPathInst(path)) << number;
    }
    EXPECT_FALSE(record.AddPathInst(static_cast<DefinedPath>(-1), "x", PCV_LEGACY));
    EXPECT_FALSE(record.AddPathInst(static_cast<DefinedPath>(65536), "x", PCV_LEGACY));
    EXPECT_TRUE(record.AddPathInst(static_cast<DefinedPath>(200), "x", PCV_LEGACY));
    EXPECT_EQ(record.GetPathConfig(PCV_LEGACY)->size(), 201U);
}

TEST_F(PathRecord, CopiesAreDeep)
{
    Set("Home Path", "Q:\\Fam\\Vornwald\\Planner\\");
    AppPathData record(PCV_LEGACY, kApp);
    AppPathData copy(record);
    copy.AddPathInst(DP_DATA, "Q:\\other", PCV_LEGACY);
    EXPECT_NE(Instance(copy, DP_DATA), Instance(record, DP_DATA));
    EXPECT_EQ(copy.GetModuleName(), record.GetModuleName());
    EXPECT_EQ(Known(copy, KP_INSTALLROOT, VP_NONE, nullptr), Known(record, KP_INSTALLROOT, VP_NONE, nullptr));
    record = copy;
    EXPECT_EQ(Instance(record, DP_DATA), "Q:\\other");
    AppPathData& same = record;
    record = same;
    EXPECT_EQ(Instance(record, DP_DATA), "Q:\\other");
}

TEST_F(PathRecord, CopiesHaveEveryField)
{
    Set("Home Path", "Q:\\Fam\\Vornwald\\Planner\\");
    AppPathData record(PCV_LEGACY, kApp);
    Set("Home Path", "Q:\\Elsewhere\\");
    AppPathData constructed(record);
    AppPathData assigned(PCV_VISTA, "Viewer");
    assigned = record;
    // Known folders are worked out once: the other layout is filled from the fields that were copied.
    record.SetPathCfgVer(PCV_VISTA, kApp);
    for (AppPathData* copy : {&constructed, &assigned})
    {
        EXPECT_EQ(copy->GetPathCfgVer(), PCV_LEGACY);
        EXPECT_EQ(copy->GetApplication(), kApp);
        EXPECT_EQ(copy->GetPathConfig(PCV_VISTA), nullptr);
        copy->SetPathCfgVer(PCV_VISTA, kApp);
        for (int path = 0; path < DP_COUNT; ++path)
        {
            EXPECT_NE(Instance(*copy, path), "") << path;
            EXPECT_EQ(Instance(*copy, path), Instance(record, path)) << path;
        }
    }
}

TEST_F(PathRecord, EndsTheSearchForTheMarkerWhetherItBeganOrNot)
{
    Set("Home Path", Folder());
    const ImportRedirect redirect("VornCommon.dll", "FindClose", reinterpret_cast<const void*>(&NoteFindClose));
    ASSERT_TRUE(redirect.IsActive());
    // Airport diagrams make a search too; the marker's is the first.
    g_closed.clear();
    AppPathData absent(PCV_AUTO, kApp);
    ASSERT_FALSE(g_closed.empty());
    EXPECT_EQ(g_closed.front(), INVALID_HANDLE_VALUE);
    Scratch().Write("Vista.app", "");
    g_closed.clear();
    AppPathData present(PCV_AUTO, kApp);
    ASSERT_FALSE(g_closed.empty());
    EXPECT_NE(g_closed.front(), INVALID_HANDLE_VALUE);
}

TEST_F(PathRecord, FillingGoesThroughTheVirtualOperations)
{
    CountingRecord record(PCV_LEGACY, kApp);
    record.SetPathCfgVer(PCV_VISTA, kApp);
    EXPECT_EQ(record.added, DP_COUNT);
    // Counted in the table of the per-user layout; airport diagrams have an operation of their own.
    EXPECT_EQ(record.known, 76);
    EXPECT_EQ(record.profile, 43);
}

TEST_F(PathRecord, OutlivesTheSettingsManager)
{
    AppPathData record(PCV_LEGACY, kApp);
    AppRegMgr::FreeInst();
    Set("Data Path", "Q:\\data");
    AppRegMgr::FreeInst();
    EXPECT_EQ(Profile(record, "Data Path", "x"), "Q:\\data\\");
}
