#pragma once

#include <string>
#include <string_view>

namespace vorn
{

/// Writes a dBASE table, and a memo file beside it, from comma-separated values whose first line names the columns as
/// NAME:TYPE:LENGTH. Types are the table's own: C for text, N for digits (written to the right), M for memo texts.
/// Columns of type M need the length 10, that of a block number. A record has a memo entry only for a text.
/// @param tableName with the extension .dbf in either case; the memo file has the same name and case with .dbt
/// @return what is wrong, with the line's number; empty when both files were written
std::string MakeTable(std::string_view csv, const std::string& tableName);

} // namespace vorn
