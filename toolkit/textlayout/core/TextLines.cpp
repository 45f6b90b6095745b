#include "toolkit/textlayout/core/TextLines.h"

#include "toolkit/textlayout/core/LayoutNumber.h"

#include <algorithm>
#include <cstdint>

namespace vorn
{

namespace
{
constexpr std::size_t kCutCharacters = 6;
constexpr std::string_view kDots = "...";
constexpr std::string_view kClosingBegin = "...(";
constexpr std::string_view kBlanks = " \t";

std::string ClosingLine(std::size_t hidden)
{
    return std::string(kClosingBegin).append(std::to_string(hidden)).append(1, ')');
}

bool IsClosingLine(std::string_view line)
{
    if (!line.starts_with(kClosingBegin) || !line.ends_with(')'))
    {
        return false;
    }
    line.remove_prefix(kClosingBegin.size());
    line.remove_suffix(1);
    return !line.empty() && line.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Length of the part before `end` without blanks at its end.
std::size_t LengthWithoutBlanks(std::string_view line, std::size_t end)
{
    return line.substr(0, end).find_last_not_of(kBlanks) + 1;
}

std::string Dotted(std::string_view line, std::size_t kept)
{
    return std::string(line.substr(0, kept)).append(kDots);
}

/// How many characters of the line stay before the dots after one cut, after two, and so on.
std::vector<std::size_t> CutLengths(std::string_view line)
{
    std::vector<std::size_t> lengths;
    const std::size_t unmarked = kCutCharacters - kDots.size();
    for (std::size_t cut = kCutCharacters, kept = line.size(); kept > cut; cut = unmarked)
    {
        kept = LengthWithoutBlanks(line, kept - cut);
        lengths.push_back(kept);
    }
    return lengths;
}

void RemoveLastLine(std::string& text)
{
    const std::size_t end = text.rfind('\n');
    text.resize(end == std::string::npos ? 0 : end);
}
} // namespace

TextMeasure::~TextMeasure() = default;

std::vector<std::string> TextLines(std::string_view text)
{
    std::vector<std::string> lines(1);
    for (const char character : text)
    {
        if (character == '\n')
        {
            lines.emplace_back();
        }
        else if (character != '\r')
        {
            lines.back() += character == '\t' ? ' ' : character;
        }
    }
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
    {
        text.append(&line == lines.data() ? "" : "\n").append(line);
    }
    return text;
}

int LineAdvance(int lineHeight, int spacing)
{
    return ClampToInt(static_cast<std::int64_t>(lineHeight) * (100 + std::int64_t{std::max(spacing, -99)}) / 100);
}

void ShortenLine(std::string& line)
{
    if (line.size() >= kShortestCutLine)
    {
        line = Dotted(line, LengthWithoutBlanks(line, line.size() - kCutCharacters));
    }
}

int ShortenToWidth(std::string& line, int maxWidth, TextMeasure& measure)
{
    const int width = measure.LineWidth(line);
    if (width <= maxWidth || line.size() < kShortestCutLine)
    {
        return width;
    }
    const std::vector<std::size_t> lengths = CutLengths(line);
    const auto tooWide = [&](std::size_t kept)
    {
        return measure.LineWidth(Dotted(line, kept)) > maxWidth;
    };
    const auto fitting = std::partition_point(lengths.begin(), lengths.end() - 1, tooWide);
    line = Dotted(line, *fitting);
    return measure.LineWidth(line);
}

void RemoveLine(std::string& text, int hidden)
{
    const std::size_t last = text.rfind('\n') + 1;
    if (last != 0 && IsClosingLine(std::string_view(text).substr(last)))
    {
        RemoveLastLine(text);
    }
    RemoveLastLine(text);
    text.append(text.empty() ? "" : "\n").append(ClosingLine(static_cast<std::size_t>(std::max(hidden, 0))));
}

void CutToHeight(std::vector<std::string>& lines, int advance, int maxHeight)
{
    if (advance <= 0 && maxHeight >= 0)
    {
        return;
    }
    const int fitting = advance > 0 ? maxHeight / advance : 0;
    const auto kept = static_cast<std::size_t>(std::max(fitting, kFewestLines));
    if (kept < lines.size())
    {
        const std::size_t hidden = lines.size() - (kept - 1);
        lines.resize(kept - 1);
        lines.push_back(ClosingLine(hidden));
    }
}

} // namespace vorn
