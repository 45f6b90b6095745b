#include "apps/vorntool/DbfRecords.h"
#include "apps/vorntool/DbfRun.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <climits>

namespace vorn::tool
{

namespace
{

struct Search
{
    int field;
    CString value;
    bool firstOnly;
    bool ignoreCase;
};

std::vector<int> Linear(DbfTable& table, const Search& search)
{
    CDBFFile& library = table.Library();
    std::vector<int> found;
    const auto held = static_cast<std::int64_t>(table.Held());
    bool matches = library.Query(search.field, search.value, search.ignoreCase ? 0 : 1) != 0;
    while (library.CurRecIndex() < held)
    {
        if (matches)
        {
            found.push_back(library.CurRecIndex());
        }
        if (matches && search.firstOnly)
        {
            break;
        }
        matches = library.NextRecord() != 0;
    }
    return found;
}

bool IsNumber(DbfTable& table, int field)
{
    return table.Library().GetFieldType(field) == 'N';
}

int NumberFrom(const CString& value)
{
    const std::optional<std::int64_t> number = ParseWhole(value.GetString());
    if (!number || *number < 0 || *number > INT_MAX)
    {
        throw ToolWrongUse("a sorted search for a number takes 0 to 2147483647");
    }
    return static_cast<int>(*number);
}

// Whether the current record has the value, in the sense in which the records are sorted.
bool Matches(DbfTable& table, const Search& search)
{
    const CString value = table.Library().GetFieldValue(search.field);
    return IsNumber(table, search.field) ? ParseWhole(value.GetString()) == NumberFrom(search.value)
                                         : value == search.value;
}

// The search for numbers ends anywhere among equal ones; a deleted record reads as the live one behind it.
int FirstOfRun(DbfTable& table, const Search& search, int found)
{
    int first = found;
    for (int record = found - 1; record >= 0; --record)
    {
        table.Library().ReadRecord(record);
        const bool isDeleted = table.Library().CurRecIndex() != record;
        if (!isDeleted && !Matches(table, search))
        {
            break;
        }
        first = isDeleted ? first : record;
    }
    return first;
}

std::vector<int> Sorted(DbfTable& table, const Search& search)
{
    CDBFFile& library = table.Library();
    const CString name = library.GetFieldName(search.field);
    const bool isNumber = IsNumber(table, search.field);
    const CString number = isNumber ? std::to_string(NumberFrom(search.value)).c_str() : "";
    const int found =
        isNumber ? library.QuerySortedIntData(name, number) : library.QuerySortedStrData(name, search.value);
    if (found == 0)
    {
        return {};
    }
    const int first = isNumber ? FirstOfRun(table, search, library.CurRecIndex()) : library.CurRecIndex();
    std::vector<int> records = {first};
    for (library.ReadRecord(first); !search.firstOnly && table.ReadNext() && Matches(table, search);)
    {
        records.push_back(library.CurRecIndex());
    }
    return records;
}

} // namespace

void QueryDbf(const Invocation& call, Output&)
{
    const bool isSorted = call.Has("sorted");
    if (isSorted && call.Has("ignore-case"))
    {
        throw ToolWrongUse("--sorted compares exactly and goes without --ignore-case");
    }
    DbfTable table(call, isSorted ? DbfAccess::Read : DbfAccess::Scan);
    const std::vector<int> fields = table.FieldsFrom(call);
    const int field = table.FieldNamed(call.values[1]);
    const std::optional<CString> value = LibraryFromUtf8(call.values[2]);
    const Search search = {field, value.value_or(CString()), call.Has("first"), call.Has("ignore-case")};
    std::vector<int> found;
    if (value)
    {
        found = isSorted ? Sorted(table, search) : Linear(table, search);
    }
    if (found.empty())
    {
        throw ToolFailure("no record has " + Quoted(call.values[2]) + " in " + table.FieldName(field) +
                          (isSorted ? ", if the table is sorted by it" : ""));
    }
    table.Library().SetBufferSize(0);
    DbfProgress progress(call, "query", found.size(), DbfPrinting::Meanwhile);
    PrintDbfRecords(table, found, fields, DbfFormFrom(call), progress);
}

} // namespace vorn::tool
