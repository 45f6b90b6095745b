#include "files/core/NumericDigits.h"

namespace vorn
{
std::size_t NumericDigits(std::span<const char> bytes, char* digits)
{
    char* end = digits;
    for (const char byte : bytes)
    {
        const int value = static_cast<unsigned char>(byte) & 0x0F;
        if (value == 0 && end == digits)
            continue;
        if (value > 9)
            *end++ = '1';
        *end++ = static_cast<char>('0' + value % 10);
    }
    if (end == digits)
        *end++ = '0';
    return static_cast<std::size_t>(end - digits);
}
} // namespace vorn
