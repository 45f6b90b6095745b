#pragma once

/// @file
/// Handle map of the drawing objects; not public interface.
#include "framework/gdi/CGdiObject.h"
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

inline HandleMap<GdiObjectTraits>& GdiObjectMap()
{
    return ThreadHandleMap<GdiObjectTraits>();
}
} // namespace vorn
