#pragma once

#include <VornCommon.h>

/// The whole name of a file that the sample keeps for the user without showing it. Makes its folder.
CString UserFile(const char* name);
