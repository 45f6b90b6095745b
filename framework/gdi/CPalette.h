#pragma once

/// @file
/// Colour palettes.
#include "framework/gdi/CGdiObject.h"

class CDC;

/// A logical palette.
class HOSTFRAMEWORK_API CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)
public:
    CPalette();
    operator HPALETTE() const;

    /// See CGdiObject::FromHandle().
    static CPalette* PASCAL FromHandle(HPALETTE palette);

    BOOL CreatePalette(LOGPALETTE* description);
    /// The system's halftone palette for `dc` (null: the screen).
    BOOL CreateHalftonePalette(CDC* dc);

    /// Number of entries; 0 for an empty object.
    int GetEntryCount() const;
    /// @return entries copied; with a null array the number of entries in the palette.
    UINT GetPaletteEntries(UINT first, UINT count, PALETTEENTRY* entries) const;
    UINT SetPaletteEntries(UINT first, UINT count, PALETTEENTRY* entries);
    /// Changes reserved entries at once, on the screen too.
    void AnimatePalette(UINT first, UINT count, PALETTEENTRY* entries);
    /// @return index of the entry nearest to `color`, CLR_INVALID on failure.
    UINT GetNearestPaletteIndex(COLORREF color) const;
    BOOL ResizePalette(UINT count);
};
