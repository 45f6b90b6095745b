#include "files/core/GifCodes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace vorn
{
namespace
{
constexpr unsigned kMostBits = 12;
constexpr unsigned kTableSize = 1U << kMostBits;
constexpr std::size_t kStep = 8; // bytes of one store

/// Reads codes from bytes of which four more can be read behind the last.
class CodeReader
{
public:
    explicit CodeReader(std::span<const unsigned char> data)
        : m_next(data.data()), m_bitsLeft(std::uint64_t{data.size()} * 8)
    {
    }

    bool Read(unsigned width, unsigned& code)
    {
        if (m_bitsLeft < width)
            return false;
        m_bitsLeft -= width;
        std::uint32_t window = 0;
        std::memcpy(&window, m_next, sizeof window);
        code = window >> m_shift & ((1U << width) - 1);
        m_shift += width;
        m_next += m_shift / 8;
        m_shift %= 8;
        return true;
    }

private:
    const unsigned char* m_next;
    std::uint64_t m_bitsLeft;
    unsigned m_shift = 0;
};

/// A string of pixels that stands somewhere already: earlier in the picture, or among the single ones.
struct CodeString
{
    const unsigned char* start;
    std::uint32_t length;
};

/// Decodes one picture. A new string is the one before and the pixel behind it, which follow each other in the picture:
/// it is kept as a place and a length.
class CodeDecoder
{
public:
    CodeDecoder(unsigned codeSize, std::span<unsigned char> pixels)
        : m_clear(1U << codeSize), m_codeSize(codeSize), m_out(pixels.data()), m_end(pixels.data() + pixels.size())
    {
        for (unsigned i = 0; i < m_clear; ++i)
        {
            m_single[i] = static_cast<unsigned char>(i);
            m_strings[i] = {&m_single[i], 1};
        }
        Clear();
    }

    /// Where the pixels end.
    const unsigned char* Run(CodeReader codes)
    {
        unsigned code = 0;
        while (m_out != m_end && codes.Read(m_width, code))
        {
            if (code == m_clear)
                Clear();
            else if (code == m_clear + 1 || !Put(code))
                break;
        }
        return m_out;
    }

private:
    void Clear()
    {
        m_width = m_codeSize + 1;
        m_next = m_clear + 2;
        m_before = nullptr;
    }

    bool Put(unsigned code)
    {
        if (m_before != nullptr && m_next < kTableSize)
        {
            m_strings[m_next++] = {m_before, m_lengthBefore + 1};
            if (m_next == 1U << m_width && m_width < kMostBits)
                ++m_width;
        }
        if (code >= m_next)
            return false;
        const CodeString& string = m_strings[code];
        Copy(string.start, std::min<std::size_t>(string.length, static_cast<std::size_t>(m_end - m_out)));
        return true;
    }

    /// Whole steps: what is too much is overwritten by the next string. The string that has just been made runs one
    /// pixel into its own copy, its first one.
    void Copy(const unsigned char* from, std::size_t length)
    {
        const bool isOverlapping = from + length == m_out + 1;
        std::memmove(m_out, from, kStep);
        for (std::size_t at = kStep; at < length; at += kStep)
            std::memmove(m_out + at, from + at, kStep);
        if (isOverlapping)
            m_out[length - 1] = m_out[0];
        m_before = m_out;
        m_lengthBefore = static_cast<std::uint32_t>(length);
        m_out += length;
    }

    unsigned m_clear;
    unsigned m_codeSize;
    unsigned m_width = 0;
    unsigned m_next = 0;
    std::uint32_t m_lengthBefore = 0;
    const unsigned char* m_before = nullptr; ///< The string before, in the picture.
    unsigned char* m_out;
    unsigned char* m_end;
    std::array<unsigned char, (1U << kMostGifCodeSize) + kStep> m_single{};
    std::array<CodeString, kTableSize> m_strings; // filled as far as m_next
};
} // namespace

std::size_t DecodeGifCodes(std::vector<unsigned char>& data, int codeSize, std::span<unsigned char> pixels)
{
    const std::size_t size = data.size();
    data.resize(size + sizeof(std::uint32_t));
    CodeDecoder decoder(static_cast<unsigned>(codeSize), pixels);
    const unsigned char* end = decoder.Run(CodeReader({data.data(), size}));
    const auto count = static_cast<std::size_t>(end - pixels.data());
    std::memset(pixels.data() + count, 0, std::min(kGifSlack, pixels.size() + kGifSlack - count));
    return count;
}
} // namespace vorn
