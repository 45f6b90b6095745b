#include "tests/oracle/Csv.h"

namespace vorn::test
{
namespace
{

std::string Quoted(const std::string& value)
{
    std::string text = "\"";
    for (const char c : value)
    {
        text.append(c == '"' ? 2 : 1, c);
    }
    return text + '"';
}

std::string ParseQuoted(std::string_view& rest)
{
    std::string value;
    for (rest.remove_prefix(1); !rest.empty(); rest.remove_prefix(1))
    {
        if (rest.front() == '"')
        {
            rest.remove_prefix(1);
            if (!rest.starts_with('"'))
            {
                break;
            }
        }
        value += rest.front();
    }
    return value;
}

std::string ParseValue(std::string_view& rest)
{
    if (rest.starts_with('"'))
    {
        return ParseQuoted(rest);
    }
    const std::string value(rest.substr(0, rest.find_first_of(",\r\n")));
    rest.remove_prefix(value.size());
    return value;
}

Row ParseRow(std::string_view& rest)
{
    Row row{ParseValue(rest)};
    while (rest.starts_with(','))
    {
        rest.remove_prefix(1);
        row.push_back(ParseValue(rest));
    }
    rest.remove_prefix(rest.starts_with("\r\n") ? 2 : rest.empty() ? 0 : 1);
    return row;
}

} // namespace

std::string CsvOf(const std::vector<Row>& rows)
{
    std::string text;
    for (const Row& row : rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            text += (i == 0 ? "" : ",") + Quoted(row[i]);
        }
        text += '\n';
    }
    return text;
}

std::vector<Row> ParseCsv(std::string_view text)
{
    std::vector<Row> rows;
    while (!text.empty())
    {
        rows.push_back(ParseRow(text));
    }
    return rows;
}

} // namespace vorn::test
