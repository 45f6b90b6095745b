#include "apps/vorntool/core/DbfColumns.h"

#include "apps/vorntool/core/Command.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

constexpr std::size_t kLongestName = 11;
constexpr std::size_t kMostDigits = 18;
constexpr std::size_t kLongestText = 254;
constexpr int kMemoLength = 10;
constexpr int kLongestNumber = 255;
constexpr int kLongestField = 32766;
constexpr std::size_t kWidestRecord = 32767;
constexpr std::size_t kMostColumns = (32767 - 33) / 32;

constexpr const char* kDigits = "0123456789";

std::vector<std::string_view> Split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;)
    {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
        {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

// The length of a type that has only one, else 0.
int FixedLength(char type)
{
    switch (type)
    {
    case 'M':
        return kMemoLength;
    case 'D':
        return 8;
    case 'L':
        return 1;
    default:
        return 0;
    }
}

int LongestLength(char type)
{
    return FixedLength(type) > 0 ? FixedLength(type) : type == 'N' ? kLongestNumber : kLongestField;
}

// "C:10" or "M"; a length of 0 stands for one that cannot be.
int LengthFrom(char type, const std::vector<std::string_view>& parts)
{
    if (parts.size() == 2)
    {
        return FixedLength(type);
    }
    const std::optional<std::int64_t> given = ParseWhole(parts[2]);
    return given && *given >= 1 && *given <= LongestLength(type) ? static_cast<int>(*given) : 0;
}

std::optional<DbfColumn> ParseColumn(std::string_view text, std::string& reason)
{
    const std::vector<std::string_view> parts = Split(text, ':');
    if (parts.size() < 2 || parts.size() > 3)
    {
        reason = Quoted(text) + " is not NAME:TYPE:LENGTH";
        return std::nullopt;
    }
    if (parts[1].size() != 1 || std::string_view("CNMDLF").find(parts[1][0]) == std::string_view::npos)
    {
        reason = Quoted(text) + " has no type of C, N, M, D, L and F";
        return std::nullopt;
    }
    const char type = parts[1][0];
    const int length = LengthFrom(type, parts);
    if (length == 0)
    {
        reason = Quoted(text) + " needs a length from 1 to " + std::to_string(LongestLength(type));
        return std::nullopt;
    }
    return DbfColumn{std::string(parts[0]), type, length};
}

char Upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool SameName(std::string_view one, std::string_view other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b)
                      {
                          return Upper(a) == Upper(b);
                      });
}

std::string ReasonAgainstNames(const std::vector<DbfColumn>& columns)
{
    for (auto each = columns.begin(); each != columns.end(); ++each)
    {
        const std::string number = std::to_string(each - columns.begin() + 1);
        if (each->name.empty())
        {
            return "column " + number + " has no name";
        }
        if (each->name.size() > kLongestName)
        {
            return "the name " + Quoted(each->name) + " is longer than 11 characters";
        }
        const auto same = std::find_if(columns.begin(), each,
                                       [&](const DbfColumn& earlier)
                                       {
                                           return SameName(earlier.name, each->name);
                                       });
        if (same != each)
        {
            return "the name " + Quoted(each->name) + " is there twice";
        }
    }
    return {};
}

bool IsPlainNumber(std::string_view value)
{
    const bool digits = !value.empty() && value.find_first_not_of(kDigits) == std::string_view::npos;
    return digits && value.size() <= kMostDigits && (value[0] != '0' || value.size() == 1);
}

} // namespace

std::optional<std::vector<DbfColumn>> ParseColumns(std::string_view list, std::string& reason)
{
    std::vector<DbfColumn> columns;
    for (const std::string_view part : Split(list, ','))
    {
        const std::optional<DbfColumn> column = ParseColumn(part, reason);
        if (!column)
        {
            return std::nullopt;
        }
        columns.push_back(*column);
    }
    reason = ReasonAgainst(columns);
    return reason.empty() ? std::optional(columns) : std::nullopt;
}

std::string ReasonAgainst(const std::vector<DbfColumn>& columns)
{
    if (columns.size() > kMostColumns)
    {
        return "a table has at most " + std::to_string(kMostColumns) + " columns";
    }
    std::size_t width = 1;
    for (const DbfColumn& column : columns)
    {
        width += static_cast<std::size_t>(column.length);
    }
    if (width > kWidestRecord)
    {
        return "a record would have " + std::to_string(width) + " bytes, at most 32767 are possible";
    }
    return ReasonAgainstNames(columns);
}

std::string ReasonAgainst(char type, int length, std::string_view value)
{
    if (value.find('\0') != std::string_view::npos)
    {
        return "has a zero byte";
    }
    if (type == 'N' && value.find_first_not_of(kDigits) != std::string_view::npos)
    {
        return "is no unsigned whole number";
    }
    const bool fits = type == 'M' || value.size() <= static_cast<std::size_t>(std::max(length, 0));
    return fits ? std::string() : "is longer than the " + std::to_string(length) + " characters of the field";
}

std::string Placed(char type, int length, std::string_view value)
{
    const bool right = type == 'N' || type == 'M';
    const std::size_t width = static_cast<std::size_t>(std::max(length, 0));
    const std::size_t blanks = right && value.size() < width ? width - value.size() : 0;
    return std::string(blanks, ' ').append(value);
}

void DbfColumnFacts::Add(std::string_view value)
{
    m_hasValues = true;
    m_longest = std::max(m_longest, value.size());
    m_numbersOnly = m_numbersOnly && IsPlainNumber(value);
}

DbfColumn DbfColumnFacts::Column(const std::string& name) const
{
    const int length = static_cast<int>(std::clamp<std::size_t>(m_longest, 1, kLongestText));
    if (m_longest > kLongestText)
    {
        return {name, 'M', kMemoLength};
    }
    return {name, m_hasValues && m_numbersOnly ? 'N' : 'C', length};
}

} // namespace vorn::tool
