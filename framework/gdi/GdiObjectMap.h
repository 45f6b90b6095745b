#pragma once

/// @file
/// Handle maps of the drawing objects; not public interface.
#include "framework/gdi/CGdiObject.h"
#include "framework/gdi/OwnerMap.h"
#include "framework/window/HandleMap.h"

namespace vorn
{
struct GdiObjectTraits
{
    using Object = CGdiObject;
    using Handle = HGDIOBJ;
    static constexpr HandleKind kKind = HandleKind::GdiObject;
    static Object* MakeTemporary(Handle handle);
    static void FreeTemporary(Object* object);
};

/// This thread's temporary objects.
inline HandleMap<GdiObjectTraits>& TemporaryGdiObjects()
{
    return ThreadHandleMap<GdiObjectTraits>();
}

/// The process's owning objects.
OwnerMap<HGDIOBJ, CGdiObject>& GdiObjectOwners();
} // namespace vorn
