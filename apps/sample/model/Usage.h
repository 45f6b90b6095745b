#pragma once

#include "apps/sample/core/ReportTable.h"

#include <string>

/// What the sample counts of its own use, in the order of its statistics file.
enum class UsageEvent
{
    Start,
    TableOpened,
    Search,
    Edit,
    Deletion,
    Pack,
};

/// Counts a use once more and saves the counters at once, in the user's folder of the sample. A folder that cannot be
/// written costs the count and nothing else.
void CountUse(UsageEvent event);

/// The counters so far.
vorn::ReportTable UsageTable();

/// The same in lines, for a window that shows texts.
std::string UsageText();

/// Sets all counters to 0 and saves them.
void ClearUsage();
