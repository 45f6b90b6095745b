#include "apps/vorntool/core/ChartWords.h"

#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <cmath>

namespace vorn::tool
{

namespace
{

constexpr int kSmallestSide = 16;
constexpr int kLargestSide = 8192;

char Lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool BeginsWith(std::string_view text, std::string_view beginning)
{
    return text.size() >= beginning.size() && std::equal(beginning.begin(), beginning.end(), text.begin(),
                                                         [](char first, char second)
                                                         {
                                                             return Lower(first) == Lower(second);
                                                         });
}

std::optional<int> SideIn(std::string_view text)
{
    const std::optional<std::int64_t> side = ParseWhole(text);
    if (!side || *side < kSmallestSide || *side > kLargestSide)
        return std::nullopt;
    return static_cast<int>(*side);
}

} // namespace

std::optional<PictureSize> ParseSize(std::string_view text)
{
    const std::size_t cross = text.find_first_of("xX");
    if (cross == std::string_view::npos)
        return std::nullopt;
    const std::optional<int> width = SideIn(text.substr(0, cross));
    const std::optional<int> height = SideIn(text.substr(cross + 1));
    if (!width || !height)
        return std::nullopt;
    return PictureSize{*width, *height};
}

std::optional<ChartPlace> ParsePlace(std::string_view text)
{
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos)
        return std::nullopt;
    const std::optional<double> latitude = ParseNumber(text.substr(0, comma));
    const std::optional<double> longitude = ParseNumber(text.substr(comma + 1));
    if (!latitude || !longitude || std::abs(*latitude) > 90 || std::abs(*longitude) > 180)
        return std::nullopt;
    return ChartPlace{*latitude, *longitude};
}

std::optional<double> ParseScale(std::string_view text)
{
    if (BeginsWith(text, "1:"))
        text.remove_prefix(2);
    const std::optional<double> scale = ParseNumber(text);
    return scale && *scale > 0 ? scale : std::nullopt;
}

std::optional<int> ProjectionNamed(std::string_view word, const std::vector<std::string>& names)
{
    const int count = static_cast<int>(names.size());
    if (const std::optional<std::int64_t> number = ParseWhole(word))
        return *number >= 0 && *number < count ? std::optional(static_cast<int>(*number)) : std::nullopt;
    std::optional<int> found;
    for (int i = 0; i < count; ++i)
    {
        const std::string& name = names[static_cast<std::size_t>(i)];
        if (word.empty() || !BeginsWith(name, word))
            continue;
        if (name.size() == word.size())
            return i;
        if (found)
            return std::nullopt;
        found = i;
    }
    return found;
}

} // namespace vorn::tool
