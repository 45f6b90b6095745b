#pragma once

/// @file
/// What a search compares field texts with.
#include "framework/core/CString.h"

#include <string_view>

namespace vorn
{
/// A remembered query; `field` -1 is none.
struct TableQuery
{
    int field = -1;
    CString value;
    bool isCaseSensitive = false;

    /// Whether a text is the value, exactly or with ASCII letters matching either way.
    bool Matches(std::string_view text) const;
};

/// A whole number at the start of a text, as atoi() finds it; one that does not fit is the nearest that does.
int NumberOf(std::string_view text);
} // namespace vorn
