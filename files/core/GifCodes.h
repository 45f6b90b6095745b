#pragma once

/// @file
/// The variable-length codes of GIF files.
#include <cstddef>
#include <span>
#include <vector>

namespace vorn
{
/// Bytes that may be written behind the pixels, and are zero afterwards.
inline constexpr std::size_t kGifSlack = 16;

inline constexpr int kLeastGifCodeSize = 1;
inline constexpr int kMostGifCodeSize = 11;

/// Decodes into `pixels`, behind which are kGifSlack more zero bytes; gives how many pixels there were.
///
/// Ends at the end code, with the last pixel, with the data, or at a code that has no meaning yet. `data` gets some
/// bytes appended. The code size is that of the colours, from kLeastGifCodeSize to kMostGifCodeSize.
std::size_t DecodeGifCodes(std::vector<unsigned char>& data, int codeSize, std::span<unsigned char> pixels);
} // namespace vorn
