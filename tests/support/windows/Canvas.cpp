#include "tests/support/Canvas.h"

namespace vorn::test
{

namespace
{
char Letter(COLORREF color)
{
    switch (color)
    {
    case kWhite:
        return '.';
    case kBlack:
        return '#';
    case kRed:
        return 'R';
    case kGreen:
        return 'G';
    case kBlue:
        return 'B';
    case kGrey:
        return 'g';
    default:
        return '?';
    }
}
} // namespace

Canvas::Canvas(int width, int height) : m_width(width), m_height(height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    m_pixels = static_cast<std::uint32_t*>(bits);
    dc.CreateCompatibleDC(nullptr);
    m_former = ::SelectObject(dc, m_bitmap);
    ::PatBlt(dc, 0, 0, width, height, WHITENESS);
}

Canvas::~Canvas()
{
    ::SelectObject(dc, m_former);
}

COLORREF Canvas::At(int x, int y) const
{
    ::GdiFlush();
    const std::uint32_t pixel = m_pixels[y * m_width + x];
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

std::string Canvas::Picture() const
{
    std::string picture;
    for (int y = 0; y < m_height; ++y)
    {
        for (int x = 0; x < m_width; ++x)
        {
            picture += Letter(At(x, y));
        }
        picture += '\n';
    }
    return picture;
}

int Canvas::Count(COLORREF color) const
{
    int count = 0;
    for (int y = 0; y < m_height; ++y)
    {
        for (int x = 0; x < m_width; ++x)
        {
            count += At(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

} // namespace vorn::test
