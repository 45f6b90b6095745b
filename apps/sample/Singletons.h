#pragma once

#include <string>

/// Ends everything of the library that lives until it is told to go. The next use makes each of them anew.
void FreeSingletons();

/// What there is of them, for seeing that a life begins with none of the last one's: `no log, no projections, no path
/// records, 1 settings record, 0 drawing objects, timer 1000`. Looking makes the settings' and the drawing objects'.
std::string SingletonsText();
