#pragma once

#include "tests/oracle/TableFacts.h"

namespace vorn::test
{

/// Creates the table with the facts as its records.
void WriteOurTable(const std::string& path, const TableFacts& facts);

/// Expects of the table, read with read-ahead of so many records, each header fact, field and value.
void ExpectWeRead(const std::string& path, const TableFacts& facts, int readAhead);

/// The facts with one more column at the front, where each live record has the next number, so that the first column of
/// a table in order can be searched.
TableFacts Numbered(TableFacts facts);

} // namespace vorn::test
