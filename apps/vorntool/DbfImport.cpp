#include "apps/vorntool/DbfCsvInput.h"
#include "apps/vorntool/DbfNewTable.h"
#include "apps/vorntool/DbfProgress.h"
#include "apps/vorntool/DbfRun.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/DbfGrid.h"
#include "apps/vorntool/core/JsonWriter.h"

namespace vorn::tool
{

namespace
{

std::string InLibraryText(const std::string& name)
{
    const std::optional<CString> text = LibraryFromUtf8(name);
    if (!text)
    {
        throw ToolFailure("the name " + Quoted(name) + " has characters that the table's code page has not");
    }
    return text->GetString();
}

std::vector<DbfColumn> GivenColumns(const std::string& list, std::size_t count)
{
    std::string reason;
    std::optional<std::vector<DbfColumn>> columns = ParseColumns(list, reason);
    if (!columns)
    {
        throw ToolWrongUse("--fields: " + reason);
    }
    if (columns->size() != count)
    {
        throw ToolFailure("--fields names " + std::to_string(columns->size()) + " fields, the file has " +
                          std::to_string(count) + " columns");
    }
    for (DbfColumn& column : *columns)
    {
        column.name = InLibraryText(column.name);
    }
    return *columns;
}

std::vector<DbfColumn> FoundColumns(DbfCsvInput& input, DbfProgress& progress)
{
    std::vector<DbfColumnFacts> facts(input.Headings().size());
    for (std::uint64_t row = 0; input.Next(); ++row)
    {
        for (std::size_t i = 0; i < facts.size(); ++i)
        {
            facts[i].Add(input.Values()[i]);
        }
        progress.At(row, input.Read() / 2);
    }
    std::vector<DbfColumn> columns;
    for (std::size_t i = 0; i < facts.size(); ++i)
    {
        columns.push_back(facts[i].Column(InLibraryText(input.Headings()[i])));
    }
    const std::string reason = ReasonAgainst(columns);
    if (!reason.empty())
    {
        throw ToolFailure(reason + "; --fields names and sizes them");
    }
    return columns;
}

void Check(const DbfCsvInput& input, const std::vector<DbfColumn>& columns)
{
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        const std::string& value = input.Values()[i];
        const std::string reason = ReasonAgainst(columns[i].type, columns[i].length, value);
        if (!reason.empty())
        {
            input.Fail("does not fit: " + Quoted(Shown(Utf8FromLibrary(value))) + " in " +
                       Utf8FromLibrary(columns[i].name) + " " + reason);
        }
    }
}

// Blanks and tabs that the table's reader will take for filling.
std::size_t TrimmedIn(const std::vector<std::string>& values, const std::vector<DbfColumn>& columns)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        const bool ends = !values[i].empty() && (values[i].back() == ' ' || values[i].back() == '\t');
        count += ends && columns[i].type != 'M' ? 1 : 0;
    }
    return count;
}

// @return how many values will read without the blanks at their end
std::size_t Fill(DbfNewTable& table, DbfCsvInput& input, const std::vector<DbfColumn>& columns, DbfProgress& progress,
                 bool isSecondReading)
{
    std::size_t trimmed = 0;
    while (input.Next())
    {
        Check(input, columns);
        table.Add(input.Values());
        trimmed += TrimmedIn(input.Values(), columns);
        progress.At(static_cast<std::uint64_t>(table.Records()),
                    isSecondReading ? (input.Size() + input.Read()) / 2 : input.Read());
    }
    return trimmed;
}

void Report(const Invocation& call, const DbfNewTable& table, const std::vector<DbfColumn>& columns,
            std::size_t trimmed, Output& output)
{
    JsonWriter json;
    json.BeginObject().Name("file").Text(call.values[1]).Name("records").Whole(table.Records()).Name("fields");
    json.BeginArray();
    std::string list;
    for (const DbfColumn& column : columns)
    {
        const std::string name = Utf8FromLibrary(column.name);
        json.BeginObject().Name("name").Text(name).Name("type").Text(std::string(1, column.type));
        json.Name("length").Whole(column.length).EndObject();
        list += (list.empty() ? "" : ",") + name + ":" + column.type + ":" + std::to_string(column.length);
    }
    json.EndArray().EndObject();
    output.text = call.Has("json") ? json.Line() : std::to_string(table.Records()) + " records of " + list + "\n";
    if (trimmed > 0)
    {
        output.errors = "vorntool dbf import: " + std::to_string(trimmed) +
                        " values end in blanks, which read as filling of the fields\n";
    }
}

} // namespace

void ImportDbf(const Invocation& call, Output& output)
{
    DbfCsvInput first(call.values[0]);
    DbfProgress progress(call, "import", first.Size(), DbfPrinting::Afterwards);
    const bool isGiven = call.Has("fields");
    const std::vector<DbfColumn> columns =
        isGiven ? GivenColumns(call.ValueOf("fields", ""), first.Headings().size()) : FoundColumns(first, progress);
    DbfNewTable table(call.values[1], columns, call.Has("force"));
    std::size_t trimmed = 0;
    if (isGiven)
    {
        trimmed = Fill(table, first, columns, progress, false);
    }
    else
    {
        DbfCsvInput again(call.values[0]);
        trimmed = Fill(table, again, columns, progress, true);
    }
    table.Finish();
    progress.Done();
    Report(call, table, columns, trimmed, output);
}

} // namespace vorn::tool
