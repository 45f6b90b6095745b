#include <VornCommon.h>

#include <cstdio>

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("PositionsExample")
    {
        VornCommonApp::Inst(this);
    }
};

int main()
{
    Host host;
    const LatLon seattle(47.449, -122.309);
    const LatLon spokane(47.62, -117.534);

    std::printf("%s  %s\n", LatToString(seattle.Lat()).GetString(), LonToString(seattle.Lon()).GetString());
    host.WriteSettingInt("General", "Show seconds", 1); // the user wants to see them
    std::printf("%s  %s\n", LatToString(seattle.Lat()).GetString(), LonToString(seattle.Lon()).GetString());

    // A leg: true course, distance in nautical miles, time at 140 knots.
    const double miles = seattle.Distance(spokane);
    std::printf("%s true, %.1f NM, %s\n", CourseToString(seattle.Direction(spokane), false).GetString(), miles,
                TimeToString(miles / 140, true, false).GetString());
    std::printf("%s at %s\n", CourseToString(-15.4, true).GetString(), FLAltToString(21000).GetString());

    // A typed time of day.
    CString typed = "2561";
    ValidateTime(typed);
    std::printf("%s\n", typed.GetString());

    // A moment of navigation data, in seconds since 1970.
    CString effective;
    FormatStdShortDate(1700092800, effective, false);
    std::printf("effective %s\n", effective.GetString());

    host.WriteSettingString("General", nullptr, nullptr);
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
    return 0;
}
