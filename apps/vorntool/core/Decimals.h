#pragma once

#include "apps/vorntool/core/Command.h"

namespace vorn::tool
{

/// The option that fixes the number of decimals.
inline constexpr Option kDecimalsOption = {"decimals", "N", "print N decimals, 0 to 100"};

/// Takes the option from a call: -1 when it was not given.
/// @return false for anything but a number from 0 to 100, with the reason in @p reason
bool TakeDecimals(const Invocation& call, int& decimals, std::string& reason);

} // namespace vorn::tool
