#include "apps/vorntool/core/DbfGrid.h"

#include "apps/vorntool/core/Utf8.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

// Bytes of the first @p count characters.
std::size_t BytesOf(std::string_view text, std::size_t count)
{
    std::size_t bytes = 0;
    for (; bytes < text.size(); ++bytes)
    {
        const bool begins = (static_cast<unsigned char>(text[bytes]) & 0xC0) != 0x80;
        if (begins && count-- == 0)
        {
            break;
        }
    }
    return bytes;
}

} // namespace

std::string Shown(std::string_view value)
{
    std::string line = OneLine(value);
    if (CharacterCount(line) > DbfGrid::kWidest)
    {
        line.resize(BytesOf(line, DbfGrid::kWidest - 3));
        line += "...";
    }
    return line;
}

void DbfGrid::AddColumn(std::string heading, bool atTheRight)
{
    std::string shown = Shown(heading);
    const std::size_t width = CharacterCount(shown);
    m_columns.push_back({std::move(shown), atTheRight, width});
}

void DbfGrid::Measure(const std::vector<std::string>& row)
{
    const std::size_t count = std::min(row.size(), m_columns.size());
    for (std::size_t i = 0; i < count; ++i)
    {
        m_columns[i].width = std::max(m_columns[i].width, CharacterCount(Shown(row[i])));
    }
}

std::string DbfGrid::Headings() const
{
    std::vector<std::string> row;
    for (const Column& column : m_columns)
    {
        row.push_back(column.heading);
    }
    return Line(row);
}

std::string DbfGrid::Line(const std::vector<std::string>& row) const
{
    std::string line;
    const std::size_t count = std::min(row.size(), m_columns.size());
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::string value = Shown(row[i]);
        const std::size_t length = CharacterCount(value);
        const std::string blanks(m_columns[i].width > length ? m_columns[i].width - length : 0, ' ');
        line += (i == 0 ? "" : "  ") + (m_columns[i].atTheRight ? blanks + value : value + blanks);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

} // namespace vorn::tool
