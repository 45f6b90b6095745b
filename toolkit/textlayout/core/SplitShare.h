#pragma once

#include <optional>
#include <string_view>

namespace vorn
{

/// How a box is divided in two.
struct SplitShare
{
    bool sideBySide = false; ///< its width, otherwise its height
    int number = 0;          ///< of the first part: units, or percent
    bool percent = false;
    bool bounded = false;
    int least = 0; ///< of a bounded share
};

/// Reads "40%|", "-34", "|30%>100" and the like: a "|" makes it side by side, else a "-" stacked; the first digits are
/// the number, those behind a ">" the least. Nothing without "|" and "-".
std::optional<SplitShare> ReadSplitShare(std::string_view text);

/// What the first part gets of an extent.
int FirstPartOf(const SplitShare& share, int extent);

} // namespace vorn
