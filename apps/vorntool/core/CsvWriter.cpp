#include "apps/vorntool/core/CsvWriter.h"

namespace vorn::tool
{

namespace
{

bool NeedsQuotes(std::string_view value)
{
    return value.find_first_of(",\"\r\n") != std::string_view::npos || value.starts_with("\xEF\xBB\xBF");
}

} // namespace

void CsvWriter::Value(std::string_view value)
{
    if (m_column++ > 0)
    {
        m_text += ',';
    }
    m_rowIsEmpty = m_column == 1 && value.empty();
    if (NeedsQuotes(value))
    {
        Quote(value);
    }
    else
    {
        m_text += value;
    }
}

// A row of one empty value would be an empty line, which is no row.
void CsvWriter::EndRow()
{
    m_text += m_rowIsEmpty && m_column == 1 ? "\"\"" : "";
    m_text += m_lineEnd;
    m_column = 0;
}

void CsvWriter::Quote(std::string_view value)
{
    m_text += '"';
    for (const char c : value)
    {
        m_text.append(c == '"' ? 2 : 1, c);
    }
    m_text += '"';
}

} // namespace vorn::tool
