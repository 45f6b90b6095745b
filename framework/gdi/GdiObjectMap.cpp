#include "framework/gdi/GdiObjectMap.h"
#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CBrush.h"
#include "framework/gdi/CFont.h"
#include "framework/gdi/CPalette.h"
#include "framework/gdi/CPen.h"
#include "framework/gdi/CRgn.h"

namespace vorn
{
namespace
{
/// An empty object of the class that fits the handle's type.
std::unique_ptr<CGdiObject> MakeObjectFor(HGDIOBJ handle)
{
    switch (::GetObjectType(handle))
    {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return std::make_unique<CPen>();
    case OBJ_BRUSH:
        return std::make_unique<CBrush>();
    case OBJ_FONT:
        return std::make_unique<CFont>();
    case OBJ_BITMAP:
        return std::make_unique<CBitmap>();
    case OBJ_PAL:
        return std::make_unique<CPalette>();
    case OBJ_REGION:
        return std::make_unique<CRgn>();
    default:
        return std::make_unique<CGdiObject>();
    }
}
} // namespace

CGdiObject* GdiObjectTraits::MakeTemporary(HGDIOBJ handle)
{
    auto object = MakeObjectFor(handle);
    object->m_hObject = handle;
    return object.release();
}

void GdiObjectTraits::FreeTemporary(CGdiObject* object)
{
    object->m_hObject = nullptr;
    const std::unique_ptr<CGdiObject> owner(object);
}

OwnerMap<HGDIOBJ, CGdiObject>& GdiObjectOwners()
{
    // Never destroyed: objects with static lifetime in other modules end after this module's.
    static auto& owners = *new OwnerMap<HGDIOBJ, CGdiObject>;
    return owners;
}
} // namespace vorn
