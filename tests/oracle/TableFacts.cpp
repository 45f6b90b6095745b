#include "tests/oracle/TableFacts.h"

#include <random>

namespace vorn::test
{
namespace
{

class Inventor
{
public:
    explicit Inventor(unsigned seed) : m_random(seed)
    {
    }

    Column MakeColumn(std::size_t index)
    {
        std::string name = "F" + std::to_string(index);
        const std::size_t length = name.size() + Below(11 - static_cast<unsigned>(name.size()));
        while (name.size() < length)
        {
            name += "ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789"[Below(37)];
        }
        const bool number = Below(3) == 0;
        return {name, number ? 'N' : 'C', static_cast<int>(number ? 1 + Below(9) : 1 + Below(40))};
    }

    std::string MakeValue(const Column& column)
    {
        return column.type == 'N' ? MakeNumber(column.width) : MakeText(column.width);
    }

private:
    unsigned Below(unsigned limit)
    {
        return static_cast<unsigned>(m_random() % limit);
    }

    unsigned Length(int width)
    {
        const unsigned full = static_cast<unsigned>(width);
        return Below(4) == 0 ? full : Below(full + 1);
    }

    std::string MakeNumber(int width)
    {
        std::string digits;
        for (unsigned left = Length(width); left > 0; --left)
        {
            digits += static_cast<char>(digits.empty() ? '1' + Below(9) : '0' + Below(10));
        }
        return digits.empty() ? "0" : digits;
    }

    std::string MakeText(int width)
    {
        const unsigned length = Length(width);
        std::string text;
        while (text.size() < length)
        {
            const bool atEnd = text.empty() || text.size() + 1 == length;
            text += static_cast<char>(atEnd ? '!' + Below(94) : ' ' + Below(95));
        }
        return text;
    }

    std::mt19937 m_random;
};

} // namespace

TableFacts InventFacts(unsigned seed, std::size_t columns, std::size_t rows)
{
    Inventor inventor(seed);
    TableFacts facts;
    for (std::size_t i = 0; i < columns; ++i)
    {
        facts.columns.push_back(inventor.MakeColumn(i));
    }
    for (std::size_t i = 0; i < rows; ++i)
    {
        Row& row = facts.rows.emplace_back();
        for (const Column& column : facts.columns)
        {
            row.push_back(inventor.MakeValue(column));
        }
    }
    return facts;
}

int RecordLengthOf(const TableFacts& facts)
{
    int length = 1;
    for (const Column& column : facts.columns)
    {
        length += column.width;
    }
    return length;
}

std::string Stored(const Column& column, const std::string& value)
{
    const std::string blanks(static_cast<std::size_t>(column.width) - value.size(), ' ');
    return column.type == 'N' ? blanks + value : value + blanks;
}

} // namespace vorn::test
