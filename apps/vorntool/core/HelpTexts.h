#pragma once

#include "apps/vorntool/core/JsonWriter.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// The help texts of the applications' controls, as the tool shows them. Text is UTF-8.
namespace vorn::tool
{

/// The ids that help texts can have.
inline constexpr int kFirstHelpId = 700;
inline constexpr int kLastHelpId = 1810;

struct HelpEntry
{
    int id = 0;
    std::string tip;  ///< beside the control; may have several lines
    std::string info; ///< of the info box; empty for none
};

/// A text taken apart: the tip up to the first carriage return, behind it the info box's text.
HelpEntry HelpEntryOf(int id, std::string_view text);

/// The number of a text: decimal digits alone, "999".
std::optional<int> ParseHelpId(std::string_view word);

/// Nothing but blanks and line breaks, or nothing at all.
bool IsBlankWord(std::string_view word);

/// Whether every word occurs in tip or info, whatever the case of ASCII letters; a line break counts as a blank.
/// Several blanks in a word are as one.
bool Matches(const HelpEntry& entry, std::span<const std::string> words);

/// "700  The display name for this view.", the tip on one line.
std::string HelpLine(const HelpEntry& entry);

/// Tip and info text as they are broken into lines, an empty line between them.
std::string HelpPage(const HelpEntry& entry);

/// {"id":700,"tip":"...","info":"..."}.
void WriteHelp(JsonWriter& json, const HelpEntry& entry);

} // namespace vorn::tool
