#include "files/DIB.h"
#include "files/GdiScopes.h"
#include "files/core/ImagePixels.h"
#include "files/core/NoThrow.h"
#include "files/core/PackedImage.h"

#include <optional>
#include <vector>

namespace
{
/// The two pictures of a cursor. Where the first has 1 the screen shows through, if the second is black there.
struct CursorPictures
{
    std::vector<unsigned char> mask; ///< 1 bit a pixel, top-down, rows of whole words.
    vorn::PackedImage colors;
};

std::size_t MaskStride(int width)
{
    return static_cast<std::size_t>((width + 15) / 16) * 2;
}

/// The source's pixel whose middle is nearest.
int NearestOf(int pixel, int size, int sourceSize)
{
    return static_cast<int>((2 * std::int64_t{pixel} + 1) * sourceSize / (2 * std::int64_t{size}));
}

CursorPictures PicturesOf(const vorn::ImageView& source, int width, int height,
                          const std::optional<vorn::Rgb>& transparent)
{
    CursorPictures made{{}, vorn::PackedImage::Make(width, -height, 24)};
    if (made.colors.IsEmpty())
        return made;
    made.mask.resize(MaskStride(width) * static_cast<std::size_t>(height));
    const vorn::ImageCanvas canvas = made.colors.Canvas();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            const vorn::Rgb color =
                vorn::ColorAt(source, NearestOf(x, width, source.width), NearestOf(y, height, source.height));
            if (color == transparent)
                vorn::StorePixel(made.mask.data() + MaskStride(width) * static_cast<std::size_t>(y), x, 1, 1);
            else
                vorn::SetPixelAt(canvas, x, y, RGB(color.red, color.green, color.blue));
        }
    return made;
}

HICON CursorOf(const CursorPictures& pictures, int hotX, int hotY)
{
    const vorn::ImageView colors = pictures.colors.View();
    const vorn::ScreenDC screen;
    const BITMAPINFOHEADER header = pictures.colors.Header();
    const BITMAPINFO info{header, {}};
    const vorn::OwnBitmap mask(CreateBitmap(colors.width, colors.height, 1, 1, pictures.mask.data()));
    const vorn::OwnBitmap color(CreateDIBitmap(screen, &header, CBM_INIT, colors.bits, &info, DIB_RGB_COLORS));
    if (!mask || !color)
        return nullptr;
    ICONINFO cursor{FALSE, static_cast<DWORD>(hotX), static_cast<DWORD>(hotY), mask.get(), color.get()};
    return CreateIconIndirect(&cursor);
}
} // namespace

HICON DIB::BuildCursor(HINSTANCE /*instance*/, int width, int height, int hotX, int hotY, int r, int g, int b) const
{
    return vorn::NoThrow(
        static_cast<HICON>(nullptr),
        [&]() -> HICON
        {
            const vorn::ImageView source = View();
            if (!source.hasRows || source.height < 1)
                return nullptr;
            const CursorPictures pictures = PicturesOf(source, width, height, vorn::ColorIn({r, g, b}));
            return pictures.mask.empty() ? nullptr : CursorOf(pictures, hotX, hotY);
        });
}
