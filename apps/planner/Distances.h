#pragma once

#include "apps/planner/core/PlanSums.h"

#include <span>
#include <string>

/// @file
/// Distances of a plan, which are nautical miles, in the unit that the user has chosen.

namespace vorn::planner
{

/// Such as "185.2": the number alone.
std::string DistanceNumber(double miles, int decimals);

/// Whole units with the unit's name: "185 KM".
std::string DistanceText(double miles);

/// How many legs, how far, how long.
std::string SummaryText(std::span<const Leg> legs);

} // namespace vorn::planner
