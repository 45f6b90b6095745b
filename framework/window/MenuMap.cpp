#include "framework/window/MenuMap.h"

#include <memory>

namespace vorn
{

CMenu* MenuTraits::MakeTemporary(HMENU handle)
{
    auto menu = std::make_unique<CMenu>();
    menu->m_hMenu = handle;
    return menu.release(); // the map owns it until FreeTemporary
}

void MenuTraits::FreeTemporary(CMenu* object)
{
    const std::unique_ptr<CMenu> menu(object);
    menu->m_hMenu = nullptr;
}

} // namespace vorn
