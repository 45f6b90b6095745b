#pragma once

#include "apps/chart/core/RunLength.h"

#include <VornCommon.h>

#include <cstring>

/// @file
/// What the programs that show pictures beside the chart find out about picture files.

namespace vorn::chart
{

/// How many images are counted in a GIF file.
inline constexpr int kMostImages = 1000;

/// How many images of a GIF file can be read, up to kMostImages; 0 for any other file.
inline int CountImages(const char* path)
{
    DIB image;
    int transparent = -1;
    return RunLength(kMostImages,
                     [&](int number)
                     {
                         return image.ReadGIF(path, transparent, number) != 0;
                     });
}

/// Whether a picture's pixels are compressed, as bitmap files may have them: the system can draw it, nothing else can
/// be done with it.
inline bool IsCompressed(const DIB& image)
{
    const BITMAPINFO* const info = image.BitmapInfo();
    return info != nullptr && info->bmiHeader.biCompression != BI_RGB && info->bmiHeader.biCompression != BI_BITFIELDS;
}

/// Whether the bytes of a picture of 32 bits are blue, green, red and one more: so they are unless masks tell
/// otherwise.
inline bool HasPlainChannels(const DIB& image)
{
    const BITMAPINFO& info = *image.BitmapInfo();
    static constexpr DWORD kPlain[] = {0xFF0000, 0x00FF00, 0x0000FF};
    if (info.bmiHeader.biCompression != BI_BITFIELDS)
        return info.bmiHeader.biCompression == BI_RGB;
    const auto* const masks = reinterpret_cast<const BYTE*>(info.bmiColors);
    return image.Bits() >= masks + sizeof kPlain && std::memcmp(masks, kPlain, sizeof kPlain) == 0;
}

/// Writes a bitmap file, which has 24 bits whatever the picture has.
inline bool WriteBitmap(const DIB& image, const char* path)
{
    DIB colors;
    return image.Depth() == 24 ? image.WriteBMP(path) != 0 : image.To24Bit(&colors) && colors.WriteBMP(path) != 0;
}

/// The picture of 24 bits that the system makes of one. Empty when it makes none.
inline DIB DrawnBySystem(const DIB& image)
{
    DIB made(image.Width(), -image.Height(), 24, DIB_RGB_COLORS, 1, nullptr, nullptr);
    CDC memory;
    if (made.DIBSect() == nullptr || !memory.CreateCompatibleDC(nullptr))
        return {};
    const HGDIOBJ before = ::SelectObject(memory, made.DIBSect());
    const int rows = image.StretchDIBits(memory, 0, 0, image.Width(), image.Height(), SRCCOPY);
    ::SelectObject(memory, before);
    ::GdiFlush();
    return rows != 0 ? made : DIB();
}

} // namespace vorn::chart
