#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorn
{

/// How the cells of a column stand in it.
enum class Align
{
    Left,
    Right,
};

/// What a row says beyond its words: the view paints it so, the text form marks nothing.
enum class Tone
{
    Plain,
    Good,   ///< present, valid
    Muted,  ///< absent, a default
    Accent, ///< the user's own choice
};

struct ReportColumn
{
    std::string title;
    Align align = Align::Left;
};

struct ReportRow
{
    std::vector<std::string> cells; ///< one a column; missing ones are empty
    Tone tone = Tone::Plain;
    bool heading = false;                    ///< the first cell alone, over the rows that follow
    std::optional<std::uint32_t> color = {}; ///< of all cells but the first, 0x00BBGGRR; instead of the tone's
};

/// A titled table, the common form of what the sample shows on the screen and prints as its summary.
/// All texts are in code page 1252, as the library hands them out.
struct ReportTable
{
    std::string title;
    std::string note; ///< one line under the title; may be empty
    std::vector<ReportColumn> columns;
    std::vector<ReportRow> rows;

    void AddHeading(std::string text);
    void AddRow(std::vector<std::string> cells, Tone tone = Tone::Plain);
    void AddColored(std::vector<std::string> cells, std::uint32_t color);
};

/// The table as lines of text: columns as wide as their widest cell, two blanks between them, no trailing blanks.
std::string ToText(const ReportTable& table);

/// Code page 1252 as UTF-8. The five bytes without a character there become U+FFFD.
std::string Utf8FromCodePage1252(std::string_view text);

} // namespace vorn
