#include "toolkit/textlayout/core/FontSearch.h"

#include "toolkit/textlayout/core/LayoutNumber.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <algorithm>

namespace vorn
{

namespace
{
/// The width of a letter to its font's height, in most texts and faces.
constexpr double kUsualWidth = 0.45;

/// So often do guesses turn the search round before it only halves the range.
constexpr int kMostTurns = 4;

std::size_t LongestOf(const std::vector<std::string>& lines)
{
    const auto longest = std::ranges::max_element(lines, {}, &std::string::size);
    return static_cast<std::size_t>(longest - lines.begin());
}

/// The height at which what has a size at this one has that of the space; none at all when it has no size.
std::int64_t InProportion(int height, int space, std::int64_t size)
{
    return size > 0 ? std::int64_t{height} * space / size : kLargestFontHeight;
}
} // namespace

FontSearch::FontSearch(const std::vector<std::string>& lines, const TextSpace& space, TextMeasure& measure)
    : m_lines(lines), m_space(space), m_measure(measure), m_fits(space.minFontHeight - 1),
      m_tooLarge(std::max(space.maxFontHeight, m_fits) + 1), m_widest(LongestOf(lines))
{
}

int FontSearch::Run()
{
    if (IsSettled())
    {
        return 0;
    }
    for (int height = Start(); !m_failed && !IsSettled() && !IsFilled(); height = Next())
    {
        Try(height);
    }
    return !m_failed && HasFit() ? m_fits : 0;
}

bool FontSearch::Failed() const
{
    return m_failed;
}

int FontSearch::Width() const
{
    return m_fitWidth;
}

int FontSearch::Height() const
{
    return ClampToInt(m_fitHeight);
}

int FontSearch::Start() const
{
    if (m_space.imposedFontHeight)
    {
        return *m_space.imposedFontHeight;
    }
    const double lineShare = static_cast<double>(m_lines.size()) * (100.0 + m_space.spacing);
    const double byHeight = m_space.maxHeight * 100.0 / lineShare;
    const double letters = std::max(static_cast<double>(m_lines[m_widest].size()), 1.0);
    const double byWidth = m_space.maxWidth / (letters * kUsualWidth);
    return std::clamp(ClampToInt(std::min(byHeight, byWidth) + 0.5), m_fits + 1, m_tooLarge - 1);
}

/// Where the guess is, but at least a step on.
int FontSearch::Next()
{
    const int lowest = m_fits + 1;
    const int highest = m_tooLarge - 1;
    if (lowest >= highest || m_turns > kMostTurns)
    {
        return lowest + (highest - lowest) / 2;
    }
    const int direction = m_tried == m_fits ? 1 : -1;
    const std::int64_t step = std::int64_t{1} << m_steps++ / 2;
    const std::int64_t guessed = (Guess() - m_tried) * direction;
    return static_cast<int>(std::clamp<std::int64_t>(m_tried + direction * std::max(guessed, step), lowest, highest));
}

std::int64_t FontSearch::Guess() const
{
    return std::min(InProportion(m_tried, m_space.maxHeight, m_height),
                    InProportion(m_tried, m_space.maxWidth, m_width));
}

void FontSearch::Try(int height)
{
    if (!m_measure.UseFont(height))
    {
        m_failed = true;
        return;
    }
    const bool fits = MeasureLines(height);
    if (m_tried != 0 && fits != (m_tried == m_fits))
    {
        ++m_turns;
        m_steps = 0;
    }
    m_tried = height;
    (fits ? m_fits : m_tooLarge) = height;
    if (fits)
    {
        m_fitWidth = m_width;
        m_fitHeight = m_height;
    }
}

/// Whether they fit. The first time all are measured to tell which is the widest, later only until one is too wide.
bool FontSearch::MeasureLines(int height)
{
    m_height = static_cast<std::int64_t>(LineAdvance(m_measure.LineHeight(), m_space.spacing)) *
               static_cast<std::int64_t>(m_lines.size());
    m_width = 0;
    if (m_height > m_space.maxHeight)
    {
        return false;
    }
    m_width = m_measure.LineWidth(m_lines[m_widest]);
    const bool isWhole = !m_isWidestKnown && height > m_space.minFontHeight;
    const std::size_t first = m_widest;
    for (std::size_t i = 0; i < m_lines.size() && (isWhole || m_width <= m_space.maxWidth); ++i)
    {
        const int width = i == first ? m_width : m_measure.LineWidth(m_lines[i]);
        m_widest = width > m_width ? i : m_widest;
        m_width = std::max(m_width, width);
    }
    m_isWidestKnown = m_isWidestKnown || isWhole;
    return m_width <= m_space.maxWidth;
}

bool FontSearch::HasFit() const
{
    return m_fits >= m_space.minFontHeight;
}

bool FontSearch::IsFilled() const
{
    return HasFit() && m_fitHeight >= m_space.maxHeight;
}

bool FontSearch::IsSettled() const
{
    return m_fits + 1 >= m_tooLarge;
}

} // namespace vorn
