#pragma once

#include <string>

/// Small picture files that other programs made, as bytes.
///
/// Three pictures stand behind them. "Ramp": 4 x 3, red 60 x, green 100 y, blue 255 - 60 x. "Steps": 6 x 9 of black,
/// red, green, blue, the one of number (x + y) modulo 4. "Bits": 32 x 2, black where x * x + y is divisible by 3, else
/// white.
namespace vorn::test::outside
{
/// 4 x 3, 24 bits, by ImageMagick.
std::string Bmp24();
/// 6 x 9, 16 entries, by ImageMagick.
std::string Bmp4();
/// 32 x 2, two entries, by ImageMagick.
std::string Bmp1();
/// 4 x 3 with masks, by ImageMagick.
std::string Bmp565();
/// 4 x 3 with 256 colours, by ImageMagick.
std::string Pcx8();
/// 16 x 2 in four planes, by netpbm.
std::string PcxPlanes();
/// 6 x 9, GIF87a, by ImageMagick.
std::string GifPlain();
/// The same, interlaced.
std::string GifInterlaced();
/// The same with green transparent.
std::string GifTransparent();
/// 3 x 2 red, 2 x 2 transparent blue, 4 x 1 green, by ImageMagick.
std::string GifThree();
/// 6 x 9, two bits, by netpbm.
std::string PngPalette();
/// 4 x 3, interlaced, by netpbm.
std::string PngInterlaced();
/// 4 x 3 with alpha, by ImageMagick.
std::string PngAlpha();
/// 4 x 2 of eight greys, by netpbm.
std::string PngGrey();
/// 4 x 3, by cjpeg.
std::string JpegColor();
/// 4 x 2 of eight greys, by cjpeg.
std::string JpegGrey();
} // namespace vorn::test::outside
