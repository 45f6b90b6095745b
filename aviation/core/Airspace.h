#pragma once

#include <string_view>

namespace vorn
{

/// Name of an airspace record's type code (0 to 30), "UnSpecified" for any other.
std::string_view AirspaceTypeText(int type);

} // namespace vorn
