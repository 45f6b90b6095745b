#include "apps/chart/PixelSurface.h"

namespace vorn::chart
{

PixelSurface::PixelSurface()
{
    m_memory.CreateCompatibleDC(nullptr);
}

PixelSurface::~PixelSurface()
{
    Drop();
}

void PixelSurface::Drop()
{
    if (m_section == nullptr)
        return;
    ::SelectObject(m_memory.GetSafeHdc(), m_before);
    DeleteObject(m_section);
    m_section = nullptr;
    m_pixels = nullptr;
    m_width = m_height = 0;
}

bool PixelSurface::SetSize(int width, int height)
{
    if (m_section != nullptr && width == m_width && height == m_height)
        return true;
    Drop();
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    m_section = CreateDIBSection(m_memory.GetSafeHdc(), &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (m_section == nullptr)
        return false;
    m_before = ::SelectObject(m_memory.GetSafeHdc(), m_section);
    m_pixels = static_cast<std::uint32_t*>(bits);
    m_width = width;
    m_height = height;
    return true;
}

int PixelSurface::Width() const
{
    return m_width;
}

int PixelSurface::Height() const
{
    return m_height;
}

CDC& PixelSurface::Get()
{
    return m_memory;
}

std::uint32_t* PixelSurface::Pixels()
{
    GdiFlush();
    return m_pixels;
}

} // namespace vorn::chart
