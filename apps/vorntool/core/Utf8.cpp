#include "apps/vorntool/core/Utf8.h"

#include <cstdint>
#include <cstdio>

namespace vorn::tool
{

namespace
{

constexpr const char* kReplacement = "\xEF\xBF\xBD";

unsigned char Byte(char c)
{
    return static_cast<unsigned char>(c);
}

bool IsContinuation(char c)
{
    return (Byte(c) & 0xC0) == 0x80;
}

// Bytes of the sequence that a first byte announces; 0 for one that cannot begin a sequence.
std::size_t AnnouncedLength(unsigned char first)
{
    if (first < 0x80)
    {
        return 1;
    }
    if (first >= 0xC2 && first <= 0xDF)
    {
        return 2;
    }
    if (first >= 0xE0 && first <= 0xEF)
    {
        return 3;
    }
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

// The second byte's range excludes overlong forms, surrogates and codes above 10FFFF.
bool SecondByteFits(unsigned char first, unsigned char second)
{
    switch (first)
    {
    case 0xE0:
        return second >= 0xA0;
    case 0xED:
        return second <= 0x9F;
    case 0xF0:
        return second >= 0x90;
    case 0xF4:
        return second <= 0x8F;
    default:
        return true;
    }
}

// Length of the valid sequence at the start of the text, 0 when there is none.
std::size_t ValidLength(std::string_view text)
{
    const std::size_t length = AnnouncedLength(Byte(text[0]));
    if (length == 0 || length > text.size())
    {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i)
    {
        if (!IsContinuation(text[i]))
        {
            return 0;
        }
    }
    return length == 1 || SecondByteFits(Byte(text[0]), Byte(text[1])) ? length : 0;
}

} // namespace

std::string ValidUtf8(std::string_view text)
{
    std::string valid;
    valid.reserve(text.size());
    while (!text.empty())
    {
        const std::size_t length = ValidLength(text);
        valid += length == 0 ? std::string_view(kReplacement) : text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return valid;
}

std::size_t CharacterCount(std::string_view text)
{
    std::size_t count = 0;
    for (const char c : text)
    {
        count += IsContinuation(c) ? 0 : 1;
    }
    return count;
}

std::string OneLine(std::string_view text)
{
    std::string line;
    for (const char c : text)
    {
        switch (c)
        {
        case '\n':
            line += "\\n";
            break;
        case '\r':
            line += "\\r";
            break;
        case '\t':
            line += "\\t";
            break;
        default:
            if (Byte(c) >= 0x20 && Byte(c) != 0x7F)
            {
                line += c;
                break;
            }
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\x%02x", static_cast<unsigned>(Byte(c)));
            line += escape;
        }
    }
    return line;
}

} // namespace vorn::tool
