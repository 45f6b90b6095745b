#include "framework/app/core/ProfileBinary.h"

namespace vorn
{

namespace
{

constexpr int kBad = -1;

int HalfOf(char letter)
{
    return letter >= 'A' && letter <= 'P' ? letter - 'A' : kBad;
}

} // namespace

std::string EncodeProfileBinary(std::span<const std::uint8_t> bytes)
{
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const std::uint8_t byte : bytes)
    {
        text += static_cast<char>('A' + (byte & 0x0F));
        text += static_cast<char>('A' + (byte >> 4));
    }
    return text;
}

bool DecodeProfileBinary(std::string_view text, std::vector<std::uint8_t>& bytes)
{
    bytes.clear();
    if (text.size() % 2 != 0)
    {
        return false;
    }
    std::vector<std::uint8_t> decoded;
    decoded.reserve(text.size() / 2);
    for (std::size_t i = 0; i < text.size(); i += 2)
    {
        const int low = HalfOf(text[i]);
        const int high = HalfOf(text[i + 1]);
        if (low == kBad || high == kBad)
        {
            return false;
        }
        decoded.push_back(static_cast<std::uint8_t>(low | high << 4));
    }
    bytes.swap(decoded);
    return true;
}

} // namespace vorn
