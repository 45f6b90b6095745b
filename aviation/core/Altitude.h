#pragma once

#include <string>
#include <string_view>

namespace vorn
{

/// The word for a special altitude code (-5000 to -4995), empty for any other altitude in feet.
std::string_view SpecialAltitudeText(int feet);

/// Whether an altitude may be written as a flight level at all: whole hundreds of feet.
constexpr bool IsWholeLevel(int feet)
{
    return feet % 100 == 0;
}

/// "FL180" for 18000 ft: hundreds of feet in at least three places ("FL-02" for -200 ft).
std::string FlightLevelText(int feet);

/// The word of a special code, or what `unitText(feet)` makes of the altitude.
template <class UnitText>
auto AltitudeText(int feet, UnitText&& unitText) -> decltype(unitText(feet))
{
    using Text = decltype(unitText(feet));
    const std::string_view word = SpecialAltitudeText(feet);
    return word.empty() ? unitText(feet) : Text(word.data(), static_cast<int>(word.size()));
}

/// As `AltitudeText`, but whole hundreds at or above the transition altitude are flight levels. `transition()`, in
/// feet, is asked for whole hundreds only.
template <class Transition, class UnitText>
auto LevelOrAltitudeText(int feet, Transition&& transition, UnitText&& unitText) -> decltype(unitText(feet))
{
    using Text = decltype(unitText(feet));
    if (SpecialAltitudeText(feet).empty() && IsWholeLevel(feet) && feet >= transition())
    {
        const std::string level = FlightLevelText(feet);
        return Text(level.data(), static_cast<int>(level.size()));
    }
    return AltitudeText(feet, unitText);
}

} // namespace vorn
