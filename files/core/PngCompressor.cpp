#include "files/core/PngCompressor.h"

#include <libdeflate.h>

namespace vorn
{
namespace
{
constexpr int kLevel = 4; // the higher ones take longer over noise and gain less than a twentieth
}

void PngCompressor::Free::operator()(libdeflate_compressor* compressor) const
{
    libdeflate_free_compressor(compressor);
}

PngCompressor::PngCompressor() : m_compressor(libdeflate_alloc_compressor(kLevel))
{
}

PngCompressed PngCompressor::Compress(std::span<const unsigned char> bytes) const
{
    if (m_compressor == nullptr || bytes.empty())
        return {};
    PngCompressed made{ImageBlock::Unfilled(libdeflate_zlib_compress_bound(m_compressor.get(), bytes.size()))};
    const std::span<unsigned char> to = made.block.Bytes();
    if (!to.empty())
        made.size = libdeflate_zlib_compress(m_compressor.get(), bytes.data(), bytes.size(), to.data(), to.size());
    return made;
}
} // namespace vorn
