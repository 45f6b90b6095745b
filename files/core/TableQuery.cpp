#include "files/core/TableQuery.h"

#include "framework/core/AsciiText.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace vorn
{
bool TableQuery::Matches(std::string_view text) const
{
    if (text.size() != static_cast<std::size_t>(value.GetLength()))
        return false;
    if (isCaseSensitive)
        return text == std::string_view(value.GetString(), text.size());
    return std::equal(text.begin(), text.end(), value.GetString(),
                      [](char a, char b)
                      {
                          return ToLowerAscii(a) == ToLowerAscii(b);
                      });
}

int NumberOf(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.empty() || text.front() < '0' || text.front() > '9')
        return 0;
    long long number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc::result_out_of_range)
        number = std::numeric_limits<long long>::max();
    number = isNegative ? -number : number;
    return static_cast<int>(
        std::clamp<long long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}
} // namespace vorn
