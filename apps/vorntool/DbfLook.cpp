#include "apps/vorntool/DbfRecords.h"
#include "apps/vorntool/DbfRun.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <climits>

namespace vorn::tool
{

namespace
{

std::size_t LimitFrom(const Invocation& call, const char* otherwise)
{
    const std::string given = call.ValueOf("records", otherwise);
    const std::optional<std::int64_t> limit = ParseWhole(given);
    if (!limit || *limit < 1)
    {
        throw ToolWrongUse(Quoted(given) + " is no number of records from 1 on");
    }
    return static_cast<std::size_t>(std::min<std::int64_t>(*limit, INT_MAX));
}

// Live records in their order, from the one that the call begins with.
std::vector<int> LiveRecords(DbfTable& table, const Invocation& call, std::size_t limit)
{
    CDBFFile& library = table.Library();
    const int first = call.Has("from") ? table.RecordFrom(call.ValueOf("from", "")) : 0;
    std::vector<int> records;
    for (bool found = table.Held() > 0 && library.ReadRecord(first) != 0; found && records.size() < limit;
         found = table.ReadNext())
    {
        records.push_back(library.CurRecIndex());
    }
    return records;
}

} // namespace

void ShowDbfHead(const Invocation& call, Output&)
{
    const std::size_t limit = LimitFrom(call, "10");
    DbfTable table(call, limit > 100 ? DbfAccess::Scan : DbfAccess::Read);
    const std::vector<int> fields = table.FieldsFrom(call);
    const std::vector<int> records = LiveRecords(table, call, limit);
    DbfProgress progress(call, "head", records.size(), DbfPrinting::Meanwhile);
    PrintDbfRecords(table, records, fields, DbfFormFrom(call), progress);
}

void DumpDbf(const Invocation& call, Output&)
{
    const std::size_t limit = LimitFrom(call, "2147483647");
    DbfTable table(call, DbfAccess::Scan);
    const std::vector<int> fields = table.FieldsFrom(call);
    const std::vector<int> records = LiveRecords(table, call, limit);
    DbfProgress progress(call, "dump", records.size(), DbfPrinting::Meanwhile);
    PrintDbfRecords(table, records, fields, call.Has("json") ? DbfForm::Json : DbfForm::Vertical, progress);
}

void ShowDbfMemo(const Invocation& call, Output& output)
{
    DbfTable table(call, DbfAccess::Read);
    const int field = call.values.size() > 2 ? table.FieldNamed(call.values[2]) : table.OnlyMemoField();
    if (table.Field(field).type != 'M')
    {
        throw ToolFailure(Quoted(call.values[2]) + " is no memo field");
    }
    const int record = table.MakeCurrent(call.values[1]);
    const std::string& text = table.Value(field);
    if (text.empty() && table.LacksMemos(field))
    {
        throw ToolFailure("the table has no memo file");
    }
    if (call.Has("json"))
    {
        JsonWriter json;
        json.BeginObject().Name("record").Whole(record).Name("field").Text(table.FieldName(field));
        output.text = json.Name("text").Text(text).EndObject().Line();
        return;
    }
    output.text = text + (text.ends_with('\n') ? "" : "\n");
}

} // namespace vorn::tool
