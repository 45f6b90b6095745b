#include "apps/planner/Distances.h"

#include <VornCommon.h>

namespace vorn::planner
{

std::string DistanceNumber(double miles, int decimals)
{
    const UNIT unit = GetConversionBoy()->Unit(UNITTYPE_DISTANCE); // as it stands, also for less than half of one
    return NumberText(GetConversionBoy()->Value(miles, UNITTYPE_DISTANCE, decimals, UNIT_NM, unit, -1), decimals);
}

std::string DistanceText(double miles)
{
    return DistanceNumber(miles, 0) + ' ' + GetConversionBoy()->UnitStr(UNITTYPE_DISTANCE).GetString();
}

std::string SummaryText(std::span<const Leg> legs)
{
    return SummaryOf(legs, DistanceText(SumOf(legs).miles));
}

} // namespace vorn::planner
