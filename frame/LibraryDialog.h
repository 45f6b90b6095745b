#pragma once

#include <windows.h>

namespace vorn
{

/// A dialog template of the library's own, whatever a host has under the same number; null when there is none.
LPCDLGTEMPLATE LibraryDialog(UINT id);

} // namespace vorn
