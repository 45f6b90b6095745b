#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorn::tool
{

/// Writes comma-separated values (RFC 4180). A value stands in quotes only where it must: with a comma, a quote or a
/// line end in it, and where a reader would take it for something else (a byte order mark, an empty line).
class CsvWriter
{
public:
    /// @param lineEnd  what ends a row; the RFC asks for CR LF
    explicit CsvWriter(std::string_view lineEnd = "\r\n") : m_lineEnd(lineEnd)
    {
    }

    void Value(std::string_view value);
    void EndRow();

    /// What was written so far, for the caller to take away between rows.
    std::string& Text()
    {
        return m_text;
    }

private:
    void Quote(std::string_view value);

    std::string m_text;
    std::string m_lineEnd;
    std::size_t m_column = 0;
    bool m_rowIsEmpty = true;
};

} // namespace vorn::tool
