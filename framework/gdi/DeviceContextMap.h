#pragma once

/// @file
/// Handle map of the device contexts; not public interface.
#include "framework/gdi/CDC.h"
#include "framework/window/HandleMap.h"

namespace vorn
{
struct DeviceContextTraits
{
    using Object = CDC;
    using Handle = HDC;
    static constexpr HandleKind kKind = HandleKind::DeviceContext;
    static Object* MakeTemporary(Handle handle);
    static void FreeTemporary(Object* object);
};

inline HandleMap<DeviceContextTraits>& DeviceContextMap()
{
    return ThreadHandleMap<DeviceContextTraits>();
}
} // namespace vorn
