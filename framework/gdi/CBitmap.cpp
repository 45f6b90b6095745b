#include "framework/gdi/CBitmap.h"
#include "framework/gdi/GdiHelpers.h"
#include "framework/window/ModuleState.h"

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CBitmap::CBitmap() = default;

CBitmap::operator HBITMAP() const
{
    return static_cast<HBITMAP>(m_hObject);
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP bitmap)
{
    return static_cast<CBitmap*>(CGdiObject::FromHandle(bitmap));
}

BOOL CBitmap::LoadBitmap(LPCSTR resourceName)
{
    return Attach(::LoadBitmap(AfxFindResourceHandle(resourceName, RT_BITMAP), resourceName));
}

BOOL CBitmap::LoadBitmap(UINT resourceId)
{
    return LoadBitmap(MAKEINTRESOURCE(resourceId));
}

BOOL CBitmap::LoadOEMBitmap(UINT oemId)
{
    return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(oemId)));
}

BOOL CBitmap::LoadMappedBitmap(UINT resourceId, UINT flags, LPCOLORMAP colorMap, int mapSize)
{
    HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(resourceId), RT_BITMAP);
    return Attach(::CreateMappedBitmap(module, static_cast<INT_PTR>(resourceId), flags, colorMap, mapSize));
}

BOOL CBitmap::CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits)
{
    return Attach(::CreateBitmap(width, height, planes, bitCount, bits));
}

BOOL CBitmap::CreateBitmapIndirect(BITMAP* description)
{
    return description ? Attach(::CreateBitmapIndirect(description)) : FALSE;
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height)
{
    return Attach(::CreateCompatibleBitmap(vorn::HandleOf(dc), width, height));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* dc, int width, int height)
{
    return Attach(::CreateDiscardableBitmap(vorn::HandleOf(dc), width, height));
}

int CBitmap::GetBitmap(BITMAP* description) const
{
    return GetObject(sizeof(BITMAP), description);
}

DWORD CBitmap::SetBitmapBits(DWORD count, const void* bits)
{
    return static_cast<DWORD>(::SetBitmapBits(*this, count, bits));
}

DWORD CBitmap::GetBitmapBits(DWORD count, void* bits) const
{
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(count), bits));
}

CSize CBitmap::SetBitmapDimension(int width, int height)
{
    CSize former(0, 0);
    ::SetBitmapDimensionEx(*this, width, height, &former);
    return former;
}

CSize CBitmap::GetBitmapDimension() const
{
    CSize size(0, 0);
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}
