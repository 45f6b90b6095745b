#include "files/core/ImageResize.h"
#include "files/core/BlockAverage.h"
#include "files/core/ImageConvert.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace vorn
{
namespace
{
/// How much of one source pixel, or which one alone.
struct Share
{
    int source;
    std::uint16_t weight; ///< Without meaning where it is the only one.
};

constexpr std::uint32_t kWhole = 1U << 16;

/// The shares that make each pixel of one axis; they sum to kWhole.
class Shares
{
public:
    Shares(int sourceSize, int size)
    {
        m_begin.reserve(static_cast<std::size_t>(size) + 1);
        for (int i = 0; i < size; ++i)
        {
            m_begin.push_back(m_shares.size());
            if (size < sourceSize)
                AddCovered(i, sourceSize, size);
            else
                m_shares.push_back(
                    {static_cast<int>((2 * std::int64_t{i} + 1) * sourceSize / (2 * std::int64_t{size})), 0});
        }
        m_begin.push_back(m_shares.size());
    }

    std::span<const Share> Of(int pixel) const
    {
        const auto i = static_cast<std::size_t>(pixel);
        return std::span(m_shares).subspan(m_begin[i], m_begin[i + 1] - m_begin[i]);
    }

private:
    // In parts of which a source pixel has `size` and a pixel `sourceSize`. Rounded sums leave no rest.
    void AddCovered(int pixel, std::int64_t sourceSize, std::int64_t size)
    {
        const std::int64_t begin = pixel * sourceSize;
        const std::int64_t end = begin + sourceSize;
        std::int64_t weightBefore = 0;
        for (std::int64_t source = begin / size; source * size < end; ++source)
        {
            const std::int64_t covered = std::min((source + 1) * size, end) - begin;
            const std::int64_t weight = covered * kWhole / sourceSize;
            const std::int64_t own = std::min<std::int64_t>(weight - weightBefore, kWhole - 1);
            m_shares.push_back({static_cast<int>(source), static_cast<std::uint16_t>(own)});
            weightBefore = weight;
        }
    }

    std::vector<Share> m_shares;
    std::vector<std::size_t> m_begin;
};

/// Rows of 8 bits and 8 more behind the point.
using FineRow = std::vector<std::uint32_t>;

// Products of 16 bits with 16 bits: there are instructions for eight at a time.
void AddRow(FineRow& row, const unsigned char* from, std::uint16_t weight)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] += std::uint32_t{weight} * std::uint16_t{from[i]};
}

void AddTwoRows(FineRow& row, const unsigned char* first, std::uint16_t firstWeight, const unsigned char* second,
                std::uint16_t secondWeight)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] += std::uint32_t{firstWeight} * std::uint16_t{first[i]} +
                  std::uint32_t{secondWeight} * std::uint16_t{second[i]};
}

void CopyRow(FineRow& row, const unsigned char* from)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = std::uint32_t{from[i]} << 8;
}

void MixRows(const ImageView& source, std::span<const Share> shares, FineRow& row)
{
    if (shares.size() == 1)
        return CopyRow(row, source.Row(shares.front().source));
    std::ranges::fill(row, 128U);
    for (; shares.size() > 1; shares = shares.subspan(2))
        AddTwoRows(row, source.Row(shares[0].source), shares[0].weight, source.Row(shares[1].source), shares[1].weight);
    if (!shares.empty())
        AddRow(row, source.Row(shares.front().source), shares.front().weight);
    for (std::uint32_t& value : row)
        value >>= 8;
}

template <std::size_t Channels>
void MixColumns(const FineRow& row, const Shares& columns, int width, unsigned char* to)
{
    constexpr std::uint32_t kHalf = 1U << 23;
    for (int x = 0; x < width; ++x)
    {
        std::uint32_t sums[Channels];
        std::fill_n(sums, Channels, kHalf);
        for (const Share& share : columns.Of(x))
            for (std::size_t i = 0; i < Channels; ++i)
                sums[i] += share.weight * row[static_cast<std::size_t>(share.source) * Channels + i];
        for (const std::uint32_t sum : sums)
            *to++ = static_cast<unsigned char>(sum >> 24);
    }
}

void RoundRow(const FineRow& row, std::vector<unsigned char>& bytes)
{
    std::ranges::transform(row, bytes.begin(),
                           [](std::uint32_t value)
                           {
                               return static_cast<unsigned char>((value + 128) >> 8);
                           });
}

/// Where the pixels of a row come from, in bytes, where each is one of the source alone.
std::vector<std::size_t> Offsets(int sourceSize, int size, std::size_t channels)
{
    const Shares shares(sourceSize, size);
    std::vector<std::size_t> offsets;
    offsets.reserve(static_cast<std::size_t>(size));
    for (int i = 0; i < size; ++i)
        offsets.push_back(static_cast<std::size_t>(shares.Of(i).front().source) * channels);
    return offsets;
}

// Three bytes go as four as long as the source has them; the next pixel takes the last one.
template <std::size_t Channels>
void RepeatPixels(const unsigned char* from, std::span<const std::size_t> offsets, unsigned char* to)
{
    std::size_t x = 0;
    for (; x < offsets.size() && offsets[x] < offsets.back(); ++x, to += Channels)
        std::memcpy(to, from + offsets[x], 4);
    for (; x < offsets.size(); ++x, to += Channels)
        std::memcpy(to, from + offsets[x], Channels);
}

bool IsSameAsBefore(const Shares& rows, int y)
{
    return y > 0 && rows.Of(y).size() == 1 && rows.Of(y - 1).size() == 1 &&
           rows.Of(y).front().source == rows.Of(y - 1).front().source;
}

/// Makes a row of the target from mixed rows of the source, whose pixels it mixes or, where the width grows, repeats.
template <std::size_t Channels>
class RowMaker
{
public:
    RowMaker(const ImageView& source, int width)
        : m_source(source), m_width(width), m_columns(source.width, width),
          m_row(static_cast<std::size_t>(source.width) * Channels)
    {
        if (width < source.width)
            return;
        m_offsets = Offsets(source.width, width, Channels);
        m_bytes.resize(m_row.size());
    }

    void Make(std::span<const Share> shares, unsigned char* to)
    {
        MixRows(m_source, shares, m_row);
        if (m_offsets.empty())
            return MixColumns<Channels>(m_row, m_columns, m_width, to);
        RoundRow(m_row, m_bytes);
        RepeatPixels<Channels>(m_bytes.data(), m_offsets, to);
    }

private:
    const ImageView& m_source;
    int m_width;
    Shares m_columns;
    FineRow m_row;
    std::vector<std::size_t> m_offsets;
    std::vector<unsigned char> m_bytes;
};

template <std::size_t Channels>
void Resample(const ImageView& source, const ImageCanvas& target)
{
    const Shares rows(source.height, target.height);
    RowMaker<Channels> maker(source, target.width);
    for (int y = 0; y < target.height; ++y)
    {
        if (IsSameAsBefore(rows, y))
            std::memcpy(target.Row(y), target.Row(y - 1), static_cast<std::size_t>(target.stride));
        else
            maker.Make(rows.Of(y), target.Row(y));
    }
}

/// Growing along both axes: nothing is mixed.
void Repeat(const ImageView& source, const ImageCanvas& target)
{
    const auto channels = static_cast<std::size_t>(source.depth / 8);
    const std::vector<std::size_t> columns = Offsets(source.width, target.width, channels);
    const std::vector<std::size_t> rows = Offsets(source.height, target.height, 1);
    for (std::size_t y = 0; y < rows.size(); ++y)
    {
        unsigned char* to = target.Row(static_cast<int>(y));
        if (y > 0 && rows[y] == rows[y - 1])
        {
            std::memcpy(to, target.Row(static_cast<int>(y) - 1), static_cast<std::size_t>(target.stride));
            continue;
        }
        const unsigned char* from = source.Row(static_cast<int>(rows[y]));
        if (channels == 4)
            RepeatPixels<4>(from, columns, to);
        else
            RepeatPixels<3>(from, columns, to);
    }
}

/// Whether each pixel is made of a whole number of the source's, and not too many, along each axis.
bool IsWholeShrink(const ImageView& source, int width, int height)
{
    return source.width % width == 0 && source.height % height == 0 &&
           std::int64_t{source.width / width} * (source.height / height) <= BlockAverage::kMostPixels;
}

void Average(const ImageView& source, const ImageCanvas& target)
{
    const int down = source.height / target.height;
    BlockAverage blocks(source, source.width / target.width, down);
    for (int y = 0; y < target.height; ++y)
        blocks.MakeRow(y * down, target.Row(y));
}

bool IsPlain(const ImageView& image)
{
    return image.depth >= 24 && !image.isMasked;
}

int PlainDepth(const ImageView& source)
{
    return source.depth == 32 ? 32 : 24;
}

void ClearGaps(const ImageCanvas& target)
{
    const std::size_t used = static_cast<std::size_t>(target.width) * static_cast<std::size_t>(target.depth / 8);
    const std::size_t gap = static_cast<std::size_t>(target.stride) - used;
    for (int y = 0; gap != 0 && y < target.height; ++y)
        std::memset(target.Row(y) + used, 0, gap);
}

void Put(const ImageCanvas& target, const ImageView& plain)
{
    if (target.width >= plain.width && target.height >= plain.height)
        Repeat(plain, target);
    else if (IsWholeShrink(plain, target.width, target.height))
        Average(plain, target);
    else if (plain.depth == 32)
        Resample<4>(plain, target);
    else
        Resample<3>(plain, target);
    ClearGaps(target);
}
} // namespace

bool PutResized(const ImageCanvas& target, const ImageView& source)
{
    if (!source.hasRows || source.height < 1 || !target.hasRows || !target.isTopDown || target.isMasked ||
        target.depth != PlainDepth(source) || target.bits == source.bits)
        return false;
    const PackedImage converted = IsPlain(source) ? PackedImage() : ToPlainChannels(source);
    const ImageView plain = IsPlain(source) ? source : converted.View();
    if (plain.hasRows)
        Put(target, plain);
    return plain.hasRows;
}

PackedImage BoxResize(const ImageView& source, int width, int height)
{
    if (width < 1 || height < 1 || !source.hasRows || source.height < 1)
        return {};
    PackedImage made = PackedImage::MakeUnfilled(width, -height, PlainDepth(source));
    if (!made.IsEmpty() && !PutResized(made.Canvas(), source))
        return {};
    return made;
}
} // namespace vorn
