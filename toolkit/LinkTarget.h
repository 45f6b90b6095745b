#pragma once

#include <windows.h>

namespace vorn
{

struct OpenedLink
{
    int result; ///< code of the shell, or of the browser's start
    bool done;
};

/// Opens a URL by the shell or else with the browser that is registered for ".htm".
OpenedLink OpenLink(LPCSTR url, int showCmd);

} // namespace vorn
