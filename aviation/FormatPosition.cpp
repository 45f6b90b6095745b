#include "aviation/Formatting.h"

#include "aviation/core/Course.h"
#include "aviation/core/Position.h"
#include "aviation/core/Rounding.h"
#include "frame/VornCommonApp.h"
#include "frame/core/StringViews.h"

namespace
{

int GeneralSetting(const char* key, int standard)
{
    VornCommonApp* const app = VornCommonApp::Inst();
    return app != nullptr ? app->GetSettingInt("General", key, standard) : standard;
}

vorn::PositionFormat ChosenFormat()
{
    const bool seconds = GeneralSetting("Show seconds", 0) != 0;
    return {seconds, GeneralSetting(seconds ? "LatLonPrecSeconds" : "LatLonPrecMinutes", 1)};
}

} // namespace

CString LatLonToString(double degrees, bool isLatitude)
{
    const vorn::PositionFormat format = ChosenFormat();
    return LatLonToString(degrees, isLatitude, format.seconds, format.decimals);
}

CString LatLonToString(double degrees, bool isLatitude, bool seconds, int decimals)
{
    const vorn::Axis axis = isLatitude ? vorn::Axis::Latitude : vorn::Axis::Longitude;
    return vorn::ToCString(vorn::PositionText(degrees, axis, {seconds, decimals}).View());
}

CString LatToString(double lat)
{
    return LatLonToString(lat, true);
}

CString LonToString(double lon)
{
    return LatLonToString(lon, false);
}

CString CourseToString(double value, bool eastWest)
{
    return vorn::ToCString(vorn::CourseText(value, eastWest));
}

void RoundTo(double& value, int decimals)
{
    value = vorn::RoundedTo(value, decimals);
}
