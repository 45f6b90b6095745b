#include "files/core/ImageConvert.h"
#include "files/core/ImagePixels.h"
#include "files/core/RowConverter.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace vorn
{
namespace
{
constexpr int kTrueColor = 24;

DWORD Packed(Rgb color)
{
    return DWORD{color.blue} | DWORD{color.green} << 8 | DWORD{color.red} << 16;
}

int SignedHeight(const ImageFormat& format)
{
    return format.isTopDown ? -format.height : format.height;
}

/// Pixels of a source in the target's terms, where the depths differ.
class ColorTranslator
{
public:
    ColorTranslator(const ImageFormat& target, const ImageFormat& source) : m_target(target), m_source(source)
    {
    }

    DWORD Translate(DWORD stored, DWORD old)
    {
        const Rgb color = ColorOfStored(m_source, stored);
        if (m_target.depth > 8)
            return StoredOfColor(m_target, color, old);
        if (!m_isKnown || color != m_lastColor)
        {
            m_isKnown = true;
            m_lastColor = color;
            m_lastEntry = static_cast<DWORD>(NearestEntry(m_target.table, color));
        }
        return m_lastEntry;
    }

private:
    const ImageFormat& m_target;
    const ImageFormat& m_source;
    bool m_isKnown = false;
    Rgb m_lastColor;
    DWORD m_lastEntry = 0;
};

/// The part of one axis that lies in both: where it begins in the target, and its end.
struct Overlap
{
    int begin;
    int end;
};

Overlap OverlapOf(int at, int sourceSize, int targetSize)
{
    const std::int64_t end = std::min<std::int64_t>(std::int64_t{at} + sourceSize, targetSize);
    return {std::max(at, 0), static_cast<int>(std::max<std::int64_t>(end, 0))};
}

void CopyRow(const ImageCanvas& target, int y, Overlap columns, const unsigned char* from, int fromX)
{
    unsigned char* to = target.Row(y);
    if (target.depth >= 8)
    {
        const int size = target.depth / 8;
        std::memcpy(to + std::ptrdiff_t{columns.begin} * size, from + std::ptrdiff_t{fromX} * size,
                    static_cast<std::size_t>(columns.end - columns.begin) * static_cast<std::size_t>(size));
        return;
    }
    for (int x = columns.begin; x < columns.end; ++x, ++fromX)
        StorePixel(to, x, target.depth, StoredPixel(from, fromX, target.depth));
}

void TranslateRow(ColorTranslator& translator, const ImageCanvas& target, int y, Overlap columns,
                  const unsigned char* from, int sourceDepth, int fromX)
{
    unsigned char* to = target.Row(y);
    for (int x = columns.begin; x < columns.end; ++x, ++fromX)
    {
        const DWORD old = target.depth > 8 ? StoredPixel(to, x, target.depth) : 0;
        StorePixel(to, x, target.depth, translator.Translate(StoredPixel(from, fromX, sourceDepth), old));
    }
}

std::vector<unsigned char> RowsOf(const ImageView& image)
{
    return {image.bits, image.bits + std::ptrdiff_t{image.stride} * image.height};
}
} // namespace

PackedImage To24Bit(const ImageView& source)
{
    if (!source.hasRows)
        return {};
    PackedImage made = PackedImage::MakeUnfilled(source.width, SignedHeight(source), kTrueColor);
    if (!made.IsEmpty())
        PutAs24Bit(made.Canvas(), source);
    return made;
}

bool PutAs24Bit(const ImageCanvas& target, const ImageView& source)
{
    if (!source.hasRows || !target.hasRows || target.depth != kTrueColor || target.width != source.width ||
        target.height != source.height || target.bits == source.bits)
        return false;
    const RowConverter converter(source);
    const auto used = static_cast<std::size_t>(target.width) * 3;
    for (int y = 0; y < source.height; ++y)
    {
        converter.Convert(source.Row(y), target.Row(y));
        std::memset(target.Row(y) + used, 0, static_cast<std::size_t>(target.stride) - used);
    }
    return true;
}

PackedImage ToPlainChannels(const ImageView& source)
{
    if (source.depth != 32 || !source.hasRows)
        return To24Bit(source);
    PackedImage made = PackedImage::Make(source.width, SignedHeight(source), 32);
    if (!made.IsEmpty() && !source.isMasked)
        std::memcpy(made.Canvas().bits, source.bits,
                    static_cast<std::size_t>(source.stride) * static_cast<std::size_t>(source.height));
    for (int y = 0; !made.IsEmpty() && source.isMasked && y < source.height; ++y)
        for (int x = 0; x < source.width; ++x)
            StorePixel(made.Canvas().Row(y), x, 32, Packed(ColorAt(source, x, y)));
    return made;
}

bool PutImage(const ImageCanvas& target, int x, int y, const ImageView& source)
{
    if (!target.hasRows || !source.hasRows)
        return false;
    ImageView from = source;
    std::vector<unsigned char> copy;
    if (source.bits == target.bits)
    {
        copy = RowsOf(source);
        from.bits = copy.data();
    }
    const Overlap columns = OverlapOf(x, from.width, target.width);
    const Overlap rows = OverlapOf(y, from.height, target.height);
    ColorTranslator translator(target, from);
    for (int row = rows.begin; columns.begin < columns.end && row < rows.end; ++row)
    {
        const unsigned char* stored = from.Row(row - y);
        if (target.depth == from.depth)
            CopyRow(target, row, columns, stored, columns.begin - x);
        else
            TranslateRow(translator, target, row, columns, stored, from.depth, columns.begin - x);
    }
    return true;
}

PackedImage MaskOf(const ImageView& source, const std::optional<Rgb>& color)
{
    if (!source.hasRows)
        return {};
    PackedImage mask = PackedImage::Make(source.width, SignedHeight(source), 1);
    mask.SetTableColor(1, {255, 255, 255});
    const ImageCanvas canvas = mask.Canvas();
    for (int y = 0; y < canvas.height; ++y)
        for (int x = 0; x < canvas.width; ++x)
            if (ColorAt(source, x, y) == color)
                StorePixel(canvas.Row(y), x, 1, 1);
    return mask;
}
} // namespace vorn
