#pragma once

#include "framework/include/afxwin.h"

#include <cstdint>
#include <string>

namespace vorn::test
{

/// A small picture of 32 bits a pixel that is drawn on through a memory context and read back pixel by pixel. It starts
/// white.
class Canvas
{
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    COLORREF At(int x, int y) const;
    /// One line of text a row: '.' white, '#' black, 'R' red, 'G' green, 'B' blue, 'g' mid grey, '?' anything else.
    std::string Picture() const;
    /// Number of pixels of a colour.
    int Count(COLORREF color) const;

    CDC dc;

private:
    int m_width;
    int m_height;
    CBitmap m_bitmap;
    HGDIOBJ m_former = nullptr;
    std::uint32_t* m_pixels = nullptr;
};

inline constexpr COLORREF kBlack = RGB(0, 0, 0);
inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kRed = RGB(255, 0, 0);
inline constexpr COLORREF kGreen = RGB(0, 255, 0);
inline constexpr COLORREF kBlue = RGB(0, 0, 255);
inline constexpr COLORREF kGrey = RGB(128, 128, 128);

} // namespace vorn::test
