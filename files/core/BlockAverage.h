#pragma once

/// @file
/// Averages of whole numbers of pixels.
#include "files/core/ImageView.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vorn
{
/// Makes rows of which each pixel is the average of a block of a source's, rounded, exactly. The channels have 8 bits.
class BlockAverage
{
public:
    /// As many pixels as a block can have.
    static constexpr int kMostPixels = 256;

    /// @param source of 24 or 32 bits; its pixels live as long as this.
    /// @param across, down the size of a block: 2 to kMostPixels pixels in all.
    BlockAverage(const ImageView& source, int across, int down);

    /// The row of averages that begins with a row of the source.
    /// @param to takes as many pixels as there are whole blocks in the source's width, and no byte more.
    void MakeRow(int firstRow, unsigned char* to);

private:
    void SumDown(int firstRow);

    ImageView m_source;
    int m_across;
    int m_down;
    std::size_t m_channels;
    std::vector<std::uint16_t> m_sums; ///< of one row of blocks, and a few that are only read
};
} // namespace vorn
