#include "toolkit/textlayout/core/TextFit.h"

#include "toolkit/textlayout/core/FontSearch.h"
#include "toolkit/textlayout/core/LayoutNumber.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace vorn
{

namespace
{
constexpr int kLargestMinimum = 999;

TextSpace InOrder(TextSpace space)
{
    space.minFontHeight = std::clamp(space.minFontHeight, 1, kLargestMinimum);
    space.maxFontHeight = std::min(space.maxFontHeight, kLargestFontHeight);
    if (space.imposedFontHeight)
    {
        space.maxFontHeight = std::min(space.maxFontHeight, *space.imposedFontHeight);
        space.imposedFontHeight = space.maxFontHeight;
    }
    space.spacing = std::max(space.spacing, -99);
    return space;
}

/// The text at the smallest font height, cut to its space.
std::optional<FittedText> CutText(std::vector<std::string> lines, const TextSpace& space, TextMeasure& measure)
{
    if (!measure.UseFont(space.minFontHeight))
    {
        return std::nullopt;
    }
    const std::vector<std::string> whole = lines;
    const int advance = LineAdvance(measure.LineHeight(), space.spacing);
    CutToHeight(lines, advance, space.maxHeight);
    FittedText fitted;
    fitted.fontHeight = space.minFontHeight;
    fitted.height = ClampToInt(static_cast<std::int64_t>(advance) * static_cast<std::int64_t>(lines.size()));
    for (std::string& line : lines)
    {
        fitted.width = std::max(fitted.width, ShortenToWidth(line, space.maxWidth, measure));
    }
    if (lines != whole)
    {
        fitted.cut = JoinLines(lines);
    }
    return fitted;
}
} // namespace

std::optional<FittedText> FitText(std::string_view text, const TextSpace& space, TextMeasure& measure)
{
    std::vector<std::string> lines = TextLines(text);
    const TextSpace ordered = InOrder(space);
    FontSearch search(lines, ordered, measure);
    const int height = search.Run();
    if (search.Failed())
    {
        return std::nullopt;
    }
    if (height == 0)
    {
        return CutText(std::move(lines), ordered, measure);
    }
    return FittedText{height, search.Width(), search.Height(), std::nullopt};
}

} // namespace vorn
