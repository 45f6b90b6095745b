#include "aviation/ConversionBoy.h"
#include "aviation/Formatting.h"
#include "aviation/core/Airspace.h"
#include "aviation/core/Altitude.h"
#include "config/AppRegMgr.h"
#include "frame/VornCommonApp.h"
#include "frame/core/StringViews.h"

namespace
{

constexpr int kUsualTransition = 18000; // feet

CString InUsersUnit(int feet)
{
    ConversionBoy* const units = GetConversionBoy();
    return units != nullptr ? units->Str(feet, UNITTYPE_SHORTDISTANCE, 0) : CString();
}

int TransitionAltitude()
{
    return AppRegMgr::Instance()->ReadVornInt("Altitude", "Flight Level", kUsualTransition, 0);
}

} // namespace

CString AltToString(int feet)
{
    return vorn::AltitudeText(feet, InUsersUnit);
}

CString FLAltToString(int feet)
{
    return vorn::LevelOrAltitudeText(feet, TransitionAltitude, InUsersUnit);
}

CString TASTypeToString(int type)
{
    const std::string_view text = vorn::AirspaceTypeText(type);
    return vorn::ToCString(text);
}
