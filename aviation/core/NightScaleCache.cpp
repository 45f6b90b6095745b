#include "aviation/core/NightScaleCache.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace vorn
{

double NightScaleOf(const char* stored)
{
    std::string_view text(stored);
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (text.starts_with('+') && !text.starts_with("+-"))
    {
        text.remove_prefix(1);
    }
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc() && std::isfinite(value) ? value : 0;
}

} // namespace vorn
