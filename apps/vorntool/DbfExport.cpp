#include "apps/vorntool/DbfOutput.h"
#include "apps/vorntool/DbfProgress.h"
#include "apps/vorntool/DbfRun.h"
#include "apps/vorntool/DbfTable.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/CsvWriter.h"
#include "apps/vorntool/core/JsonWriter.h"

#include <algorithm>
#include <memory>

namespace vorn::tool
{

namespace
{

void WriteHeadings(const DbfTable& table, const std::vector<int>& fields, CsvWriter& csv)
{
    for (const int field : fields)
    {
        csv.Value(table.FieldName(field));
    }
    csv.EndRow();
}

// @return the number of records written
std::int64_t WriteRecords(DbfTable& table, const std::vector<int>& fields, CsvWriter& csv, DbfOutput& output,
                          DbfProgress& progress)
{
    std::int64_t count = 0;
    for (; table.Held() > 0 && table.ReadNext(); ++count)
    {
        for (const int field : fields)
        {
            csv.Value(table.Value(field));
        }
        csv.EndRow();
        output.Take(csv.Text());
        progress.At(static_cast<std::uint64_t>(count), static_cast<std::uint64_t>(table.Library().CurRecIndex()));
    }
    return count;
}

// What a reader of the values should know.
std::vector<std::string> Notes(const DbfTable& table, const std::vector<int>& fields)
{
    std::vector<std::string> notes;
    if (table.Held() < table.Layout().records)
    {
        notes.push_back("the header counts " + std::to_string(table.Layout().records) +
                        " records, but the file ends behind " + std::to_string(table.Held()));
    }
    const bool hasMemos = std::any_of(fields.begin(), fields.end(),
                                      [&](int field)
                                      {
                                          return table.Field(field).type == 'M';
                                      });
    if (hasMemos && table.Offset() == 0 && table.MemoName().empty())
    {
        notes.emplace_back("the table has no memo file: its memos are empty");
    }
    const auto doubtful = std::count_if(fields.begin(), fields.end(),
                                        [&](int field)
                                        {
                                            return !table.DoubtAbout(table.Field(field)).empty();
                                        });
    if (doubtful > 0)
    {
        notes.push_back(std::to_string(doubtful) + " fields do not read as they were meant; 'dbf info' names them");
    }
    return notes;
}

std::unique_ptr<DbfOutput> OutputOf(const Invocation& call)
{
    return call.Has("output") ? std::make_unique<DbfOutput>(call.ValueOf("output", ""), call.Has("force"))
                              : std::make_unique<DbfOutput>();
}

} // namespace

void ExportDbf(const Invocation& call, Output& output)
{
    if (call.Has("json") && !call.Has("output"))
    {
        throw ToolWrongUse("--json goes with --output; 'dump --json' prints records as JSON");
    }
    DbfTable table(call, DbfAccess::Scan);
    const std::vector<int> fields = table.FieldsFrom(call);
    if (fields.empty())
    {
        throw ToolFailure(Quoted(table.Name()) + " has no fields");
    }
    const std::unique_ptr<DbfOutput> target = OutputOf(call);
    const DbfPrinting printing = call.Has("output") ? DbfPrinting::Afterwards : DbfPrinting::Meanwhile;
    DbfProgress progress(call, "export", table.Held(), printing);
    CsvWriter csv(call.Has("lf") ? "\n" : "\r\n");
    WriteHeadings(table, fields, csv);
    const std::int64_t count = WriteRecords(table, fields, csv, *target, progress);
    target->Finish(csv.Text());
    progress.Done();
    for (const std::string& note : Notes(table, fields))
    {
        output.errors += "vorntool dbf export: " + note + "\n";
    }
    if (call.Has("json"))
    {
        JsonWriter json;
        json.BeginObject().Name("file").Text(call.ValueOf("output", ""));
        output.text = json.Name("records").Whole(count).EndObject().Line();
    }
}

} // namespace vorn::tool
