#include "files/core/PngRead.h"
#include "files/core/PngWrite.h"
#include "fuzz/PictureUse.h"

#include <cstdint>
#include <vector>

namespace
{
constexpr std::size_t kSignatureSize = 8;
constexpr std::size_t kAroundData = 12; // length and type before, check behind

std::uint32_t NumberAt(const unsigned char* bytes)
{
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
}

std::uint32_t CheckOf(const unsigned char* bytes, std::size_t size)
{
    std::uint32_t check = 0xFFFFFFFFU;
    for (std::size_t i = 0; i < size; ++i)
    {
        check ^= bytes[i];
        for (int bit = 0; bit < 8; ++bit)
        {
            check = check >> 1 ^ (check % 2 != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~check;
}

/// The file with right checks behind its chunks: with wrong ones nothing of them would be looked at.
std::vector<unsigned char> WithRightChecks(const unsigned char* data, std::size_t size)
{
    std::vector<unsigned char> file(data, data + size);
    std::size_t at = kSignatureSize;
    while (at + kAroundData <= size && NumberAt(data + at) <= size - at - kAroundData)
    {
        const std::size_t length = NumberAt(data + at);
        const std::uint32_t check = CheckOf(data + at + 4, length + 4);
        for (unsigned i = 0; i < 4; ++i)
        {
            file[at + 8 + length + i] = static_cast<unsigned char>(check >> (24 - 8 * i));
        }
        at += length + kAroundData;
    }
    return file;
}

} // namespace

/// Any bytes as a PNG file. What is read is written and read the same.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    constexpr std::int64_t kMostBytes = 1 << 20;
    vorn::PackedImage image = vorn::DecodePng(WithRightChecks(data, size), kMostBytes);
    vorn::fuzz::UsePicture(image);
    std::vector<unsigned char> written;
    const bool isWritten = vorn::EncodePng(image.View(),
                                           [&](const char* piece, unsigned length)
                                           {
                                               written.insert(written.end(), piece, piece + length);
                                           });
    vorn::fuzz::Require(isWritten == !image.IsEmpty());
    if (isWritten)
    {
        vorn::fuzz::RequireSamePicture(vorn::DecodePng(written, kMostBytes), image);
    }
    return 0;
}
