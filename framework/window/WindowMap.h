#pragma once

/// @file
/// Handle map of the windows; not public interface.
#include "framework/window/CWnd.h"
#include "framework/window/HandleMap.h"

namespace vorn
{

struct HOSTFRAMEWORK_API WindowTraits
{
    using Object = CWnd;
    using Handle = HWND;
    static constexpr HandleKind kKind = HandleKind::Window;
    static Object* MakeTemporary(Handle handle);
    static void FreeTemporary(Object* object);
};

inline HandleMap<WindowTraits>& WindowMap()
{
    return ThreadHandleMap<WindowTraits>();
}

} // namespace vorn
