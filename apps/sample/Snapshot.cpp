#include "apps/sample/Snapshot.h"

#include <png.h>

#include <vector>

namespace
{

// A 32-bit picture, rows from the top, four bytes a pixel: blue, green, red, unused.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<BYTE> pixels;
};

bool CopyWindow(CWnd& window, Picture& picture)
{
    CRect frame;
    window.GetWindowRect(&frame);
    picture.width = frame.Width();
    picture.height = frame.Height();
    if (picture.width <= 0 || picture.height <= 0)
        return false;

    CWindowDC device(&window);
    CDC memory;
    CBitmap bitmap;
    if (!memory.CreateCompatibleDC(&device) || !bitmap.CreateCompatibleBitmap(&device, picture.width, picture.height))
        return false;
    CBitmap* const before = memory.SelectObject(&bitmap);
    memory.BitBlt(0, 0, picture.width, picture.height, &device, 0, 0, SRCCOPY);
    memory.SelectObject(before);

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height) * 4);
    return GetDIBits(memory, bitmap, 0, static_cast<UINT>(picture.height), picture.pixels.data(), &info,
                     DIB_RGB_COLORS) == picture.height;
}

std::vector<BYTE> RedGreenBlue(const Picture& picture)
{
    std::vector<BYTE> out;
    out.reserve(picture.pixels.size() / 4 * 3);
    for (std::size_t i = 0; i + 3 < picture.pixels.size(); i += 4)
    {
        out.push_back(picture.pixels[i + 2]);
        out.push_back(picture.pixels[i + 1]);
        out.push_back(picture.pixels[i]);
    }
    return out;
}

} // namespace

bool SaveSnapshot(CWnd& window, const char* fileName)
{
    Picture picture;
    if (!CopyWindow(window, picture))
        return false;
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, fileName, 0, RedGreenBlue(picture).data(), 0, nullptr) != 0;
}
