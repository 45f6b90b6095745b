#include "toolkit/ManagedObjects.h"

#include "toolkit/ResourceKeys.h"

namespace
{

HBRUSH MakeBrush(UINT style, COLORREF color, LONG hatch)
{
    const LOGBRUSH description = {style, color, static_cast<ULONG_PTR>(hatch)};
    return ::CreateBrushIndirect(&description);
}

} // namespace

ManagedPen::ManagedPen(int style, int width, COLORREF color)
    : m_handle(::CreatePen(style, width, color)), m_style(style), m_width(width), m_color(color)
{
}

ManagedPen::~ManagedPen()
{
    ::DeleteObject(m_handle);
}

HPEN ManagedPen::GetHandle() const
{
    return m_handle;
}

int ManagedPen::GetStyle() const
{
    return m_style;
}

int ManagedPen::GetWidth() const
{
    return m_width;
}

COLORREF ManagedPen::GetColor() const
{
    return m_color;
}

ManagedBrush::ManagedBrush(UINT style, COLORREF color, LONG hatch)
    : m_handle(MakeBrush(style, color, hatch)), m_style(style), m_color(color), m_hatch(hatch)
{
}

ManagedBrush::~ManagedBrush()
{
    ::DeleteObject(m_handle);
}

HBRUSH ManagedBrush::GetHandle() const
{
    return m_handle;
}

UINT ManagedBrush::GetStyle() const
{
    return m_style;
}

COLORREF ManagedBrush::GetColor() const
{
    return m_color;
}

LONG ManagedBrush::GetHatch() const
{
    return m_hatch;
}

ManagedFont::ManagedFont(const LOGFONTA& description)
    : m_description(vorn::FontKey(description).Description()), m_handle(::CreateFontIndirectA(&m_description))
{
}

ManagedFont::~ManagedFont()
{
    ::DeleteObject(m_handle);
}

HFONT ManagedFont::GetHandle() const
{
    return m_handle;
}

const LOGFONTA& ManagedFont::GetDescription() const
{
    return m_description;
}
