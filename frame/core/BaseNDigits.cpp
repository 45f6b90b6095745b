#include "frame/core/BaseNDigits.h"

#include <bit>
#include <charconv>

namespace vorn
{

namespace
{

constexpr int kLargestCharconvBase = 36;
constexpr unsigned kBitsPerByte = 8;
constexpr unsigned kBitsPerLargestDigit = 6;

constexpr bool IsBase(int base)
{
    return base >= kSmallestBase && base <= kLargestBase;
}

/// Writes backwards and returns where the digits begin.
char* EncodeBackwards(std::uint64_t value, unsigned base, char* end)
{
    do
    {
        *--end = kBaseNDigits[static_cast<std::size_t>(value % base)];
        value /= base;
    } while (value != 0);
    return end;
}

/// Three bytes make four of the largest digits. Takes what it encodes off `bytes`.
char* EncodeTriples(std::span<const unsigned char>& bytes, char* out)
{
    for (; bytes.size() >= 3; bytes = bytes.subspan(3))
    {
        const unsigned pool = bytes[0] | static_cast<unsigned>(bytes[1]) << 8 | static_cast<unsigned>(bytes[2]) << 16;
        for (unsigned shift = 0; shift < 24; shift += kBitsPerLargestDigit)
            *out++ = kBaseNDigits[pool >> shift & 63U];
    }
    return out;
}

void EncodeRest(std::span<const unsigned char> bytes, unsigned bits, char* out)
{
    const unsigned mask = (1U << bits) - 1;
    unsigned pool = 0;
    unsigned pending = 0;
    for (const unsigned char byte : bytes)
    {
        pool |= static_cast<unsigned>(byte) << pending;
        for (pending += kBitsPerByte; pending >= bits; pending -= bits, pool >>= bits)
            *out++ = kBaseNDigits[pool & mask];
    }
    if (pending > 0)
        *out = kBaseNDigits[pool & mask];
}

unsigned ValueOf(char digit)
{
    return kDigitValues[static_cast<unsigned char>(digit)];
}

/// Four digits make three bytes, as long as all four are digits and there is room. Takes what it decodes off both.
std::size_t DecodeTriples(std::string_view& digits, std::span<unsigned char>& bytes)
{
    std::size_t count = 0;
    while (digits.size() >= 4 && bytes.size() >= 3)
    {
        const unsigned a = ValueOf(digits[0]);
        const unsigned b = ValueOf(digits[1]);
        const unsigned c = ValueOf(digits[2]);
        const unsigned d = ValueOf(digits[3]);
        if ((a | b | c | d) == kNoDigit)
            break;
        const unsigned pool = a | b << 6 | c << 12 | d << 18;
        bytes[0] = static_cast<unsigned char>(pool);
        bytes[1] = static_cast<unsigned char>(pool >> 8);
        bytes[2] = static_cast<unsigned char>(pool >> 16);
        digits.remove_prefix(4);
        bytes = bytes.subspan(3);
        count += 3;
    }
    return count;
}

std::size_t DecodeRest(std::string_view digits, std::span<unsigned char> bytes)
{
    std::size_t count = 0;
    unsigned pool = 0;
    unsigned pending = 0;
    for (const char digit : digits)
    {
        const unsigned value = ValueOf(digit);
        if (value == kNoDigit || count == bytes.size())
            break;
        pool |= value << pending;
        pending += kBitsPerLargestDigit;
        if (pending < kBitsPerByte)
            continue;
        bytes[count++] = static_cast<unsigned char>(pool);
        pool >>= kBitsPerByte;
        pending -= kBitsPerByte;
    }
    return count;
}

} // namespace

std::uint64_t DecodeNumber(std::string_view digits, int base)
{
    if (!IsBase(base))
        return 0;
    const std::uint64_t factor = static_cast<unsigned>(base);
    std::uint64_t value = 0;
    for (const char digit : digits)
        value = value * factor + kDigitValues[static_cast<unsigned char>(digit)];
    return value;
}

std::string EncodeNumber(std::uint64_t value, int base)
{
    if (!IsBase(base))
        return {};
    char buffer[64];
    char* const end = buffer + sizeof buffer;
    if (base <= kLargestCharconvBase)
        return std::string(buffer, std::to_chars(buffer, end, value, base).ptr);
    return std::string(EncodeBackwards(value, static_cast<unsigned>(base), end), end);
}

int BitsPerDigit(int base)
{
    return IsBase(base) && std::has_single_bit(static_cast<unsigned>(base))
               ? std::countr_zero(static_cast<unsigned>(base))
               : 0;
}

std::string EncodeBytes(std::span<const unsigned char> bytes, int base)
{
    const auto bits = static_cast<unsigned>(BitsPerDigit(base));
    if (bits == 0)
        return {};
    const std::uint64_t length = (static_cast<std::uint64_t>(bytes.size()) * kBitsPerByte + bits - 1) / bits;
    if (length == 0 || length > kMostDigits)
        return {};
    std::string digits(static_cast<std::size_t>(length), '0');
    char* out = digits.data();
    if (bits == kBitsPerLargestDigit)
        out = EncodeTriples(bytes, out);
    EncodeRest(bytes, bits, out);
    return digits;
}

std::size_t DecodeBytes(std::string_view digits, std::span<unsigned char> bytes)
{
    const std::size_t whole = DecodeTriples(digits, bytes);
    return whole + DecodeRest(digits, bytes);
}

} // namespace vorn
