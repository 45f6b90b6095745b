#pragma once

#include <VornCommon.h>

#include <span>

namespace vorn::planner
{

/// A kind of quantity and the units that the user may choose for it.
struct UnitChoice
{
    const char* label; ///< of a menu, with a mnemonic
    const char* key;   ///< in section "Units"
    int defaultUnit;
    int metricUnit;
    std::span<const int> units;
};

/// All kinds, in the order in which they are offered.
std::span<const UnitChoice> UnitChoices();

int UnitInForce(const UnitChoice& choice);

/// Stores a unit and puts it into force, unless it is. @return whether it was stored
bool StoreUnit(const UnitChoice& choice, int unit);

/// The unit's name; for UNIT_AUTO that pages decide.
CString UnitName(int unit);

} // namespace vorn::planner
