#pragma once

/// @file
/// Brushes: what areas are filled with.
#include "framework/gdi/CGdiObject.h"

class CBitmap;

/// A brush: one colour, a hatch or a pattern.
class HOSTFRAMEWORK_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush();
    /// Solid brush. @throws CResourceException when it cannot be made; the others likewise.
    CBrush(COLORREF color);
    /// Hatched brush (HS_CROSS, ...).
    CBrush(int hatch, COLORREF color);
    /// Pattern brush; the bitmap may go away afterwards.
    explicit CBrush(CBitmap* bitmap);
    operator HBRUSH() const;

    /// See CGdiObject::FromHandle().
    static CBrush* PASCAL FromHandle(HBRUSH brush);

    BOOL CreateSolidBrush(COLORREF color);
    BOOL CreateHatchBrush(int hatch, COLORREF color);
    BOOL CreateBrushIndirect(const LOGBRUSH* description);
    /// @return FALSE for a null or empty bitmap.
    BOOL CreatePatternBrush(CBitmap* bitmap);
    /// Pattern from a packed device-independent bitmap in movable memory; the caller keeps the memory.
    BOOL CreateDIBPatternBrush(HGLOBAL packedDib, UINT usage);
    /// The same from plain memory.
    BOOL CreateDIBPatternBrush(const void* packedDib, UINT usage);
    /// Brush of a system colour (COLOR_WINDOW, ...). The system owns it; deleting it has no effect.
    BOOL CreateSysColorBrush(int index);

    /// @return bytes stored, 0 on failure.
    int GetLogBrush(LOGBRUSH* description) const;
};
