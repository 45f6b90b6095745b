#pragma once

/// @file
/// Pens: what lines and outlines are drawn with.
#include "framework/gdi/CGdiObject.h"

/// A pen. Widths are in logical units; a cosmetic pen is one pixel wide.
class HOSTFRAMEWORK_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)
public:
    CPen();
    /// @throws CResourceException when the pen cannot be made.
    CPen(int style, int width, COLORREF color);
    /// Extended pen (PS_GEOMETRIC or PS_COSMETIC). @throws CResourceException when it cannot be made.
    CPen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr);
    operator HPEN() const;

    /// See CGdiObject::FromHandle().
    static CPen* PASCAL FromHandle(HPEN pen);

    BOOL CreatePen(int style, int width, COLORREF color);
    /// Extended pen; `styles` are `styleCount` lengths of dashes and gaps for PS_USERSTYLE.
    BOOL CreatePen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr);
    BOOL CreatePenIndirect(LOGPEN* description);

    /// @return bytes stored, 0 on failure (an extended pen has no such description).
    int GetLogPen(LOGPEN* description) const;
    /// @return bytes stored, 0 on failure.
    int GetExtLogPen(EXTLOGPEN* description) const;
};
