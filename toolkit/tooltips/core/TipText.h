#pragma once

/// @file
/// The texts of a tool: a short tip and, behind a carriage return, what its info box says.
#include "framework/core/CString.h"

namespace vorn
{

/// Between the short tip and the info box's text.
inline constexpr char kTipSeparator = '\r';
/// Longest text of a string resource, in characters.
inline constexpr int kTipTextLimit = 511;

/// A field of a text, counted from 0: what stands between separators. A text without separator is one field.
CString TipField(const CString& text, int index, char separator);

/// The width at which a text is wrapped, 0 for none. An info box's always is: by itself at 300 pixels, or at the width
/// of the title above it when that is wider.
int TipWrapWidth(int maxWidth, bool infoBox, int titleWidth = 0);

} // namespace vorn
