#include <VornCommon.h>

#include <cstdio>
#include <memory>

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("ProjectionsExample")
    {
        VornCommonApp::Inst(this);
    }
};

int main()
{
    Host host;
    WinProjectionLib::Init(nullptr, 0); // paths of plug-ins go here
    ProjectionLib* const projections = ProjectionLib::mpInstance;
    for (int i = 0; i < projections->NumProjections(); ++i)
        std::printf("%d %s\n", i, projections->ProjectionName(i));

    // Lambert's conformal cone around 47 N 120 W, true to scale at 33 and 45 degrees.
    const std::unique_ptr<Projection> cone(projections->CreateProjection(PROJECTION_LAMBERT_CONFORMAL));
    cone->SetMapPole(47, -120);
    double x = 0;
    double y = 0;
    cone->LLtoXY(47.449, -122.309, x, y); // in Earth radii
    std::printf("%.6f, %.6f\n", x, y);
    double lat = 0;
    double lon = 0;
    cone->XYtoLL(x, y, lat, lon);
    std::printf("%.3f, %.3f\n", lat, lon);

    // A view is kept as a text under a name of the host's settings.
    ViewDefinition view;
    view.mProjection = PROJECTION_LAMBERT_CONFORMAL;
    view.mCenterLat = 47.5;
    view.mCenterLon = -121;
    view.mScale = 12050;
    host.WriteSettingString("Views", "Chart", view.Format());
    ViewDefinition restored;
    if (LoadViewDef(&restored, "Views", "Chart"))
        std::printf("%s\n", restored.Format().GetString());

    host.WriteSettingString("Views", nullptr, nullptr);
    WinProjectionLib::Deinit();
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
    return 0;
}
