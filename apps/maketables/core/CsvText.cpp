#include "apps/maketables/core/CsvText.h"

#include <algorithm>

namespace vorn
{

namespace
{

class CsvReader
{
public:
    explicit CsvReader(std::string_view text) : m_rest(text)
    {
    }

    std::optional<std::vector<CsvLine>> Lines()
    {
        std::vector<CsvLine> lines;
        while (!m_rest.empty())
        {
            CsvLine line;
            if (!ReadLine(line))
                return std::nullopt;
            if (line.size() > 1 || !line.front().empty())
                lines.push_back(std::move(line));
        }
        return lines;
    }

private:
    bool ReadLine(CsvLine& line)
    {
        do
        {
            line.emplace_back();
            if (!ReadCell(line.back()))
                return false;
        } while (Take(','));
        Take('\r');
        Take('\n');
        return true;
    }

    bool ReadCell(std::string& cell)
    {
        while (Take('"'))
        {
            const std::size_t close = m_rest.find('"');
            if (close == std::string_view::npos)
                return false;
            cell.append(m_rest.substr(0, close));
            m_rest.remove_prefix(close + 1);
            if (!m_rest.empty() && m_rest.front() == '"')
                cell.push_back('"'); // the next turn takes it as an opening quote
        }
        const std::size_t plain = std::min(m_rest.find_first_of(",\r\n"), m_rest.size());
        cell.append(m_rest.substr(0, plain));
        m_rest.remove_prefix(plain);
        return true;
    }

    bool Take(char c)
    {
        if (m_rest.empty() || m_rest.front() != c)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    std::string_view m_rest;
};

} // namespace

std::optional<std::vector<CsvLine>> ParseCsv(std::string_view text)
{
    return CsvReader(text).Lines();
}

} // namespace vorn
