#pragma once

/// @file
/// Fonts.
#include "framework/gdi/CGdiObject.h"

class CDC;

/// A logical font.
class HOSTFRAMEWORK_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)
public:
    CFont();
    operator HFONT() const;

    /// See CGdiObject::FromHandle().
    static CFont* PASCAL FromHandle(HFONT font);

    BOOL CreateFontIndirect(const LOGFONT* description);
    /// Parameters as in the system call of this name: heights in logical units, angles in tenths of a degree.
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                    BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                    BYTE pitchAndFamily, LPCSTR faceName);
    /// Font by size in tenths of a point and face name, scaled for `dc` (null: the screen).
    BOOL CreatePointFont(int pointSizeTenths, LPCSTR faceName, CDC* dc = nullptr);
    /// The same from a description whose lfHeight is in tenths of a point; the description is not changed.
    BOOL CreatePointFontIndirect(const LOGFONT* description, CDC* dc = nullptr);

    /// @return bytes stored, 0 on failure.
    int GetLogFont(LOGFONT* description) const;
};
