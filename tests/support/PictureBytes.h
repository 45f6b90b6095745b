#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vorn::test
{

/// The bytes of a Windows bitmap file, put together by hand.
struct BmpParts
{
    int width = 1;
    int height = 1;
    int depth = 24;
    unsigned long headerSize = 40;
    unsigned long compression = 0;
    unsigned long usedColors = 0;
    unsigned long imageSize = 0; ///< What the header says of the pixels' bytes.
    int planes = 1;
    std::string behindHeader; ///< Table, masks, gap.
    std::string pixels;
    std::optional<unsigned long> sizeField; ///< In place of the true one.
    std::optional<unsigned long> offsetField;

    std::string Bytes() const;
};

/// A PCX file: the 128-byte header, coded data, and with a palette its mark.
struct PcxParts
{
    int bits = 8;
    int planes = 1;
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int bytesPerLine = 1;
    std::string headerPalette = std::string(48, '\0');
    std::string data;
    std::string palette; ///< 768 bytes, or none.
    char manufacturer = 10;

    std::string Bytes() const;
};

/// A code and the bits that it takes.
struct WideCode
{
    unsigned code;
    int bits;
};

/// The codes from the lowest bit on.
std::string PackCodes(const std::vector<WideCode>& codes);

/// Codes for any pixels that need no table: single ones, with a clear code before the width would grow. `withEnd` adds
/// the end code.
std::string PlainCodes(const std::string& pixels, int codeSize, bool withEnd = true);

/// Data in sub-blocks of up to `size` bytes, and the empty one.
std::string SubBlocks(std::string_view data, std::size_t size = 255);

/// A GIF file, block by block.
class GifParts
{
public:
    /// `table` is the file's: 3 bytes an entry, a power of 2 from 2 to 256 of them, or none.
    explicit GifParts(std::string_view table = {}, std::string_view signature = "GIF89a");

    GifParts& Control(int flags, int transparent);
    /// An extension with this label; its sub-blocks end with an empty one.
    GifParts& Extension(int label, std::string_view subBlocks);
    /// An image whose `data` are sub-blocks with the empty one.
    GifParts& Image(int width, int height, int codeSize, std::string_view data, bool isInterlaced = false,
                    std::string_view table = {});
    GifParts& Raw(std::string_view bytes);
    /// Everything so far, with the end mark.
    std::string Bytes() const;

private:
    std::string m_bytes;
};

/// The characters as the decoders take them.
inline std::span<const unsigned char> Unsigned(std::string_view bytes)
{
    return {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()};
}

} // namespace vorn::test
