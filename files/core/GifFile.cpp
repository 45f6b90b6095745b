#include "files/core/GifFile.h"
#include "files/core/GifBlocks.h"
#include "files/core/GifCodes.h"

#include <cstring>
#include <utility>
#include <vector>

namespace vorn
{
namespace
{
/// One of the four passes over an interlaced picture.
struct Pass
{
    int first;
    int step;
};

constexpr Pass kPasses[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};

bool CanDecode(const GifImage& image)
{
    return image.width >= 1 && image.height >= 1 && image.codeSize >= kLeastGifCodeSize &&
           image.codeSize <= kMostGifCodeSize && BytesPerScan(image.width, 8) * image.height <= kMaxDecodedBytes;
}

std::span<unsigned char> PixelSpan(unsigned char* pixels, const GifImage& image)
{
    return {pixels, static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height)};
}

/// Moves rows without gaps, `count` pixels in all, to where the bitmap has them, in place: the last first.
void SpreadRows(const ImageCanvas& canvas, std::size_t count)
{
    const auto width = static_cast<std::size_t>(canvas.width);
    const auto stride = static_cast<std::size_t>(canvas.stride);
    if (width == stride)
        return;
    for (std::size_t y = (count + width - 1) / width; y-- > 0;)
    {
        std::memmove(canvas.bits + y * stride, canvas.bits + y * width, width);
        std::memset(canvas.bits + y * stride + width, 0, stride - width);
    }
}

/// For each row of the picture the one of the file.
std::vector<int> RowsInFile(int height)
{
    std::vector<int> rows(static_cast<std::size_t>(height));
    int next = 0;
    for (const Pass& pass : kPasses)
        for (int y = pass.first; y < height; y += pass.step)
            rows[static_cast<std::size_t>(y)] = next++;
    return rows;
}

/// Brings rows in the file's order to where they are seen, in place: each goes to the place of the one that went before
/// it, until a circle closes.
void OrderRows(const ImageCanvas& canvas)
{
    const auto stride = static_cast<std::size_t>(canvas.stride);
    std::vector<int> source = RowsInFile(canvas.height);
    std::vector<unsigned char> kept(stride);
    for (int first = 0; first < canvas.height; ++first)
    {
        if (source[static_cast<std::size_t>(first)] == first)
            continue;
        std::memcpy(kept.data(), canvas.Row(first), stride);
        int to = first;
        for (int from = std::exchange(source[static_cast<std::size_t>(to)], to); from != first;
             to = from, from = std::exchange(source[static_cast<std::size_t>(to)], to))
            std::memcpy(canvas.Row(to), canvas.Row(from), stride);
        std::memcpy(canvas.Row(to), kept.data(), stride);
    }
}

PackedImage NewImage(const GifImage& image)
{
    PackedImage made = PackedImage::Make(image.width, -image.height, 8, DIB_RGB_COLORS, kGifSlack);
    for (std::size_t i = 0; !made.IsEmpty() && i + 2 < image.table.size(); i += 3)
        made.SetTableColor(static_cast<int>(i / 3), {image.table[i], image.table[i + 1], image.table[i + 2]});
    return made;
}

PackedImage Decode(GifImage& image)
{
    PackedImage made = CanDecode(image) ? NewImage(image) : PackedImage();
    if (made.IsEmpty())
        return made;
    const ImageCanvas canvas = made.Canvas();
    SpreadRows(canvas, DecodeGifCodes(image.data, image.codeSize, PixelSpan(canvas.bits, image)));
    if (image.isInterlaced)
        OrderRows(canvas);
    return made;
}
} // namespace

PackedImage DecodeGif(std::span<const unsigned char> file, int index, int& transparent)
{
    GifBlocks blocks(file);
    GifImage image;
    PackedImage made = blocks.Find(index, image) ? Decode(image) : PackedImage();
    transparent = made.IsEmpty() ? -1 : blocks.Transparent();
    return made;
}
} // namespace vorn
