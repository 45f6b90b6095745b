#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CBrush.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/CFont.h"
#include "framework/gdi/CPalette.h"
#include "framework/gdi/CPen.h"
#include "framework/gdi/CRgn.h"
#include "framework/gdi/GdiHelpers.h"

using vorn::HandleOf;
using vorn::SelectInBoth;

namespace
{
template <typename Object, typename Handle>
Object* CurrentObject(HDC dc, UINT type)
{
    return Object::FromHandle(static_cast<Handle>(::GetCurrentObject(dc, type)));
}
} // namespace

CGdiObject* CDC::SelectStockObject(int index)
{
    return CGdiObject::FromHandle(SelectInBoth(*this, ::GetStockObject(index)));
}

CPen* CDC::SelectObject(CPen* pen)
{
    return CPen::FromHandle(static_cast<HPEN>(SelectInBoth(*this, HandleOf(pen))));
}

CBrush* CDC::SelectObject(CBrush* brush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(SelectInBoth(*this, HandleOf(brush))));
}

CFont* CDC::SelectObject(CFont* font)
{
    return CFont::FromHandle(static_cast<HFONT>(SelectInBoth(*this, HandleOf(font))));
}

CBitmap* CDC::SelectObject(CBitmap* bitmap)
{
    // A bitmap cannot be in two contexts: it goes to the output alone.
    HGDIOBJ handle = HandleOf(bitmap);
    return handle ? CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, handle))) : nullptr;
}

int CDC::SelectObject(CRgn* region)
{
    return region ? SelectClipRgn(region) : ERROR;
}

CGdiObject* CDC::SelectObject(CGdiObject* object)
{
    if (!object)
        return nullptr;
    switch (object->GetObjectType())
    {
    case OBJ_REGION:
        SelectObject(static_cast<CRgn*>(object));
        return nullptr;
    case OBJ_BITMAP:
        return SelectObject(static_cast<CBitmap*>(object));
    case OBJ_FONT:
        return SelectObject(static_cast<CFont*>(object));
    default:
        return CGdiObject::FromHandle(SelectInBoth(*this, object->GetSafeHandle()));
    }
}

CPalette* CDC::SelectPalette(CPalette* palette, BOOL forceBackground)
{
    const auto handle = static_cast<HPALETTE>(HandleOf(palette));
    return handle ? CPalette::FromHandle(::SelectPalette(m_hDC, handle, forceBackground)) : nullptr;
}

CPen* CDC::GetCurrentPen() const
{
    return CurrentObject<CPen, HPEN>(m_hAttribDC, OBJ_PEN);
}

CBrush* CDC::GetCurrentBrush() const
{
    return CurrentObject<CBrush, HBRUSH>(m_hAttribDC, OBJ_BRUSH);
}

CPalette* CDC::GetCurrentPalette() const
{
    return CurrentObject<CPalette, HPALETTE>(m_hDC, OBJ_PAL);
}

CFont* CDC::GetCurrentFont() const
{
    return CurrentObject<CFont, HFONT>(m_hAttribDC, OBJ_FONT);
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CurrentObject<CBitmap, HBITMAP>(m_hDC, OBJ_BITMAP);
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

void CDC::UpdateColors()
{
    ::UpdateColors(m_hDC);
}

COLORREF CDC::GetNearestColor(COLORREF color) const
{
    return ::GetNearestColor(m_hAttribDC, color);
}
