#pragma once

#include "toolkit/textlayout/core/TextFit.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vorn
{

/// The search for a font height: up and down in steps that shrink, until the text fits.
///
/// What is known of other heights is not measured again: above a height that was too large all are, and below one that
/// fitted all fit.
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
    /// How much of a text that is too large is measured.
    enum class Extent
    {
        UntilTooLarge,
        Whole
    };

    int Start();
    int EstimatedHeight(double height) const;
    bool Fits(int height, Extent extent = Extent::UntilTooLarge);
    bool MeasureLines(Extent extent);
    bool HasRoom(int height) const;
    bool IsSettled() const;

    const std::vector<std::string>& m_lines;
    const TextSpace& m_space;
    TextMeasure& m_measure;
    int m_fits = 0;     ///< the largest height known to fit
    int m_tooLarge;     ///< the smallest height known not to
    int m_fitWidth = 0; ///< size at m_fits
    std::int64_t m_fitHeight = 0;
    int m_width = 0; ///< size last measured
    std::int64_t m_height = 0;
    std::size_t m_widest = 0; ///< index of the line that was the widest
    bool m_failed = false;
};

} // namespace vorn
