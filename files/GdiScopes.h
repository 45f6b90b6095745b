#pragma once

/// @file
/// GDI handles with an owner.
#include <windows.h>

#include <memory>
#include <type_traits>

namespace vorn
{
/// Deletes pens, bitmaps and their like.
struct DeleteGdiObject
{
    void operator()(HGDIOBJ object) const
    {
        DeleteObject(object);
    }
};

using OwnBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;

/// The screen's device context.
class ScreenDC
{
public:
    ScreenDC() : m_dc(GetDC(nullptr))
    {
    }
    ~ScreenDC()
    {
        ReleaseDC(nullptr, m_dc);
    }
    ScreenDC(const ScreenDC&) = delete;
    ScreenDC& operator=(const ScreenDC&) = delete;

    operator HDC() const
    {
        return m_dc;
    }

private:
    HDC m_dc;
};

/// A memory context like another one.
class MemoryDC
{
public:
    explicit MemoryDC(HDC like) : m_dc(CreateCompatibleDC(like))
    {
    }
    ~MemoryDC()
    {
        DeleteDC(m_dc);
    }
    MemoryDC(const MemoryDC&) = delete;
    MemoryDC& operator=(const MemoryDC&) = delete;

    operator HDC() const
    {
        return m_dc;
    }

private:
    HDC m_dc;
};

/// An object in a device context, which gets its former one back.
class Selected
{
public:
    Selected(HDC dc, HGDIOBJ object) : m_dc(dc), m_former(SelectObject(dc, object))
    {
    }
    ~Selected()
    {
        if (m_former)
            SelectObject(m_dc, m_former);
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_former;
};

/// A palette in a device context, realised; null changes nothing.
class SelectedPalette
{
public:
    SelectedPalette(HDC dc, HPALETTE palette)
        : m_dc(dc), m_former(palette ? SelectPalette(dc, palette, FALSE) : nullptr)
    {
        if (m_former)
            RealizePalette(dc);
    }
    ~SelectedPalette()
    {
        if (m_former)
            SelectPalette(m_dc, m_former, TRUE);
    }
    SelectedPalette(const SelectedPalette&) = delete;
    SelectedPalette& operator=(const SelectedPalette&) = delete;

private:
    HDC m_dc;
    HPALETTE m_former;
};
} // namespace vorn
