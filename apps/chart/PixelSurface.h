#pragma once

#include <VornCommon.h>

#include <cstdint>

namespace vorn::chart
{

/// A picture in memory, 32 bits a pixel, rows from the top, with a device context to draw into it.
class PixelSurface
{
public:
    PixelSurface();
    ~PixelSurface();
    PixelSurface(const PixelSurface&) = delete;
    PixelSurface& operator=(const PixelSurface&) = delete;

    /// Gives it a size; what it shows is lost when that changes. False when there is no memory for it.
    bool SetSize(int width, int height);
    int Width() const;
    int Height() const;

    /// Only with a size.
    CDC& Get();
    /// Pixels as blue, green, red and a byte without meaning; after everything drawn so far.
    std::uint32_t* Pixels();

private:
    void Drop();

    CDC m_memory;
    HBITMAP m_section = nullptr;
    HGDIOBJ m_before = nullptr;
    std::uint32_t* m_pixels = nullptr;
    int m_width = 0;
    int m_height = 0;
};

} // namespace vorn::chart
