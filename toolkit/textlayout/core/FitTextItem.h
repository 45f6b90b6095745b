#pragma once

#include "framework/core/Geometry.h"
#include "toolkit/textlayout/core/Item.h"
#include "toolkit/textlayout/core/TextMeasure.h"

namespace vorn
{

/// Fits the "text" of a node into its "maxWidth" and "maxHeight" and makes the result its size; a text that had to be
/// cut is the node's text from then on. A node that has its "width", "height" and "fontHeight" keeps them.
/// @return false without a space, or when the fonts cannot be had.
bool FitTextItem(TextLayout::Item& node, TextMeasure& measure, CSize& size, int& fontHeight);

} // namespace vorn
