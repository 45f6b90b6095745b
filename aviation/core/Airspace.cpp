#include "aviation/core/Airspace.h"

#include <array>

namespace vorn
{

namespace
{

constexpr std::array kAirspaceTypes = std::to_array<std::string_view>({
    "Unknown",
    "Airport Radar Service Area",
    "Air Traffic Zone",
    "Class A Airspace",
    "Class B Airspace",
    "Class C Airspace",
    "Class D Airspace",
    "Class E Airspace",
    "Class F Airspace",
    "Class G Airspace",
    "Multi-Class Airspace",
    "Control Area (Airport)",
    "Control Area (Non-Airport)",
    "Control Zone (CTZ/CTR)",
    "Helicopter Protected Zone",
    "Helicopter Traffic Zone",
    "Military Air Traffic Zone",
    "Military Control Zone",
    "Military Terminal Area",
    "Oceanic Control Area (Non-Airport)",
    "Radar (Zone or Area) (RRZ/RRA)",
    "Special Rules Area",
    "Special Rules Zone",
    "Terminal Control Area",
    "Terminal Area",
    "Terminal Radar Service Area",
    "Traffic Information Zone",
    "Upper Control Area",
    "Upper Control Area (Non-Airport)",
    "Positive Control Area",
    "Traffic Information Area",
});
static_assert(kAirspaceTypes.size() == 31);

} // namespace

std::string_view AirspaceTypeText(int type)
{
    return type >= 0 && static_cast<std::size_t>(type) < kAirspaceTypes.size()
               ? kAirspaceTypes[static_cast<std::size_t>(type)]
               : "UnSpecified";
}

} // namespace vorn
