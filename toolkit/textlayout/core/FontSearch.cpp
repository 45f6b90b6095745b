#include "toolkit/textlayout/core/FontSearch.h"

#include "toolkit/textlayout/core/LayoutNumber.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <algorithm>
#include <climits>

namespace vorn
{

namespace
{
/// Widths do not grow quite evenly with the height: so much above the estimate the search comes from above.
constexpr int kAboveEstimate = 2;

int ShrunkStep(int step)
{
    constexpr int kFineSteps = 16;
    return step >= kFineSteps ? ClampToInt(step * 2.0 / 3 + 0.5) : std::max(step - 1, 0);
}
} // namespace

FontSearch::FontSearch(const std::vector<std::string>& lines, const TextSpace& space, TextMeasure& measure)
    : m_lines(lines), m_space(space), m_measure(measure), m_tooLarge(std::max(space.maxFontHeight, 0) + 1)
{
}

int FontSearch::Run()
{
    const int lowest = m_space.minFontHeight;
    if (m_space.maxFontHeight < lowest)
    {
        return 0;
    }
    int height = std::max(Start(), lowest);
    int step = ClampToInt(static_cast<std::int64_t>(m_lines.size()));
    while (!m_failed && !IsSettled())
    {
        if (Fits(height))
        {
            if (step == 0 || !HasRoom(height))
            {
                break;
            }
            height = AddClamped(height, step);
        }
        else
        {
            if (height <= lowest)
            {
                break;
            }
            height -= std::clamp(step, 1, height - lowest);
        }
        step = ShrunkStep(step);
    }
    return m_failed ? 0 : m_fits;
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

int FontSearch::Start()
{
    if (m_space.imposedFontHeight)
    {
        return *m_space.imposedFontHeight;
    }
    const double lineShare = static_cast<double>(m_lines.size()) * (100.0 + m_space.spacing);
    const double byHeight = m_space.maxHeight * 100.0 / lineShare;
    const int height = EstimatedHeight(byHeight);
    if (height < m_space.minFontHeight)
    {
        return height;
    }
    const int probe = std::min(height, m_space.maxFontHeight);
    Fits(probe, Extent::Whole);
    if (m_width <= m_space.maxWidth)
    {
        return height;
    }
    return EstimatedHeight(static_cast<double>(probe) * m_space.maxWidth / m_width + kAboveEstimate);
}

int FontSearch::EstimatedHeight(double height) const
{
    return std::clamp(ClampToInt(height + 0.5), 1, m_space.maxFontHeight + 1);
}

bool FontSearch::Fits(int height, Extent extent)
{
    if (height >= m_tooLarge || height <= m_fits)
    {
        return height <= m_fits;
    }
    if (!m_measure.UseFont(height))
    {
        m_failed = true;
        return false;
    }
    if (MeasureLines(extent))
    {
        m_fits = height;
        m_fitWidth = m_width;
        m_fitHeight = m_height;
        return true;
    }
    m_tooLarge = height;
    return false;
}

bool FontSearch::MeasureLines(Extent extent)
{
    const bool whole = extent == Extent::Whole;
    const std::int64_t advance = LineAdvance(m_measure.LineHeight(), m_space.spacing);
    m_height = advance * static_cast<std::int64_t>(m_lines.size());
    bool fits = m_height <= m_space.maxHeight;
    m_width = fits || whole ? m_measure.LineWidth(m_lines[m_widest]) : 0;
    fits = fits && m_width <= m_space.maxWidth;
    for (std::size_t i = 0; i < m_lines.size() && (fits || whole); ++i)
    {
        const int width = i == m_widest ? m_width : m_measure.LineWidth(m_lines[i]);
        if (width > m_width)
        {
            m_width = width;
            m_widest = i;
        }
        fits = fits && width <= m_space.maxWidth;
    }
    return fits;
}

bool FontSearch::HasRoom(int height) const
{
    return height < m_fits || (m_fitWidth < m_space.maxWidth && m_fitHeight < m_space.maxHeight);
}

bool FontSearch::IsSettled() const
{
    return m_fits + 1 >= m_tooLarge;
}

} // namespace vorn
