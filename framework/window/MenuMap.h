#pragma once

/// @file
/// Handle map of the menus; not public interface.
#include "framework/window/CMenu.h"
#include "framework/window/HandleMap.h"

namespace vorn
{

struct HOSTFRAMEWORK_API MenuTraits
{
    using Object = CMenu;
    using Handle = HMENU;
    static constexpr HandleKind kKind = HandleKind::Menu;
    static Object* MakeTemporary(Handle handle);
    static void FreeTemporary(Object* object);
};

inline HandleMap<MenuTraits>& MenuMap()
{
    return ThreadHandleMap<MenuTraits>();
}

} // namespace vorn
