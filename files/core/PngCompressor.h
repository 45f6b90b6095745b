#pragma once

/// @file
/// Compression of what is in memory as a whole.
#include "files/core/PackedImage.h"

#include <cstddef>
#include <memory>
#include <span>

struct libdeflate_compressor;

namespace vorn
{
/// A zlib stream, or nothing.
struct PngCompressed
{
    ImageBlock block;     ///< longer than the stream
    std::size_t size = 0; ///< 0: no memory
};

/// Makes zlib streams.
class PngCompressor
{
public:
    PngCompressor();

    PngCompressed Compress(std::span<const unsigned char> bytes) const;

private:
    struct Free
    {
        void operator()(libdeflate_compressor* compressor) const;
    };

    std::unique_ptr<libdeflate_compressor, Free> m_compressor; ///< null without memory
};
} // namespace vorn
