#pragma once

#include "family/TarnUtil/core/Export.h"

/// Capitalises the words of @p text in place: a letter becomes upper case at the start and after any character that
/// is neither a letter, a digit nor an apostrophe; every other letter becomes lower case ("O'HARE intl" gives
/// "O'hare Intl"). Letters are A to Z; bytes above 127 stay as they are and count as separators. Null is ignored.
TARNUTIL_API void FixCase(char* text);
