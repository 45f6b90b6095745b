#pragma once

/// @file
/// Which kind of picture file it is.
#include <cstddef>
#include <span>

namespace vorn
{
enum class ImageKind
{
    Unknown,
    Bmp,
    Pcx,
    Gif,
    Png,
    Jpeg
};

/// Files are told apart by as many bytes.
inline constexpr std::size_t kImageKindBytes = 8;

/// By a file's first bytes, of which a short file has fewer: "BM"; 10, whatever follows; "GIF87a" or "GIF89a"; 137 and
/// "PNG"; 255 and 216.
ImageKind KindOfImage(std::span<const unsigned char> start);
} // namespace vorn
