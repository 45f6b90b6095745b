#pragma once

/// @file
/// Texts about a table for its developers.
#include "files/core/DecodeKey.h"
#include "files/core/TableFile.h"
#include "files/core/TableLayout.h"

#include <string>
#include <vector>

namespace vorn
{
/// A line for each fact of the header and for each field, ended by `lineEnd`.
std::vector<std::string> HeaderLines(const TableLayout& layout, const char* lineEnd);

/// The record's fields as ">TEXT< ", each taken right behind the one before, up to its first zero.
std::string RecordText(const TableLayout& layout, const char* record);

/// The same for a line of a file: fields other than text and numbers are reported in a message box instead.
std::string RecordLine(const TableLayout& layout, const char* record);

/// Writes header lines, an empty line and a line for each record index; deleted records show as the next live one.
/// False when a write fails.
bool DumpTable(TableFile& table, const TableLayout& layout, const DecodeKey& key, CFile& dump);
} // namespace vorn
