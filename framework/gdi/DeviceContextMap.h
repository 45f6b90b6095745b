#pragma once

/// @file
/// Handle maps of the device contexts; not public interface.
#include "framework/gdi/CDC.h"
#include "framework/gdi/OwnerMap.h"
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

/// This thread's temporary objects.
inline HandleMap<DeviceContextTraits>& TemporaryDeviceContexts()
{
    return ThreadHandleMap<DeviceContextTraits>();
}

/// The process's owning objects.
OwnerMap<HDC, CDC>& DeviceContextOwners();
} // namespace vorn
