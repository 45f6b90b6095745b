#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// What the words of a command say about a chart and its picture.
namespace vorn::tool
{

struct PictureSize
{
    int width;
    int height;
};

/// "1200x900"; from 16 to 8192 pixels each.
std::optional<PictureSize> ParseSize(std::string_view text);

struct ChartPlace
{
    double latitude;
    double longitude;
};

/// "47.5,-122.3": degrees, latitudes within 90 and longitudes within 180.
std::optional<ChartPlace> ParsePlace(std::string_view text);

/// The N of 1:N: "1000000", "1:1000000" or "1e6"; above 0.
std::optional<double> ParseScale(std::string_view text);

/// The number of a projection: the number itself, the name in either case, or a beginning that only one name has.
std::optional<int> ProjectionNamed(std::string_view word, const std::vector<std::string>& names);

} // namespace vorn::tool
