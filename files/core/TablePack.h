#pragma once

/// @file
/// Copying a table without its deleted records.
#include "files/core/DecodeKey.h"
#include "files/core/TableFile.h"
#include "files/core/TableLayout.h"

namespace vorn
{
/// Writes head, live records and their count to an empty file. Returns the bytes written; -1 when a read or a write
/// fails.
LONGLONG PackTable(TableFile& table, const TableLayout& layout, const DecodeKey& key, CFile& packed);
} // namespace vorn
