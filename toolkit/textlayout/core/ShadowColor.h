#pragma once

#include "framework/core/BaseTypes.h"

namespace vorn
{

/// The colour of a text's shadow: black, or light grey below a dark text (a luma under 128 by the weights of ITU-R
/// BT.601).
COLORREF ShadowColor(COLORREF text);

} // namespace vorn
