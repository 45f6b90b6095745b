#include "tests/support/WindowPicture.h"

#include <cstddef>
#include <fstream>
#include <vector>

namespace vorn::test
{

namespace
{

BITMAPINFOHEADER HeaderOf(LONG width, LONG height)
{
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = 24;
    header.biSizeImage = static_cast<DWORD>((width * 3 + 3) / 4 * 4 * height);
    return header;
}

bool CopyWindow(HWND window, const BITMAPINFOHEADER& header, std::vector<char>& bits)
{
    const HDC source = GetWindowDC(window);
    const HDC memory = CreateCompatibleDC(source);
    const HBITMAP bitmap = CreateCompatibleBitmap(source, header.biWidth, header.biHeight);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    bool done = BitBlt(memory, 0, 0, header.biWidth, header.biHeight, source, 0, 0, SRCCOPY) != FALSE;
    SelectObject(memory, before);
    BITMAPINFO info = {};
    info.bmiHeader = header;
    const UINT lines = static_cast<UINT>(header.biHeight);
    done = GetDIBits(memory, bitmap, 0, lines, bits.data(), &info, DIB_RGB_COLORS) == header.biHeight && done;
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, source);
    return done;
}

bool WriteBmp(const std::string& path, const BITMAPINFOHEADER& header, const std::vector<char>& bits)
{
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = sizeof file + sizeof header;
    file.bfSize = file.bfOffBits + header.biSizeImage;
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&header), sizeof header);
    out.write(bits.data(), static_cast<std::streamsize>(bits.size()));
    return out.good();
}

} // namespace

bool SaveWindowPicture(HWND window, const std::string& path)
{
    RECT place = {};
    if (GetWindowRect(window, &place) == FALSE || place.right <= place.left || place.bottom <= place.top)
    {
        return false;
    }
    const BITMAPINFOHEADER header = HeaderOf(place.right - place.left, place.bottom - place.top);
    std::vector<char> bits(static_cast<std::size_t>(header.biSizeImage));
    return CopyWindow(window, header, bits) && WriteBmp(path, header, bits);
}

} // namespace vorn::test
