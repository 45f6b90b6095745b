#pragma once

#include "frame/core/Export.h"
#include "framework/core/Object.h"

#include <windows.h>

/// @file
/// GDI objects with what they were made from, as the resource manager keeps them. Each owns its handle, which is null
/// when the system could not make the object.

/// A pen.
class VORNCOMMON_API ManagedPen : public CObject
{
public:
    ManagedPen(int style, int width, COLORREF color);
    ~ManagedPen() override;

    HPEN GetHandle() const;
    /// The three values as they were given, not as the system rounded them.
    int GetStyle() const;
    int GetWidth() const;
    COLORREF GetColor() const;

private:
    HPEN m_handle;
    int m_style;
    int m_width;
    COLORREF m_color;
};

/// A brush.
class VORNCOMMON_API ManagedBrush : public CObject
{
public:
    /// The style, the colour and the hatch of a LOGBRUSH.
    ManagedBrush(UINT style, COLORREF color, LONG hatch);
    ~ManagedBrush() override;

    HBRUSH GetHandle() const;
    UINT GetStyle() const;
    COLORREF GetColor() const;
    LONG GetHatch() const;

private:
    HBRUSH m_handle;
    UINT m_style;
    COLORREF m_color;
    LONG m_hatch;
};

/// A font.
class VORNCOMMON_API ManagedFont : public CObject
{
public:
    /// Copies the description; its face ends after 31 characters and is filled up with zeros.
    explicit ManagedFont(const LOGFONTA& description);
    ~ManagedFont() override;

    HFONT GetHandle() const;
    const LOGFONTA& GetDescription() const;

private:
    LOGFONTA m_description;
    HFONT m_handle;
};
