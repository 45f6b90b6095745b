#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vorn::tool
{

/// Rows of values under headings, lined up for reading. All values are measured first, then written row by row, so that
/// tables of any length need no memory of their own. Text is UTF-8.
class DbfGrid
{
public:
    /// Values longer than this end in "...".
    static constexpr std::size_t kWidest = 40;

    void AddColumn(std::string heading, bool atTheRight);
    void Measure(const std::vector<std::string>& row);

    std::string Headings() const;
    std::string Line(const std::vector<std::string>& row) const;

private:
    struct Column
    {
        std::string heading;
        bool atTheRight;
        std::size_t width;
    };

    std::vector<Column> m_columns;
};

/// A value on one line, cut to the widest that a grid shows.
std::string Shown(std::string_view value);

} // namespace vorn::tool
