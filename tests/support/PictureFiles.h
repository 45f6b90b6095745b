#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorn::test
{

/// A chunk of a PNG file with its length and its check.
std::string PngChunk(std::string_view type, std::string_view data);

/// Bytes as a zlib stream that is not compressed.
std::string StoredZlib(std::string_view bytes);

/// A PNG file, put together by hand.
struct PngParts
{
    int width = 1;
    int height = 1;
    int bits = 8;
    int colorType = 2; ///< 0 grey, 2 RGB, 3 palette, 4 grey and alpha, 6 RGB and alpha.
    bool isInterlaced = false;
    std::string palette;
    std::string transparency; ///< The data of tRNS.
    std::string extra;        ///< Whole chunks before the palette.
    std::string rows;         ///< Each begins with its filter, which 0 is none.

    std::string Bytes() const;
};

/// A JPEG file whose blocks of 8 x 8 pixels have one value each: decoders have nothing to round.
struct JpegParts
{
    int width = 8;
    int height = 8;
    std::vector<std::vector<int>> values{{128}}; ///< For each component those of its blocks, 0 to 255.
    int adobeTransform = -1;                     ///< As its marker has it; -1: no marker.
    bool isProgressive = false;
    std::string extra; ///< Whole segments behind the first mark.

    std::string Bytes() const;
};

} // namespace vorn::test
