#pragma once

/// @file
/// Device-dependent bitmaps (and sections of device-independent ones, by Attach).
#include "framework/core/Geometry.h"
#include "framework/gdi/CGdiObject.h"
#include <commctrl.h>

class CDC;

/// A bitmap.
class HOSTFRAMEWORK_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap();
    operator HBITMAP() const;

    /// See CGdiObject::FromHandle().
    static CBitmap* PASCAL FromHandle(HBITMAP bitmap);

    /// From a resource, looked up along the resource chain.
    BOOL LoadBitmap(LPCSTR resourceName);
    BOOL LoadBitmap(UINT resourceId);
    /// One of the system's own pictures (OBM_CLOSE, ...).
    BOOL LoadOEMBitmap(UINT oemId);
    /// From a resource with colours exchanged; without a table the button greys become the system's colours.
    BOOL LoadMappedBitmap(UINT resourceId, UINT flags = 0, LPCOLORMAP colorMap = nullptr, int mapSize = 0);

    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits);
    BOOL CreateBitmapIndirect(BITMAP* description);
    /// Bitmap that fits `dc`: of its colour depth. @return FALSE for a null or empty dc.
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    BOOL CreateDiscardableBitmap(CDC* dc, int width, int height);

    /// @return bytes stored, 0 on failure.
    int GetBitmap(BITMAP* description) const;
    /// Copies `count` bytes into the bitmap. @return bytes used, 0 on failure.
    DWORD SetBitmapBits(DWORD count, const void* bits);
    /// @return bytes stored, 0 on failure.
    DWORD GetBitmapBits(DWORD count, void* bits) const;
    /// A size the caller may note on the bitmap, in tenths of a millimetre. @return the size noted before.
    CSize SetBitmapDimension(int width, int height);
    CSize GetBitmapDimension() const;
};
