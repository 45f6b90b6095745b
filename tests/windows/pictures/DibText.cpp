#include "tests/windows/pictures/DibText.h"

#include <algorithm>
#include <cstddef>
#include <functional>

namespace vorn::test
{
namespace
{
struct Letter
{
    char letter;
    unsigned color;
};

constexpr Letter kLetters[] = {{'.', 0xFFFFFF}, {'#', 0},        {'R', 0xFF0000}, {'G', 0x00FF00},
                               {'B', 0x0000FF}, {'Y', 0xFFFF00}, {'g', 0x808080}};

std::string Rows(const DIB& image, const std::function<char(int, int)>& pixel)
{
    std::string text;
    for (int y = 0; y < image.Height(); ++y)
    {
        text += y == 0 ? "" : "|";
        for (int x = 0; x < image.Width(); ++x)
            text += pixel(x, y);
    }
    return text;
}
} // namespace

std::string Values(const DIB& image)
{
    return Rows(image,
                [&image](int x, int y)
                {
                    const DWORD value = image.GetPixel(x, y);
                    return value < 16 ? "0123456789ABCDEF"[value] : '?';
                });
}

std::string Colors(const DIB& image)
{
    return Rows(image,
                [&image](int x, int y)
                {
                    const unsigned color = ColorOf(image, x, y);
                    const auto* found = std::ranges::find(kLetters, color, &Letter::color);
                    return found == std::end(kLetters) ? '?' : found->letter;
                });
}

unsigned ColorOf(const DIB& image, int x, int y)
{
    BYTE r = 1;
    BYTE g = 1;
    BYTE b = 1;
    image.GetRGB(x, y, r, g, b);
    return unsigned{r} << 16 | unsigned{g} << 8 | b;
}

DIB FromLetters(const std::string& rows, int depth, bool isTopDown)
{
    const int width = static_cast<int>(std::min(rows.find('|'), rows.size()));
    const int height = static_cast<int>(std::ranges::count(rows, '|')) + 1;
    DIB image(width, isTopDown ? -height : height, depth, 0, 0, nullptr, nullptr);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            const char letter = rows[static_cast<std::size_t>(y * (width + 1) + x)];
            const unsigned color = std::ranges::find(kLetters, letter, &Letter::letter)->color;
            image.PutPixel(x, y, RGB(color >> 16, color >> 8 & 0xFF, color & 0xFF));
        }
    return image;
}

BmpParts RedBmp()
{
    BmpParts parts;
    parts.width = 2;
    parts.depth = 8;
    parts.usedColors = 2;
    parts.behindHeader = std::string("\0\0\0\0\0\0\xFF\0", 8);
    parts.pixels = std::string("\1\0\0\0", 4);
    return parts;
}

bool IsWithoutImage(const DIB& image)
{
    return image.BitmapInfo() == nullptr && image.Bits() == nullptr && image.Width() == 0 && image.Height() == 0 &&
           image.Depth() == 0 && image.BytesPerScan() == 0 && image.DIBSect() == nullptr;
}

void SetEntry(DIB& image, int index, unsigned color)
{
    RGBQUAD& entry = image.BitmapInfo()->bmiColors[index];
    entry.rgbRed = static_cast<BYTE>(color >> 16);
    entry.rgbGreen = static_cast<BYTE>(color >> 8);
    entry.rgbBlue = static_cast<BYTE>(color);
}

// Where the system does not count them, each possible handle is asked for its type.
int CountGdiObjects()
{
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(counted);
    int count = 0;
    for (UINT_PTR handle = 1; handle < 0x10000; ++handle)
        count += GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0;
    return count;
}
} // namespace vorn::test
