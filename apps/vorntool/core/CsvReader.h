#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace vorn::tool
{

/// Reads comma-separated values (RFC 4180) row by row, from a source of any size.
///
/// Legal: values with or without quotes, a quote within quotes doubled, line ends and commas within quotes; lines that
/// end in CR LF, LF or CR, the last one also without an end; a UTF-8 byte order mark before everything. Empty lines are
/// no rows. Illegal: a quote within a value that does not begin with one, anything but a comma or a line end after a
/// closing quote, a quote that is never closed. Bytes are not looked at otherwise.
class CsvReader
{
public:
    /// Fills the span and returns how many bytes it put there; 0 at the end.
    using Source = std::function<std::size_t(std::span<char>)>;

    explicit CsvReader(Source source);

    /// Reads the next row; the strings of @p row are used again.
    /// @return false at the end, and where the text is no CSV: then Error() says why
    bool Next(std::vector<std::string>& row);

    /// Why reading ended early, with the number of the line; empty while all is well.
    const std::string& Error() const
    {
        return m_error;
    }

    /// The line in which the row read last begins, from 1.
    std::size_t Line() const
    {
        return m_rowLine;
    }

private:
    static constexpr int kEnd = -1;

    int Peek();
    int Take();
    bool Refill();
    void SkipByteOrderMark();
    void TakeLineEnd(int first);
    void SkipEmptyLines();
    bool TakeValue(std::string& value);
    bool TakeQuoted(std::string& value);
    bool TakePlain(std::string& value);
    bool Fail(std::size_t line, const char* reason);

    Source m_source;
    std::vector<char> m_buffer;
    std::size_t m_next = 0;
    std::size_t m_filled = 0;
    std::size_t m_line = 1;
    std::size_t m_rowLine = 0;
    bool m_begun = false;
    std::string m_error;
};

} // namespace vorn::tool
