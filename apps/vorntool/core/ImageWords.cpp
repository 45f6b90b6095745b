#include "apps/vorntool/core/ImageWords.h"

#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace vorn::tool
{

namespace
{

struct Mark
{
    std::string_view bytes;
    std::string_view name;
};

// In the order in which the library looks for them.
constexpr Mark kMarks[] = {{"BM", "BMP"},     {"\n", "PCX"},      {"GIF87a", "GIF"},
                           {"GIF89a", "GIF"}, {"\x89PNG", "PNG"}, {"\xFF\xD8", "JPEG"}};

struct Ending
{
    std::string_view text;
    ImageKind kind;
};

constexpr Ending kEndings[] = {
    {".bmp", ImageKind::Bmp}, {".png", ImageKind::Png}, {".jpg", ImageKind::Jpeg}, {".jpeg", ImageKind::Jpeg}};

std::string InLowerCase(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](char letter)
                           {
                               return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
                           });
    return lower;
}

std::optional<ImageSize> Checked(double width, double height)
{
    const auto isGood = [](double side)
    {
        return side >= 1 && side <= kMostImageSide;
    };
    if (!isGood(width) || !isGood(height))
    {
        return std::nullopt;
    }
    return ImageSize{static_cast<int>(width), static_cast<int>(height)};
}

// At least 1, to the nearest pixel.
double Part(int side, double factor)
{
    return std::max(1.0, std::floor(side * factor + 0.5));
}

std::optional<ImageSize> ParsePercent(std::string_view number, ImageSize of)
{
    const auto percent = ParseNumber(number);
    if (!percent || *percent <= 0)
    {
        return std::nullopt;
    }
    return Checked(Part(of.width, *percent / 100), Part(of.height, *percent / 100));
}

// A side; 0 for an empty text, -1 for what is none.
int ParseSide(std::string_view text)
{
    const auto side = ParseWhole(text);
    const bool isPlain = text.find_first_not_of("0123456789") == std::string_view::npos;
    if (text.empty())
    {
        return 0;
    }
    return isPlain && side && *side >= 1 && *side <= kMostImageSide ? static_cast<int>(*side) : -1;
}

} // namespace

std::string_view ImageFormatName(std::span<const unsigned char> head)
{
    const std::string_view bytes(reinterpret_cast<const char*>(head.data()), head.size());
    const auto* const found = std::ranges::find_if(kMarks,
                                                   [&](const Mark& mark)
                                                   {
                                                       return bytes.starts_with(mark.bytes);
                                                   });
    return found != std::end(kMarks) ? found->name : "unknown";
}

std::optional<ImageKind> ImageKindOf(std::string_view name)
{
    const std::string lower = InLowerCase(name);
    for (const Ending& ending : kEndings)
    {
        if (lower.ends_with(ending.text))
        {
            return ending.kind;
        }
    }
    return std::nullopt;
}

std::optional<ImageSize> ParseImageSize(std::string_view text, ImageSize of)
{
    if (text.ends_with('%'))
    {
        return ParsePercent(text.substr(0, text.size() - 1), of);
    }
    const std::size_t sign = text.find_first_of("xX");
    if (sign == std::string_view::npos)
    {
        return std::nullopt;
    }
    const int width = ParseSide(text.substr(0, sign));
    const int height = ParseSide(text.substr(sign + 1));
    if (width < 0 || height < 0 || (width == 0 && height == 0))
    {
        return std::nullopt;
    }
    return Checked(width != 0 ? width : Part(of.width, static_cast<double>(height) / of.height),
                   height != 0 ? height : Part(of.height, static_cast<double>(width) / of.width));
}

std::optional<std::uint32_t> ParseImageColor(std::string_view text)
{
    if (text.starts_with('#'))
    {
        text.remove_prefix(1);
    }
    std::uint32_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.size() != 6 || result.ec != std::errc() || result.ptr != text.data() + text.size())
    {
        return std::nullopt;
    }
    return (value & 0xFF) << 16 | (value & 0xFF00) | value >> 16;
}

} // namespace vorn::tool
