#pragma once

/// @file
/// Search in message maps; not public interface.
#include "framework/window/MessageMap.h"

namespace vorn
{

/// The entry for a window message in a map or the maps it stands on, or null. Answers are
/// kept in the map's cache.
const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message);

/// The entry for a command: its message (WM_COMMAND, WM_NOTIFY, reflected or not), code and id.
const AFX_MSGMAP_ENTRY* FindCommandEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);

/// How many times FindMessageEntry had to search because the cache did not know (for tests).
HOSTFRAMEWORK_API long MessageSearchCount();

} // namespace vorn
