#include "tests/seeds/PictureSeeds.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/TableBytes.h"

namespace vorn::test
{
namespace
{

using Seeds = std::map<std::string, std::string>;

/// Bytes that count up by a step, so that neighbours differ.
std::string Counted(std::size_t size, int step)
{
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
    {
        bytes[i] = static_cast<char>(static_cast<int>(i) * step);
    }
    return bytes;
}

std::string Bmp(int depth, int height, unsigned long usedColors, const std::string& behindHeader,
                unsigned long compression = 0)
{
    BmpParts parts;
    parts.width = 5;
    parts.height = height;
    parts.depth = depth;
    parts.usedColors = usedColors;
    parts.compression = compression;
    parts.behindHeader = behindHeader;
    const int stride = (5 * depth + 31) / 32 * 4;
    parts.pixels = Counted(static_cast<std::size_t>(stride * (height < 0 ? -height : height)), 37);
    return parts.Bytes();
}

void AddBitmaps(Seeds& seeds)
{
    const std::string masks = LittleEndian(0xF800, 4) + LittleEndian(0x07E0, 4) + LittleEndian(0x001F, 4);
    seeds["bmp/1-bit"] = Bmp(1, 3, 0, Counted(8, 31));
    seeds["bmp/4-bit"] = Bmp(4, 3, 5, Counted(20, 31));
    seeds["bmp/8-bit"] = Bmp(8, -3, 3, Counted(12, 31));
    seeds["bmp/16-bit"] = Bmp(16, 2, 0, "");
    seeds["bmp/16-bit-masks"] = Bmp(16, 2, 0, masks, 3);
    seeds["bmp/24-bit"] = Bmp(24, 3, 0, "");
    seeds["bmp/24-bit-gap"] = Bmp(24, -3, 9, "gap");
    seeds["bmp/32-bit"] = Bmp(32, 2, 0, "");
    seeds["bmp/run-length"] = Bmp(8, 2, 2, Counted(8, 31), 1);
}

PcxParts Pcx(int bits, int planes, int bytesPerLine, const std::string& data)
{
    PcxParts parts;
    parts.bits = bits;
    parts.planes = planes;
    parts.bytesPerLine = bytesPerLine;
    parts.right = 9;
    parts.bottom = 2;
    parts.headerPalette = Counted(48, 5);
    parts.data = data;
    return parts;
}

void AddPcx(Seeds& seeds)
{
    PcxParts marked = Pcx(8, 1, 10, "\1\2\xC5\7\xC1\xFE\xC0\3\xD8\x09");
    marked.palette = Counted(768, 3);
    seeds["pcx/8-bit"] = marked.Bytes();
    seeds["pcx/8-bit-plain"] = Pcx(8, 1, 10, "\1\2\xC5\7\xC1\xFE").Bytes();
    seeds["pcx/4-bit"] = Pcx(4, 1, 6, "\x12\x34\xC4\x56\xD0\x77").Bytes();
    seeds["pcx/1-bit"] = Pcx(1, 1, 2, "\x12\x34\xC4\x56").Bytes();
    seeds["pcx/planes"] = Pcx(1, 4, 2, "\x80\x01\xC5\xFF\x40\xD0\x0F").Bytes();
}

void AddGif(Seeds& seeds)
{
    const std::string table = Counted(12, 21);
    const std::string pixels("\0\1\2\3\3\2\1\0\0\1\2\3\3\2\1\0", 16);
    const std::string plain = SubBlocks(PlainCodes(pixels, 2), 5);
    const std::string repeating =
        SubBlocks(PackCodes({{4, 3}, {1, 3}, {6, 3}, {7, 3}, {8, 4}, {6, 4}, {9, 4}, {4, 4}, {2, 3}, {6, 3}, {5, 4}}));
    seeds["gif/plain"] = GifParts(table).Image(4, 4, 2, plain).Bytes();
    seeds["gif/interlaced"] = GifParts(table).Image(2, 8, 2, plain, true).Bytes();
    seeds["gif/repeating"] = GifParts(table, "GIF87a").Image(5, 5, 2, repeating).Bytes();
    seeds["gif/frames"] = GifParts(table)
                              .Control(1, 2)
                              .Image(4, 4, 2, plain)
                              .Extension(0xFE, SubBlocks("text"))
                              .Image(3, 3, 2, repeating, false, Counted(6, 50))
                              .Bytes();
    seeds["gif/one-bit"] = GifParts().Image(9, 1, 1, SubBlocks(PlainCodes(std::string("\1\0\1\1\0", 5), 1))).Bytes();
}

/// Rows of so many bytes with the filters in turn.
std::string FilteredRows(int rows, std::size_t size)
{
    std::string bytes;
    for (int row = 0; row < rows; ++row)
    {
        bytes += static_cast<char>(row % 5) + Counted(size, 37 + row);
    }
    return bytes;
}

PngParts Png(int bits, int colorType, std::size_t rowSize)
{
    PngParts parts;
    parts.width = 5;
    parts.height = 6;
    parts.bits = bits;
    parts.colorType = colorType;
    parts.rows = FilteredRows(6, rowSize);
    return parts;
}

void AddPng(Seeds& seeds)
{
    seeds["png/grey-1"] = Png(1, 0, 1).Bytes();
    seeds["png/grey-2"] = Png(2, 0, 2).Bytes();
    seeds["png/grey-16"] = Png(16, 0, 10).Bytes();
    seeds["png/rgb"] = Png(8, 2, 15).Bytes();
    seeds["png/rgba-16"] = Png(16, 6, 40).Bytes();
    seeds["png/grey-alpha"] = Png(8, 4, 10).Bytes();
    PngParts palette = Png(4, 3, 3);
    palette.palette = Counted(48, 5);
    palette.transparency = Counted(9, 28);
    palette.extra = PngChunk("gAMA", std::string("\0\0\xB1\x8F", 4));
    seeds["png/palette"] = palette.Bytes();
    PngParts key = Png(8, 2, 15);
    key.transparency = std::string("\0\1\0\2\0\3", 6);
    seeds["png/rgb-key"] = key.Bytes();
    PngParts interlaced = Png(8, 0, 1);
    interlaced.isInterlaced = true;
    // Five by six: passes of 1 x 1, 1 x 1, 2 x 1, 1 x 2, 3 x 1, 2 x 3 and 5 x 3 pixels.
    interlaced.rows = FilteredRows(2, 1) + FilteredRows(1, 2) + FilteredRows(2, 1) + FilteredRows(1, 3) +
                      FilteredRows(3, 2) + FilteredRows(3, 5);
    seeds["png/interlaced"] = interlaced.Bytes();
}

JpegParts Jpeg(std::size_t components, int adobeTransform)
{
    JpegParts parts;
    parts.width = 13;
    parts.height = 11;
    parts.adobeTransform = adobeTransform;
    parts.values.clear();
    for (std::size_t i = 0; i < components; ++i)
    {
        const int first = static_cast<int>(i) * 17;
        parts.values.push_back({first, 250 - first, 128, first + 60});
    }
    return parts;
}

void AddJpeg(Seeds& seeds)
{
    seeds["jpeg/grey"] = Jpeg(1, -1).Bytes();
    seeds["jpeg/colors"] = Jpeg(3, -1).Bytes();
    seeds["jpeg/rgb"] = Jpeg(3, 0).Bytes();
    seeds["jpeg/inks"] = Jpeg(4, 2).Bytes();
    JpegParts progressive = Jpeg(3, 1);
    progressive.isProgressive = true;
    seeds["jpeg/progressive"] = progressive.Bytes();
}

} // namespace

std::map<std::string, std::string> PictureSeeds()
{
    Seeds seeds;
    AddBitmaps(seeds);
    AddPcx(seeds);
    AddGif(seeds);
    AddPng(seeds);
    AddJpeg(seeds);
    return seeds;
}

} // namespace vorn::test
