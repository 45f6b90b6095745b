#include "apps/sample/core/ReportTable.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vorn
{

namespace
{

constexpr std::string_view kIndent = "  ";
constexpr std::string_view kGap = "  ";

const std::string& CellOf(const ReportRow& row, std::size_t column)
{
    static const std::string empty;
    return column < row.cells.size() ? row.cells[column] : empty;
}

std::vector<std::size_t> ColumnWidths(const ReportTable& table)
{
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < table.columns.size(); ++column)
    {
        std::size_t width = table.columns[column].title.size();
        for (const ReportRow& row : table.rows)
        {
            if (!row.heading)
                width = std::max(width, CellOf(row, column).size());
        }
        widths.push_back(width);
    }
    return widths;
}

void AppendCell(std::string& line, std::string_view cell, std::size_t width, Align align)
{
    const std::string padding(width - std::min(width, cell.size()), ' ');
    if (align == Align::Right)
        line.append(padding).append(cell);
    else
        line.append(cell).append(padding);
}

void EndLine(std::string& text, std::string line)
{
    line.erase(line.find_last_not_of(' ') + 1);
    text.append(line).push_back('\n');
}

std::string TitleLine(const ReportTable& table, const std::vector<std::size_t>& widths)
{
    std::string line(kIndent);
    for (std::size_t column = 0; column < table.columns.size(); ++column)
    {
        AppendCell(line, table.columns[column].title, widths[column], table.columns[column].align);
        line.append(kGap);
    }
    return line;
}

std::string RowLine(const ReportTable& table, const ReportRow& row, const std::vector<std::size_t>& widths)
{
    std::string line(kIndent);
    if (row.heading)
        return line.append(CellOf(row, 0));
    for (std::size_t column = 0; column < table.columns.size(); ++column)
    {
        AppendCell(line, CellOf(row, column), widths[column], table.columns[column].align);
        line.append(kGap);
    }
    return line;
}

// Code points of the bytes 0x80 to 0x9F; 0xFFFD where the code page has no character.
constexpr std::array<unsigned, 32> kUpperControls = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178,
};

void AppendUtf8(std::string& out, unsigned codePoint)
{
    if (codePoint < 0x80)
    {
        out.push_back(static_cast<char>(codePoint));
        return;
    }
    if (codePoint < 0x800)
    {
        out.push_back(static_cast<char>(0xC0u | (codePoint >> 6)));
    }
    else
    {
        out.push_back(static_cast<char>(0xE0u | (codePoint >> 12)));
        out.push_back(static_cast<char>(0x80u | ((codePoint >> 6) & 0x3Fu)));
    }
    out.push_back(static_cast<char>(0x80u | (codePoint & 0x3Fu)));
}

} // namespace

void ReportTable::AddHeading(std::string text)
{
    rows.push_back({{std::move(text)}, Tone::Plain, true, {}});
}

void ReportTable::AddRow(std::vector<std::string> cells, Tone tone)
{
    rows.push_back({std::move(cells), tone, false, {}});
}

void ReportTable::AddColored(std::vector<std::string> cells, std::uint32_t color)
{
    rows.push_back({std::move(cells), Tone::Plain, false, color});
}

std::string ToText(const ReportTable& table)
{
    const std::vector<std::size_t> widths = ColumnWidths(table);
    std::string text = table.title;
    if (!table.note.empty())
        text.append(" - ").append(table.note);
    text.push_back('\n');
    EndLine(text, TitleLine(table, widths));
    for (const ReportRow& row : table.rows)
        EndLine(text, RowLine(table, row, widths));
    return text;
}

std::string Utf8FromCodePage1252(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (const char c : text)
    {
        const unsigned byte = static_cast<unsigned char>(c);
        AppendUtf8(out, byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80] : byte);
    }
    return out;
}

} // namespace vorn
