#pragma once

/// @file
/// Settings that more than one dialog offers, stored and put into force alike by all of them.

namespace vorn::planner
{

/// The most decimals that the last part of a position is offered with: a millimetre in seconds.
inline constexpr int kMostDecimals = 4;

/// Whether tips are shown at controls.
bool ShowsTips();
/// @return whether that is new
bool StoreTips(bool shows);
/// Puts the stored choice about tips into force, for all windows of the program.
void ApplyTips();

/// Stores a state of the chart's colours and puts it into force. @return whether that is new
bool StoreColorState(int state);

} // namespace vorn::planner
