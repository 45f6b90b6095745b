#include "framework/gdi/CPalette.h"
#include "framework/gdi/CClientDC.h"

IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

CPalette::CPalette() = default;

CPalette::operator HPALETTE() const
{
    return static_cast<HPALETTE>(m_hObject);
}

CPalette* PASCAL CPalette::FromHandle(HPALETTE palette)
{
    return static_cast<CPalette*>(CGdiObject::FromHandle(palette));
}

BOOL CPalette::CreatePalette(LOGPALETTE* description)
{
    return description ? Attach(::CreatePalette(description)) : FALSE;
}

BOOL CPalette::CreateHalftonePalette(CDC* dc)
{
    if (dc)
        return Attach(::CreateHalftonePalette(dc->m_hDC));
    CClientDC screen(nullptr);
    return Attach(::CreateHalftonePalette(screen));
}

int CPalette::GetEntryCount() const
{
    WORD count = 0;
    GetObject(sizeof(count), &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT first, UINT count, PALETTEENTRY* entries) const
{
    return ::GetPaletteEntries(*this, first, count, entries);
}

UINT CPalette::SetPaletteEntries(UINT first, UINT count, PALETTEENTRY* entries)
{
    return ::SetPaletteEntries(*this, first, count, entries);
}

void CPalette::AnimatePalette(UINT first, UINT count, PALETTEENTRY* entries)
{
    ::AnimatePalette(*this, first, count, entries);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF color) const
{
    return ::GetNearestPaletteIndex(*this, color);
}

BOOL CPalette::ResizePalette(UINT count)
{
    return ::ResizePalette(*this, count);
}
