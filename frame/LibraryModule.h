#pragma once

#include <windows.h>

namespace vorn
{

/// The library's own module: where its templates and texts are, whatever numbers a host uses for its own.
HINSTANCE LibraryModule();

} // namespace vorn
