#pragma once

#include "toolkit/textlayout/core/TextMeasure.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vorn
{

/// The lines of a text, parted by "\n", as they are shown: without "\r", with blanks for tabs. At least one.
std::vector<std::string> TextLines(std::string_view text);
std::string JoinLines(const std::vector<std::string>& lines);

/// The height that a line takes with extra spacing in percent of it. Spacing below -99 counts as -99.
int LineAdvance(int lineHeight, int spacing);

inline constexpr std::size_t kShortestCutLine = 7;
inline constexpr int kFewestLines = 3;

/// Cuts off the last 6 characters and the blanks before them, and appends "..."; shorter lines stay.
void ShortenLine(std::string& line);

/// Shortens a line as often as needed to be no wider than the space, or until it cannot be shortened.
/// @return its width.
int ShortenToWidth(std::string& line, int maxWidth, TextMeasure& measure);

/// Takes the last line away, and the closing line behind it if there is one, and closes with "...(hidden)".
void RemoveLine(std::string& text, int hidden);

/// Cuts lines from the end as often as needed for `advance` times their number to be no more than the height, or until
/// 3 are left, and closes with the number of lines that went.
void CutToHeight(std::vector<std::string>& lines, int advance, int maxHeight);

} // namespace vorn
