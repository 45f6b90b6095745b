#pragma once

#include <string>
#include <vector>

namespace vorn::test
{

/// A field of a table built byte by byte.
struct TableField
{
    std::string name;
    char type;
    int length;
    int decimals = 0;
};

/// A dBASE table of 29 February 2024. Each record is given with its deletion mark, all of its bytes.
std::string TableBytes(const std::vector<TableField>& fields, const std::vector<std::string>& records);

/// A memo file whose first text begins at block 1.
std::string MemoBytes(const std::vector<std::string>& texts);

/// @p bytes coded with a key that begins anew with each block of @p block bytes.
std::string Coded(std::string bytes, const std::string& key, std::size_t block);

} // namespace vorn::test
