#pragma once

#include "toolkit/textlayout/core/TextFit.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vorn
{

/// The search for the largest font height at which a text fits, in as few fonts as possible: to make one and to measure
/// its letters for the first time is what the search costs.
///
/// Each font that was measured tells about how high the fitting one is: widths and heights grow nearly evenly. It ends
/// at a height that fits when the next one does not, or when the lines fill the height of the space.
class FontSearch
{
public:
    /// The arguments live as long as the search; the smallest height of `space` is at least 1.
    FontSearch(const std::vector<std::string>& lines, const TextSpace& space, TextMeasure& measure);

    /// @return the height found; 0 when the text does not fit at any, or a font could not be had.
    int Run();
    bool Failed() const;
    /// The size of the text at the height found.
    int Width() const;
    int Height() const;

private:
    int Start() const;
    int Next();
    std::int64_t Guess() const;
    void Try(int height);
    bool MeasureLines(int height);
    bool HasFit() const;
    bool IsFilled() const;
    bool IsSettled() const;

    const std::vector<std::string>& m_lines;
    const TextSpace& m_space;
    TextMeasure& m_measure;
    int m_fits;         ///< the largest height known to fit; below the smallest one as long as there is none
    int m_tooLarge;     ///< the smallest height known not to
    int m_fitWidth = 0; ///< size at m_fits
    std::int64_t m_fitHeight = 0;
    int m_tried = 0; ///< the height last measured
    int m_width = 0; ///< what was measured of the widest line; 0 where the lines are too high
    std::int64_t m_height = 0;
    int m_steps = 0;      ///< how often it went on in the same direction: each two make the least step longer
    int m_turns = 0;      ///< how often the direction changed
    std::size_t m_widest; ///< index of the longest line, then of the widest
    bool m_isWidestKnown = false;
    bool m_failed = false;
};

} // namespace vorn
