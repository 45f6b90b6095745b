#include <VornCommon.h>

#include <cstdio>

int main()
{
    PathMgr* const paths = PathMgr::Instance("PathsExample");
    const PathCfgVer layout = PCV_VISTA;
    paths->SetPathCfgVer(layout, "PathsExample");

    // Where the user's routes are kept: the last instance that was added counts.
    const CString standard = paths->GetPathInst(DP_ROUTE, "PathsExample");
    std::printf("a folder by default: %s\n", standard.Right(1) == "\\" ? "yes" : "no");
    paths->AddPathInst(DP_ROUTE, "D:\\Shared routes\\", layout, "PathsExample");
    std::printf("now: %s\n", paths->GetPathInst(DP_ROUTE, "PathsExample").GetString());
    std::printf("instances: %d\n", static_cast<int>(paths->GetPathInstList(DP_ROUTE, "PathsExample")->size()));

    // Back to the default.
    paths->RemovePathInst(DP_ROUTE, "d:\\shared ROUTES\\", "PathsExample");
    std::printf("as before: %s\n", paths->GetPathInst(DP_ROUTE, "PathsExample") == standard ? "yes" : "no");

    PathMgr::FreeInst();
    AppRegMgr::FreeInst();
    return 0;
}
