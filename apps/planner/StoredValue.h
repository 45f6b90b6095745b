#pragma once

#include <VornCommon.h>

/// @file
/// The host's settings as dialogs of preferences write them: only what is no longer in force, so that a setting nobody
/// has touched keeps its default.

namespace vorn::planner
{

/// The host.
VornCommonApp& App();

/// Whether the setting stands somewhere, and is no default.
bool IsStored(const char* section, const char* key);

/// Stores a number unless it is in force. @return whether it was stored
bool StoreNumber(const char* section, const char* key, int defaultValue, int value);

/// Takes a setting away. @return whether there was one
bool Forget(const char* section, const char* key);

} // namespace vorn::planner
