#include "framework/gdi/CGdiObject.h"
#include "framework/gdi/GdiObjectMap.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

CGdiObject::CGdiObject() = default;

CGdiObject::~CGdiObject()
{
    if (m_hObject)
        DeleteObject();
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    // Callers may ask through a null pointer; the detour keeps the compiler from assuming that they do not.
    const CGdiObject* volatile self = this;
    const CGdiObject* object = self;
    return object ? object->m_hObject : nullptr;
}

CGdiObject::operator HGDIOBJ() const
{
    return m_hObject;
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ object)
{
    if (CGdiObject* owner = object ? vorn::GdiObjectOwners().Find(object) : nullptr)
        return owner;
    return vorn::TemporaryGdiObjects().FromHandle(object);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    vorn::TemporaryGdiObjects().FreeTemporary(vorn::CurrentLoopDepth());
}

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    if (!object || m_hObject)
        return FALSE;
    vorn::GdiObjectOwners().Set(object, this);
    m_hObject = object;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ object = m_hObject;
    if (object)
        vorn::GdiObjectOwners().Remove(object, this);
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject ? ::DeleteObject(Detach()) : FALSE;
}

int CGdiObject::GetObject(int size, void* buffer) const
{
    return ::GetObject(m_hObject, size, buffer);
}

UINT CGdiObject::GetObjectType() const
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int index)
{
    return Attach(::GetStockObject(index));
}

BOOL CGdiObject::UnrealizeObject()
{
    return ::UnrealizeObject(m_hObject);
}

BOOL CGdiObject::operator==(const CGdiObject& other) const
{
    return m_hObject == other.m_hObject;
}

BOOL CGdiObject::operator!=(const CGdiObject& other) const
{
    return m_hObject != other.m_hObject;
}
