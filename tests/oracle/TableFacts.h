#pragma once

#include "tests/oracle/Csv.h"

namespace vorn::test
{

struct Column
{
    std::string name;
    char type; ///< 'C' or 'N'.
    int width;
};

/// What a table is to hold; the values without the blanks that fill their fields.
struct TableFacts
{
    std::vector<Column> columns;
    std::vector<Row> rows;
};

/// Invents facts, the same for the same seed on every system: names of up to 10 characters, texts of printable
/// characters that do not begin or end with a blank, empty and full-width ones among them, and whole numbers of up to 9
/// digits.
TableFacts InventFacts(unsigned seed, std::size_t columns, std::size_t rows);

/// Bytes of a record by the facts: its flag and the fields.
int RecordLengthOf(const TableFacts& facts);

/// The bytes of the field: a text at its left end, a number at its right.
std::string Stored(const Column& column, const std::string& value);

} // namespace vorn::test
