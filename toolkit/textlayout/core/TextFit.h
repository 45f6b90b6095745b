#pragma once

#include "toolkit/textlayout/core/TextMeasure.h"

#include <optional>
#include <string>
#include <string_view>

/// @file
/// The font height with which a text fills its space.
namespace vorn
{

inline constexpr int kLargestFontHeight = 9999;

struct TextSpace
{
    int maxWidth = 0;
    int maxHeight = 0;
    int minFontHeight = 9;
    int maxFontHeight = 999;
    int spacing = 0; ///< extra space between lines, in percent of their height
    /// Where the search begins, and the most it may find; without it an estimate is made.
    std::optional<int> imposedFontHeight;
};

struct FittedText
{
    int fontHeight = 0;
    int width = 0;
    int height = 0;
    /// What is left of a text that had to be cut.
    std::optional<std::string> cut;
};

/// Searches the largest font height within the bounds with which the text is no wider and no higher than its space.
/// When there is none, the smallest font is taken and the text is cut. The smallest height is taken as within 1 and
/// 999, the largest as no more than 9999, the spacing as no less than -99. Nothing when a font cannot be had.
std::optional<FittedText> FitText(std::string_view text, const TextSpace& space, TextMeasure& measure);

} // namespace vorn
