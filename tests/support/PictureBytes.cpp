#include "tests/support/PictureBytes.h"
#include "tests/support/TableBytes.h"

namespace vorn::test
{
namespace
{

std::string Number(long value, int size)
{
    return LittleEndian(static_cast<unsigned long>(value), size);
}

/// The flags of a table with this many bytes.
char TableFlags(std::size_t bytes)
{
    int power = 0;
    while (bytes > std::size_t{6} << power)
    {
        ++power;
    }
    return static_cast<char>(bytes == 0 ? 0 : 0x80 | power);
}

} // namespace

std::string BmpParts::Bytes() const
{
    const auto offset = static_cast<unsigned long>(54 + behindHeader.size());
    const auto size = static_cast<unsigned long>(offset + pixels.size());
    std::string bytes =
        "BM" + LittleEndian(sizeField.value_or(size), 4) + Number(0, 4) + LittleEndian(offsetField.value_or(offset), 4);
    bytes += LittleEndian(headerSize, 4) + Number(width, 4) + Number(height, 4) + Number(planes, 2) + Number(depth, 2);
    bytes += LittleEndian(compression, 4) + LittleEndian(imageSize, 4) + std::string(8, '\0') +
             LittleEndian(usedColors, 4) + Number(0, 4);
    return bytes + behindHeader + pixels;
}

std::string PcxParts::Bytes() const
{
    std::string bytes{manufacturer, 5, 1, static_cast<char>(bits)};
    for (const int edge : {left, top, right, bottom, 72, 72})
    {
        bytes += Number(edge, 2);
    }
    bytes += headerPalette + std::string(1, '\0') + static_cast<char>(planes) + Number(bytesPerLine, 2) + Number(1, 2);
    bytes.resize(128);
    return bytes + data + (palette.empty() ? "" : '\x0C' + palette);
}

std::string PackCodes(const std::vector<WideCode>& codes)
{
    std::string bytes;
    int used = 0;
    for (const WideCode& wide : codes)
    {
        for (int bit = 0; bit < wide.bits; ++bit, ++used)
        {
            if (used % 8 == 0)
            {
                bytes += '\0';
            }
            bytes.back() = static_cast<char>(bytes.back() | (wide.code >> bit & 1U) << used % 8);
        }
    }
    return bytes;
}

std::string PlainCodes(const std::string& pixels, int codeSize, bool withEnd)
{
    const unsigned clear = 1U << codeSize;
    std::vector<WideCode> codes;
    for (std::size_t i = 0; i < pixels.size(); ++i)
    {
        // Every second code but the first adds an entry; the width grows with the entry that fills it.
        if (i % (clear - 2 < 1 ? 1 : clear - 2) == 0)
        {
            codes.push_back({clear, codeSize + 1});
        }
        codes.push_back({static_cast<unsigned char>(pixels[i]), codeSize + 1});
    }
    if (withEnd)
    {
        codes.push_back({clear + 1, codeSize + 1});
    }
    return PackCodes(codes);
}

std::string SubBlocks(std::string_view data, std::size_t size)
{
    std::string blocks;
    for (std::size_t at = 0; at < data.size(); at += size)
    {
        const std::string_view block = data.substr(at, size);
        blocks += static_cast<char>(block.size());
        blocks += block;
    }
    return blocks + '\0';
}

GifParts::GifParts(std::string_view table, std::string_view signature) : m_bytes(signature)
{
    m_bytes += Number(100, 2) + Number(50, 2) + TableFlags(table.size()) + std::string(2, '\0');
    m_bytes += table;
}

GifParts& GifParts::Control(int flags, int transparent)
{
    const std::string control{static_cast<char>(flags), 0, 0, static_cast<char>(transparent)};
    return Extension(0xF9, SubBlocks(control));
}

GifParts& GifParts::Extension(int label, std::string_view subBlocks)
{
    m_bytes += '!';
    m_bytes += static_cast<char>(label);
    m_bytes += subBlocks;
    return *this;
}

GifParts& GifParts::Image(int width, int height, int codeSize, std::string_view data, bool isInterlaced,
                          std::string_view table)
{
    m_bytes += ',' + Number(3, 2) + Number(2, 2) + Number(width, 2) + Number(height, 2);
    m_bytes += static_cast<char>(TableFlags(table.size()) | (isInterlaced ? 0x40 : 0));
    m_bytes += table;
    m_bytes += static_cast<char>(codeSize);
    m_bytes += data;
    return *this;
}

GifParts& GifParts::Raw(std::string_view bytes)
{
    m_bytes += bytes;
    return *this;
}

std::string GifParts::Bytes() const
{
    return m_bytes + ';';
}

} // namespace vorn::test
