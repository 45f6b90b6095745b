#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// The columns of a table to be made: asked for by name, or found from the values that they are to hold.
namespace vorn::tool
{

/// A field to be made. Types: C text, N unsigned whole number, M memo, D date, L logical, F number as text.
struct DbfColumn
{
    std::string name;
    char type = 'C';
    int length = 0;

    bool operator==(const DbfColumn&) const = default;
};

/// Reads "NAME:C:10,COUNT:N:5,NOTE:M". The length goes without for M (10), D (8) and L (1).
/// @return nothing for a list that no table can have, with the reason in @p reason
std::optional<std::vector<DbfColumn>> ParseColumns(std::string_view list, std::string& reason);

/// Why no table can have these columns: a name that is empty, too long or there twice, too many or too wide columns;
/// empty when one can.
std::string ReasonAgainst(const std::vector<DbfColumn>& columns);

/// Why a field of this type and length cannot hold a value (in the table's code page); empty when it can. A memo takes
/// any length.
std::string ReasonAgainst(char type, int length, std::string_view value);

/// A value as it stands in its field: numbers and block numbers at the right end, for blanks behind a digit would read
/// as zeros.
std::string Placed(char type, int length, std::string_view value);

/// What the values of a column have in common.
class DbfColumnFacts
{
public:
    void Add(std::string_view value);

    /// N when every value is an unsigned whole number without leading zeros that fits 18 digits, M when one is longer
    /// than the 254 bytes that every reader of such tables takes, C otherwise.
    DbfColumn Column(const std::string& name) const;

private:
    std::size_t m_longest = 0;
    bool m_numbersOnly = true;
    bool m_hasValues = false;
};

} // namespace vorn::tool
