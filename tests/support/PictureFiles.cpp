#include "tests/support/PictureFiles.h"

#include <cstdint>
#include <cstdlib>

namespace vorn::test
{
namespace
{

std::string BigEndian(std::uint32_t value, int size)
{
    std::string bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
    {
        bytes += static_cast<char>(value >> shift);
    }
    return bytes;
}

std::string BigEndian(int value, int size)
{
    return BigEndian(static_cast<std::uint32_t>(value), size);
}

std::uint32_t Crc(std::string_view bytes)
{
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char byte : bytes)
    {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
        {
            crc = crc >> 1 ^ (crc % 2 != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~crc;
}

std::uint32_t Adler(std::string_view bytes)
{
    std::uint32_t sum = 1;
    std::uint32_t sums = 0;
    for (const char byte : bytes)
    {
        sum = (sum + static_cast<unsigned char>(byte)) % 65521;
        sums = (sums + sum) % 65521;
    }
    return sums << 16 | sum;
}

/// Bits from the highest on, with a zero behind each byte of ones.
class ScanBits
{
public:
    void Put(int value, int bits)
    {
        for (int bit = bits - 1; bit >= 0; --bit)
        {
            m_byte = m_byte << 1 | (value >> bit & 1);
            if (++m_used == 8)
            {
                PutByte();
            }
        }
    }
    std::string Bytes()
    {
        while (m_used != 0)
        {
            Put(1, 1);
        }
        return m_bytes;
    }

private:
    void PutByte()
    {
        m_bytes += static_cast<char>(m_byte);
        if (m_byte == 0xFF)
        {
            m_bytes += '\0';
        }
        m_byte = 0;
        m_used = 0;
    }

    std::string m_bytes;
    int m_byte = 0;
    int m_used = 0;
};

/// The number of bits of a difference has a code of four bits; the difference follows.
void PutDifference(ScanBits& bits, int difference)
{
    int size = 0;
    while (std::abs(difference) >> size != 0)
    {
        ++size;
    }
    bits.Put(size, 4);
    bits.Put(difference < 0 ? difference - 1 : difference, size);
}

std::string Segment(int mark, const std::string& data)
{
    return std::string{'\xFF', static_cast<char>(mark)} + BigEndian(static_cast<int>(data.size()) + 2, 2) + data;
}

std::string CodedBlocks(const JpegParts& parts)
{
    ScanBits bits;
    std::vector<int> last(parts.values.size(), 128);
    for (std::size_t block = 0; block < parts.values[0].size(); ++block)
    {
        for (std::size_t i = 0; i < parts.values.size(); ++i)
        {
            PutDifference(bits, parts.values[i][block] - last[i]);
            last[i] = parts.values[i][block];
            if (!parts.isProgressive)
            {
                bits.Put(0, 1); // no more in this block
            }
        }
    }
    return bits.Bytes();
}

std::string FrameHead(const JpegParts& parts)
{
    std::string frame = "\x08" + BigEndian(parts.height, 2) + BigEndian(parts.width, 2);
    frame += static_cast<char>(parts.values.size());
    for (std::size_t i = 0; i < parts.values.size(); ++i)
    {
        frame += static_cast<char>(i + 1);
        frame += std::string("\x11\0", 2);
    }
    return Segment(parts.isProgressive ? 0xC2 : 0xC0, frame);
}

std::string ScanHead(const JpegParts& parts)
{
    std::string scan(1, static_cast<char>(parts.values.size()));
    for (std::size_t i = 0; i < parts.values.size(); ++i)
    {
        scan += static_cast<char>(i + 1);
        scan += '\0';
    }
    return Segment(0xDA, scan + '\0' + (parts.isProgressive ? '\0' : '\x3F') + '\0');
}

/// The scans that say that there is nothing more: else decoders guess what might come.
std::string RestOfBlocks(const JpegParts& parts)
{
    std::string scans;
    for (std::size_t i = 0; parts.isProgressive && i < parts.values.size(); ++i)
    {
        ScanBits bits;
        for (std::size_t block = 0; block < parts.values[i].size(); ++block)
        {
            bits.Put(0, 1);
        }
        scans += Segment(0xDA, '\1' + std::string(1, static_cast<char>(i + 1)) + std::string("\0\1\x3F\0", 4));
        scans += bits.Bytes();
    }
    return scans;
}

/// One code of a bit for the end of a block, twelve of four bits for the sizes of differences.
std::string CodeTables()
{
    const std::string sizes("\0\1\2\3\4\5\6\7\x08\x09\x0A\x0B", 12);
    const std::string four("\0\0\0\x0C\0\0\0\0\0\0\0\0\0\0\0\0", 16);
    return Segment(0xC4, std::string(1, '\0') + four + sizes) +
           Segment(0xC4, std::string("\x10\1", 2) + std::string(16, '\0'));
}

} // namespace

std::string PngChunk(std::string_view type, std::string_view data)
{
    const std::string checked = std::string(type) + std::string(data);
    return BigEndian(static_cast<int>(data.size()), 4) + checked + BigEndian(Crc(checked), 4);
}

std::string StoredZlib(std::string_view bytes)
{
    constexpr std::size_t kMost = 65535;
    std::string stream = "\x78\x01";
    for (std::size_t at = 0; at == 0 || at < bytes.size(); at += kMost)
    {
        const std::string_view part = bytes.substr(at, kMost);
        const auto low = static_cast<char>(part.size() & 0xFF);
        const auto high = static_cast<char>(part.size() >> 8);
        stream += at + kMost >= bytes.size() ? '\1' : '\0';
        stream += {low, high, static_cast<char>(~low), static_cast<char>(~high)};
        stream += part;
    }
    return stream + BigEndian(Adler(bytes), 4);
}

std::string PngParts::Bytes() const
{
    const std::string kind{static_cast<char>(bits), static_cast<char>(colorType), 0, 0,
                           static_cast<char>(isInterlaced)};
    return "\x89PNG\r\n\x1A\n" + PngChunk("IHDR", BigEndian(width, 4) + BigEndian(height, 4) + kind) + extra +
           (palette.empty() ? "" : PngChunk("PLTE", palette)) +
           (transparency.empty() ? "" : PngChunk("tRNS", transparency)) + PngChunk("IDAT", StoredZlib(rows)) +
           PngChunk("IEND", "");
}

// The first coefficient is eight times the block's value, in steps of eight.
std::string JpegParts::Bytes() const
{
    std::string bytes = "\xFF\xD8" + extra;
    if (adobeTransform >= 0)
    {
        bytes += Segment(0xEE, std::string("Adobe\0\x64\0\0\0\0", 11) + static_cast<char>(adobeTransform));
    }
    bytes += Segment(0xDB, '\0' + std::string(64, '\x08')) + FrameHead(*this) + CodeTables() + ScanHead(*this);
    return bytes + CodedBlocks(*this) + RestOfBlocks(*this) + "\xFF\xD9";
}

} // namespace vorn::test
