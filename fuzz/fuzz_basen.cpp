#include "frame/core/BaseNDigits.h"

#include <cstdlib>
#include <cstring>
#include <vector>

/// The first byte is the base, the second the room for decoding, the rest digits to decode and bytes to encode.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size < 2)
    {
        return 0;
    }
    const int base = data[0] < 128 ? data[0] : data[0] - 256; // signed
    const std::span<const unsigned char> rest(data + 2, size - 2);
    const std::string_view digits(reinterpret_cast<const char*>(rest.data()), rest.size());

    const std::uint64_t value = vorn::DecodeNumber(digits, base);
    const std::string number = vorn::EncodeNumber(value, base);
    if (!number.empty() && vorn::DecodeNumber(number, base) != value)
    {
        std::abort();
    }

    std::vector<unsigned char> room(data[1]);
    if (vorn::DecodeBytes(digits, room) > room.size())
    {
        std::abort();
    }

    const std::string text = vorn::EncodeBytes(rest, 64);
    std::vector<unsigned char> back(rest.size() + 1);
    const std::size_t count = vorn::DecodeBytes(text, back);
    if (count != rest.size() || (count != 0 && std::memcmp(back.data(), rest.data(), count) != 0))
    {
        std::abort();
    }
    const int bits = vorn::BitsPerDigit(base);
    const std::size_t length = vorn::EncodeBytes(rest, base).size();
    if (length > (bits == 0 ? 0 : rest.size() * 8 / static_cast<std::size_t>(bits) + 1))
    {
        std::abort();
    }
    return 0;
}
