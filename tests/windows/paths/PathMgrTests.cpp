#include "config/PathMgr.h"

#include "config/AppRegMgr.h"
#include "tests/support/VirtualSlot.h"
#include "tests/windows/paths/PathSettings.h"

using namespace vorn::test;

namespace
{

class PathManager : public PathSettings
{
protected:
    static PathMgr& Paths()
    {
        return *PathMgr::Instance();
    }
};

/// Shows what the interface keeps for derived classes.
class OpenPathMgr : public PathMgr
{
public:
    using PathMgr::GetProfileAptDiagramPath;
    using PathMgr::GetProfilePath;
    using PathMgr::InitKnownPaths;
    using PathMgr::InitLegacyPaths;
    using PathMgr::InitVistaPaths;
    using PathMgr::mpInstance;
    using PathMgr::SimplifyPath;

    static int SlotOfInitialize()
    {
        return SlotOf(&OpenPathMgr::Initialize);
    }
};

} // namespace

TEST(PathManagerInterface, VirtualOperationsStandInTheirOrder)
{
    using M = PathMgr;
    EXPECT_EQ(SlotOf(static_cast<CString (M::*)(KnownPath, VornPath, const char*, int)>(&M::GetKnownPath)), 0);
    EXPECT_EQ(SlotOf(static_cast<CString (M::*)(KnownPath, VornPath, const char*, const char*)>(&M::GetKnownPath)), 1);
    EXPECT_EQ(OpenPathMgr::SlotOfInitialize(), 4); // the destructor takes 2 and 3
}

TEST_F(PathManager, IsMadeOnTheFirstCall)
{
    EXPECT_EQ(OpenPathMgr::mpInstance, nullptr);
    PathMgr* const manager = PathMgr::Instance();
    EXPECT_NE(manager, nullptr);
    EXPECT_EQ(OpenPathMgr::mpInstance, manager);
    EXPECT_EQ(PathMgr::Instance(), manager);
    EXPECT_EQ(manager->GetNumAppPaths(), 0);
    PathMgr::FreeInst();
    EXPECT_EQ(OpenPathMgr::mpInstance, nullptr);
    PathMgr::FreeInst();
}

TEST_F(PathManager, ANamedFirstCallRegistersTheApplication)
{
    Set("Home Path", Folder());
    PathMgr* const manager = PathMgr::Instance(kApp);
    EXPECT_EQ(manager->GetNumAppPaths(), 1);
    EXPECT_EQ(manager->GetAppPathIndex(kApp), 0);
    EXPECT_EQ(manager->GetPathCfgVer(0), PCV_LEGACY);
    EXPECT_EQ(PathMgr::Instance("Viewer"), manager);
    EXPECT_EQ(manager->GetNumAppPaths(), 1) << "later calls register nothing";
}

TEST_F(PathManager, RegistersWithTheSettingsManagerToo)
{
    EXPECT_EQ(Paths().SetPathCfgVer(PCV_LEGACY, kApp), 0);
    EXPECT_GE(AppRegMgr::Instance()->GetAppRegIndex(kApp), 0);
    EXPECT_EQ(Paths().SetPathCfgVer(PCV_LEGACY, "Viewer"), 1);
    EXPECT_EQ(Paths().GetNumAppPaths(), 2);
}

TEST_F(PathManager, SetPathCfgVerOfAKnownApplicationGivesTheLayoutBefore)
{
    Paths().SetPathCfgVer(PCV_LEGACY, "Viewer");
    Paths().SetPathCfgVer(PCV_VISTA, kApp);
    EXPECT_EQ(Paths().SetPathCfgVer(PCV_LEGACY, kApp), PCV_VISTA);
    EXPECT_EQ(Paths().SetPathCfgVer(PCV_VISTA, 1), PCV_LEGACY);
    EXPECT_EQ(Paths().GetPathCfgVer(kApp), PCV_VISTA);
    EXPECT_EQ(Paths().GetNumAppPaths(), 2);
}

TEST_F(PathManager, ANullOrEmptyNameIsTheFirstApplication)
{
    for (const char* const none : {"", static_cast<const char*>(nullptr)})
    {
        PathMgr::FreeInst();
        Paths().SetPathCfgVer(PCV_VISTA, kApp);
        EXPECT_EQ(Paths().GetPathInst(DP_DATA, none), Paths().GetPathInst(DP_DATA, 0));
        EXPECT_EQ(Paths().SetPathCfgVer(PCV_LEGACY, none), PCV_VISTA);
        EXPECT_EQ(Paths().GetNumAppPaths(), 1);
    }
}

TEST_F(PathManager, WithoutANameTheHostIsRegistered)
{
    EXPECT_EQ(Paths().SetPathCfgVer(PCV_LEGACY, nullptr), 0);
    EXPECT_EQ(Paths().GetNumAppPaths(), 1);
    AppPathData* const record = Paths().GetAppPathData(0);
    EXPECT_TRUE(record->GetApplication().IsEmpty());
    EXPECT_EQ(Paths().GetAppPathData(record->GetModuleName()), record) << "known by its Home's last folder";
}

TEST_F(PathManager, ComparesNamesExactly)
{
    Paths().SetPathCfgVer(PCV_LEGACY, kApp);
    EXPECT_EQ(Paths().GetAppPathIndex("Planner"), 0);
    EXPECT_EQ(Paths().GetAppPathIndex("planner"), -1);
    EXPECT_EQ(Paths().GetAppPathIndex(""), -1);
    EXPECT_EQ(Paths().GetAppPathData("planner"), nullptr);
    EXPECT_EQ(Paths().GetAppPathData(-1), nullptr);
    EXPECT_EQ(Paths().GetAppPathData(99), nullptr);
}

TEST_F(PathManager, BothFormsReachTheSameRecord)
{
    Paths().SetPathCfgVer(PCV_LEGACY, "Viewer");
    Paths().SetPathCfgVer(PCV_LEGACY, kApp);
    EXPECT_TRUE(Paths().AddPathInst(DP_DATA, "Q:\\a", PCV_LEGACY, kApp));
    EXPECT_EQ(Paths().GetPathInst(DP_DATA, 1), "Q:\\a");
    EXPECT_NE(Paths().GetPathInst(DP_DATA, 0), "Q:\\a");
    EXPECT_TRUE(Paths().ReplacePathInst(DP_DATA, "q:\\A", "Q:\\b", 1));
    EXPECT_EQ(Paths().GetPathInst(DP_DATA, kApp), "Q:\\b");
    EXPECT_EQ(Paths().GetPathInstList(DP_DATA, kApp), Paths().GetPathInstList(DP_DATA, 1));
    EXPECT_TRUE(Paths().RemovePathInst(DP_DATA, "Q:\\b", kApp));
    EXPECT_TRUE(Paths().ClearPathInst(DP_DATA, 1));
    EXPECT_EQ(Paths().GetPathInst(DP_DATA, kApp), "");
    EXPECT_EQ(Paths().GetKnownPath(KP_USER, VP_APP, "x", kApp), Paths().GetKnownPath(KP_USER, VP_APP, "x", 1));
    EXPECT_EQ(Paths().GetKnownPath(KP_USER, VP_APP, "x", 1),
              Paths().GetAppPathData(1)->GetKnownPath(KP_USER, VP_APP, "x"));
}

TEST_F(PathManager, WhatIsNotRegisteredIsEmptyAndFalse)
{
    Paths().SetPathCfgVer(PCV_VISTA, kApp);
    for (const int index : {-1, 1, 99})
    {
        EXPECT_EQ(Paths().GetPathInst(DP_DATA, index), "");
        EXPECT_EQ(Paths().GetPathInstList(DP_DATA, index), nullptr);
        EXPECT_FALSE(Paths().AddPathInst(DP_DATA, "x", PCV_VISTA, index));
        EXPECT_FALSE(Paths().RemovePathInst(DP_DATA, "x", index));
        EXPECT_FALSE(Paths().ReplacePathInst(DP_DATA, "x", "y", index));
        EXPECT_FALSE(Paths().ClearPathInst(DP_DATA, index));
        EXPECT_EQ(Paths().GetPathCfgVer(index), PCV_LEGACY);
        EXPECT_EQ(Paths().SetPathCfgVer(PCV_LEGACY, index), 0);
        EXPECT_EQ(Paths().GetKnownPath(KP_USER, VP_APP, "x", index), "");
    }
    EXPECT_EQ(Paths().GetPathInst(DP_DATA, "Nobody"), "");
    EXPECT_EQ(Paths().GetPathInstList(DP_DATA, "Nobody"), nullptr);
    EXPECT_FALSE(Paths().AddPathInst(DP_DATA, "x", PCV_VISTA, "Nobody"));
    EXPECT_EQ(Paths().GetPathCfgVer("Nobody"), PCV_LEGACY);
    EXPECT_EQ(Paths().GetKnownPath(KP_USER, VP_APP, "x", "Nobody"), "");
}

TEST_F(PathManager, ForwardersForDerivedClassesReachTheRecord)
{
    Set("Home Path", "Q:\\Fam\\Vornwald\\Planner\\");
    Paths().SetPathCfgVer(PCV_LEGACY, kApp);
    auto& open = static_cast<OpenPathMgr&>(Paths());
    EXPECT_EQ(open.GetProfilePath("Home Path", "", "Paths", kApp), "Q:\\Fam\\Vornwald\\Planner\\");
    EXPECT_EQ(open.GetProfilePath("Home Path", "", "Paths", 0), "Q:\\Fam\\Vornwald\\Planner\\");
    EXPECT_EQ(open.GetProfilePath("Home Path", "", "Paths", 5), "");
    EXPECT_EQ(open.GetProfileAptDiagramPath("AptDiagram Path", "Q:\\none", "Q:\\second", kApp), "Q:\\second");
    EXPECT_EQ(open.GetProfileAptDiagramPath("AptDiagram Path", "Q:\\none", "Q:\\second", 0), "Q:\\second");
    open.InitKnownPaths(kApp);
    open.InitKnownPaths(0);
    open.InitLegacyPaths(0);
    EXPECT_EQ(Paths().GetPathInstList(DP_DATA, 0)->size(), 2U);
    open.InitLegacyPaths("Nobody");
    open.InitVistaPaths(kApp);
    EXPECT_EQ(Paths().GetAppPathData(0)->GetPathConfig(PCV_VISTA), nullptr) << "a layout without a table takes nothing";
    CString path = "Q:\\a\\..\\b";
    open.SimplifyPath(path);
    EXPECT_EQ(path, "Q:\\b");
}
