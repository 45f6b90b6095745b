#pragma once

/// @file
/// Windows bitmap files.
#include "files/core/PackedImage.h"

#include <array>
#include <optional>
#include <vector>

namespace vorn
{
inline constexpr std::size_t kBmpFileHeaderSize = 14;
inline constexpr std::size_t kBmpHeadSize = kBmpFileHeaderSize + kBitmapHeaderSize;

/// Where the parts of a bitmap file are.
struct BmpFileFacts
{
    std::size_t blockSize = 0;  ///< Bytes behind the file header that belong to the bitmap.
    std::size_t bitsOffset = 0; ///< In the block; 0: right behind header and colour table.
};

/// What the 14 bytes of the file header say; nothing unless they begin "BM", state a size from 54 up to that of the
/// file, and no offset or one from 54 on that is inside the file.
std::optional<BmpFileFacts> ReadBmpFileHeader(std::span<const unsigned char> header, std::uint64_t fileSize);

/// Takes the block as stored. Empty unless its header has at least 40 bytes, a width above 0, a height with a positive
/// form, a depth that there is, and rows that are all in the block. Compressed pixels are kept as they are, with no
/// rows to be seen.
PackedImage ImageOfBmpBlock(ImageBlock block, std::size_t bitsOffset);

/// A file in memory, by the two above. Bytes behind the stated size do not matter.
PackedImage DecodeBmp(std::span<const unsigned char> file);

/// The 54 bytes before the rows of a 24-bit bitmap: no table, no gap, the rows in their order.
std::array<unsigned char, kBmpHeadSize> BmpHead(const BITMAPINFOHEADER& header);

/// Whether a file can be made of these rows: 24 bits.
bool CanWriteBmp(const ImageView& view);

/// The whole file of such an image; empty for any other.
std::vector<unsigned char> EncodeBmp(const PackedImage& image);
} // namespace vorn
