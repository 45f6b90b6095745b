#pragma once

/// @file
/// The compressed pixels of a PNG file.
#include "files/core/ImageView.h"

#include <cstddef>
#include <memory>
#include <span>

namespace vorn
{
/// The most bytes of compressed pixels in one chunk.
inline constexpr unsigned kPngPiece = 32768;

/// Rows of so many bytes together are compressed at once, which takes as much memory again twice over. More of them, or
/// without that memory, one after the other: slower, and into more bytes.
inline constexpr std::size_t kPngMostAtOnce = std::size_t{128} << 20;

/// The rows of a picture as a zlib stream, a piece at a time.
class PngStream
{
public:
    PngStream() = default;
    virtual ~PngStream() = default;
    PngStream(const PngStream&) = delete;
    PngStream& operator=(const PngStream&) = delete;

    /// The next bytes, kPngPiece at most, which stay until the next call. None behind the last, and when compression
    /// fails.
    virtual std::span<const unsigned char> Next() = 0;

    /// Whether all bytes have been given.
    virtual bool IsComplete() const = 0;
};

/// @param image has rows; must outlive the stream
/// @param hasAlpha four bytes a pixel are written; only of 32 bits without masks
/// @return null without memory
std::unique_ptr<PngStream> StreamPng(const ImageView& image, bool hasAlpha, std::size_t mostAtOnce = kPngMostAtOnce);
} // namespace vorn
