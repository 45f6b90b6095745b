#include "files/core/PngPlan.h"

#include <algorithm>
#include <cstdint>

namespace vorn
{
namespace
{
/// Bands of rows, the same distance apart.
struct Bands
{
    int count;
    int rows;     ///< of each
    int distance; ///< from one to the next, rounded down
};

Bands BandsIn(std::size_t rowSize, int height)
{
    constexpr std::uint64_t kLeast = std::uint64_t{64} << 10;
    constexpr std::uint64_t kMost = std::uint64_t{1} << 20;
    constexpr unsigned kPart = 24;
    constexpr int kRows = 8; // fewer tell too little of what repeats from row to row
    const std::uint64_t wanted =
        std::clamp(std::uint64_t{rowSize} * static_cast<unsigned>(height) / kPart, kLeast, kMost);
    const int rows = static_cast<int>(std::clamp<std::uint64_t>(wanted / rowSize, 1, static_cast<unsigned>(height)));
    const int count = std::max(rows / kRows, 1);
    return {count, rows / count, height / count};
}

/// Some rows with a filter.
ImageBlock SampleOf(const ImageView& image, bool hasAlpha, PngFilter filter)
{
    PngRows rows(image, hasAlpha, filter);
    const Bands bands = BandsIn(rows.Size(), image.height);
    ImageBlock sample = ImageBlock::Unfilled(rows.Size() * static_cast<std::size_t>(bands.rows * bands.count));
    unsigned char* to = sample.Bytes().data();
    if (to == nullptr || !rows.IsReady())
        return {};
    for (int i = 0; i < bands.count; ++i)
    {
        const auto start = static_cast<int>(std::int64_t{image.height} * i / bands.count);
        rows.GoTo(start + (bands.distance - bands.rows) / 2);
        for (int y = 0; y < bands.rows; ++y, to += rows.Size())
            rows.Next(to);
    }
    return sample;
}
} // namespace

PngPlan PngPlanOf(const ImageView& image, bool hasAlpha, const PngCompressor& compressor)
{
    constexpr std::size_t kFlat = 8; // times smaller
    PngPlan plan;
    std::size_t least = 0;
    for (const PngFilter filter : {PngFilter::None, PngFilter::Sub, PngFilter::Up})
    {
        const ImageBlock sample = SampleOf(image, hasAlpha, filter);
        const std::size_t size = compressor.Compress(sample.Bytes()).size;
        if (size == 0 || (least != 0 && size >= least))
            continue;
        least = size;
        plan = {filter, size * kFlat < sample.Bytes().size()};
    }
    return plan;
}
} // namespace vorn
