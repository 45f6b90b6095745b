#pragma once

#include "framework/core/CString.h"

#include <windows.h>

namespace vorn
{

/// A date in the user's locale: `flags` choose its long or short form, or a picture stands for both. Empty when it is
/// no date, and from `capacity` characters on.
CString LocaleDate(const SYSTEMTIME& when, DWORD flags, const char* picture, int capacity);

} // namespace vorn
