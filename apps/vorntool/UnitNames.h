#pragma once

#include <VornCommon.h>

#include <string>

namespace vorn::tool
{

/// The unit that a word names: its display name (for temperatures also without the degree sign), its full name, its
/// plural or another common spelling ("kt", "lb"), whatever the case; UNIT_AUTO for none.
UNIT UnitNamed(const std::string& word);

/// UTF-8 names of a unit; empty for a code outside the table.
std::string DisplayNameOf(UNIT unit);
std::string PluralNameOf(UNIT unit);

} // namespace vorn::tool
