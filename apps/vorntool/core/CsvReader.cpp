#include "apps/vorntool/core/CsvReader.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

constexpr std::size_t kBufferSize = 65536;

bool IsLineEnd(int c)
{
    return c == '\n' || c == '\r';
}

bool EndsPlainValue(char c)
{
    return c == ',' || c == '\n' || c == '\r' || c == '"';
}

} // namespace

CsvReader::CsvReader(Source source) : m_source(std::move(source)), m_buffer(kBufferSize)
{
}

bool CsvReader::Next(std::vector<std::string>& row)
{
    if (!m_begun)
    {
        m_begun = true;
        SkipByteOrderMark();
    }
    SkipEmptyLines();
    if (!m_error.empty() || Peek() == kEnd)
    {
        return false;
    }
    m_rowLine = m_line;
    for (std::size_t count = 1;; ++count)
    {
        row.resize(std::max(row.size(), count));
        if (!TakeValue(row[count - 1]))
        {
            return false;
        }
        const int end = Take();
        if (end != ',')
        {
            TakeLineEnd(end);
            row.resize(count);
            return true;
        }
    }
}

bool CsvReader::Refill()
{
    m_next = 0;
    m_filled = m_source(m_buffer);
    return m_filled > 0;
}

int CsvReader::Peek()
{
    return m_next < m_filled || Refill() ? static_cast<unsigned char>(m_buffer[m_next]) : kEnd;
}

int CsvReader::Take()
{
    const int c = Peek();
    m_next += c == kEnd ? 0 : 1;
    return c;
}

// The mark's bytes can be cut apart by the source; what only begins like one is put back in front.
void CsvReader::SkipByteOrderMark()
{
    std::string begin;
    for (const int expected : {0xEF, 0xBB, 0xBF})
    {
        if (Peek() != expected)
        {
            m_buffer.insert(m_buffer.begin() + static_cast<std::ptrdiff_t>(m_next), begin.begin(), begin.end());
            m_filled += begin.size();
            return;
        }
        begin += static_cast<char>(Take());
    }
}

// CR LF is one end.
void CsvReader::TakeLineEnd(int first)
{
    m_line += IsLineEnd(first) ? 1 : 0;
    if (first == '\r' && Peek() == '\n')
    {
        Take();
    }
}

void CsvReader::SkipEmptyLines()
{
    while (IsLineEnd(Peek()))
    {
        TakeLineEnd(Take());
    }
}

// Leaves the comma, line end or end of text behind the value.
bool CsvReader::TakeValue(std::string& value)
{
    value.clear();
    return Peek() == '"' ? TakeQuoted(value) : TakePlain(value);
}

bool CsvReader::TakePlain(std::string& value)
{
    while (Peek() != kEnd)
    {
        const auto from = m_buffer.begin() + static_cast<std::ptrdiff_t>(m_next);
        const auto filled = m_buffer.begin() + static_cast<std::ptrdiff_t>(m_filled);
        const auto end = std::find_if(from, filled, EndsPlainValue);
        value.append(from, end);
        m_next = static_cast<std::size_t>(end - m_buffer.begin());
        if (end != filled)
        {
            return *end != '"' || Fail(m_line, "has a quote within a value that does not begin with one");
        }
    }
    return true;
}

bool CsvReader::TakeQuoted(std::string& value)
{
    const std::size_t opened = m_line;
    Take();
    for (int previous = 0, c = Take();; previous = c, c = Take())
    {
        if (c == kEnd)
        {
            return Fail(opened, "has a quote that is never closed");
        }
        if (c == '"' && Peek() != '"')
        {
            break;
        }
        if (c == '"')
        {
            Take();
        }
        m_line += c == '\r' || (c == '\n' && previous != '\r') ? 1 : 0;
        value += static_cast<char>(c);
    }
    const int behind = Peek();
    return behind == kEnd || behind == ',' || IsLineEnd(behind) || Fail(m_line, "has text behind a closing quote");
}

bool CsvReader::Fail(std::size_t line, const char* reason)
{
    m_error = "line " + std::to_string(line) + " " + reason;
    return false;
}

} // namespace vorn::tool
