#include "tests/support/MadePicture.h"
#include "files/core/ImagePixels.h"

namespace vorn::test
{
PackedImage Made(int width, int height, int depth, const std::function<unsigned(int, int)>& pixel)
{
    PackedImage image = PackedImage::Make(width, height, depth);
    for (int i = 0; depth <= 8 && i < 1 << depth; ++i)
        image.SetTableColor(i, {static_cast<BYTE>(i * 3), static_cast<BYTE>(i), static_cast<BYTE>(255 - i)});
    for (int y = 0; y < image.View().height; ++y)
        for (int x = 0; x < width; ++x)
            vorn::SetPixelAt(image.Canvas(), x, y, pixel(x, y));
    return image;
}

unsigned Noise(int x, int y)
{
    unsigned value = static_cast<unsigned>(x) * 374761393U + static_cast<unsigned>(y) * 668265263U;
    value = (value ^ value >> 13) * 1274126177U;
    return (value ^ value >> 16) & 0xFFFFFF;
}

unsigned UprightBars(int x, int)
{
    return Noise(x, 0);
}

unsigned LevelBars(int, int y)
{
    return Noise(0, y);
}

unsigned Areas(int x, int y)
{
    return Noise((x + y / 3) / 40, (y + x / 5) / 60);
}
} // namespace vorn::test
