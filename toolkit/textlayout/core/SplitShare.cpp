#include "toolkit/textlayout/core/SplitShare.h"

#include "toolkit/textlayout/core/LayoutNumber.h"

#include <algorithm>
#include <string>

namespace vorn
{

namespace
{
constexpr std::string_view kDigits = "0123456789";

int FirstNumber(std::string_view text)
{
    const std::size_t begin = std::min(text.find_first_of(kDigits), text.size());
    const std::size_t end = std::min(text.find_first_not_of(kDigits, begin), text.size());
    return ReadLayoutNumber(std::string(text.substr(begin, end - begin)).c_str());
}

bool Contains(std::string_view text, char mark)
{
    return text.find(mark) != std::string_view::npos;
}
} // namespace

std::optional<SplitShare> ReadSplitShare(std::string_view text)
{
    const bool sideBySide = Contains(text, '|');
    if (!sideBySide && !Contains(text, '-'))
    {
        return std::nullopt;
    }
    const std::size_t bound = text.find('>');
    const std::string_view size = text.substr(0, bound);
    SplitShare share;
    share.sideBySide = sideBySide;
    share.number = FirstNumber(size);
    share.percent = Contains(size, '%');
    share.bounded = bound != std::string_view::npos;
    share.least = share.bounded ? FirstNumber(text.substr(bound)) : 0;
    return share;
}

int FirstPartOf(const SplitShare& share, int extent)
{
    int size = share.percent ? ClampToInt(share.number / 100.0 * extent + 0.5) : share.number;
    if (share.bounded)
    {
        size = std::min(std::max(share.least, size), extent);
    }
    return size == 0 ? extent : size;
}

} // namespace vorn
