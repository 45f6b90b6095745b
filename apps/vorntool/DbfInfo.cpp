#include "apps/vorntool/DbfRun.h"
#include "apps/vorntool/DbfTable.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/Columns.h"
#include "apps/vorntool/core/DbfGrid.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/Utf8.h"

#include <cstdio>

namespace vorn::tool
{

namespace
{

std::string DateOf(const DbfLayout& layout)
{
    char date[40];
    std::snprintf(date, sizeof date, "%04d-%02d-%02d", layout.year, layout.month, layout.day);
    return date;
}

std::string TypeOf(const DbfField& field)
{
    return OneLine(Utf8FromLibrary(std::string_view(&field.type, 1)));
}

std::string RecordsText(const DbfLayout& layout, const DbfMarks& marks)
{
    std::string text = std::to_string(layout.records) + " (" + std::to_string(marks.live + marks.strange) + " live, " +
                       std::to_string(marks.deleted) + " deleted)";
    const std::uint32_t held = marks.live + marks.strange + marks.deleted;
    text += held < layout.records ? ", but the file ends behind " + std::to_string(held) : "";
    return text + (marks.strange > 0 ? ", " + std::to_string(marks.strange) + " without a valid deletion mark" : "");
}

std::string FieldsText(const DbfTable& table)
{
    DbfGrid grid;
    const char* const headings[] = {"Field", "Type", "Length", "Decimals", "Offset", ""};
    for (std::size_t i = 0; i < std::size(headings); ++i)
    {
        grid.AddColumn(headings[i], i >= 2 && i <= 4);
    }
    std::vector<std::vector<std::string>> rows;
    for (const DbfField& field : table.Layout().fields)
    {
        rows.push_back({Utf8FromLibrary(field.name), TypeOf(field), std::to_string(field.length),
                        std::to_string(field.decimals), std::to_string(field.offset), table.DoubtAbout(field)});
        grid.Measure(rows.back());
    }
    std::string text = rows.empty() ? std::string() : std::string("\n").append(grid.Headings());
    for (const std::vector<std::string>& row : rows)
    {
        text += grid.Line(row);
    }
    return text;
}

std::string InfoText(const DbfTable& table, const DbfMarks& marks)
{
    const DbfLayout& layout = table.Layout();
    std::vector<LabelledText> lines = {{"File", table.Name()},
                                       {"Version", std::to_string(layout.version)},
                                       {"Changed", DateOf(layout)},
                                       {"Records", RecordsText(layout, marks)},
                                       {"Record length", std::to_string(layout.recordLength)},
                                       {"Header length", std::to_string(layout.headerLength)},
                                       {"Fields", std::to_string(layout.fields.size())},
                                       {"Memo file", table.MemoName()}};
    if (table.Offset() > 0)
    {
        lines.insert(lines.begin() + 1, {"Offset", std::to_string(table.Offset())});
    }
    return LinedUp(lines) + FieldsText(table);
}

void WriteFields(JsonWriter& json, const DbfLayout& layout)
{
    json.Name("fields").BeginArray();
    for (const DbfField& field : layout.fields)
    {
        json.BeginObject().Name("name").Text(Utf8FromLibrary(field.name)).Name("type").Text(TypeOf(field));
        json.Name("length").Whole(field.length).Name("decimals").Whole(field.decimals);
        json.Name("offset").Whole(field.offset).EndObject();
    }
    json.EndArray();
}

std::string InfoJson(const DbfTable& table, const DbfMarks& marks)
{
    const DbfLayout& layout = table.Layout();
    JsonWriter json;
    json.BeginObject().Name("file").Text(table.Name()).Name("offset").Whole(table.Offset());
    json.Name("version").Whole(layout.version).Name("changed").Text(DateOf(layout));
    json.Name("records").Whole(layout.records).Name("live").Whole(std::int64_t{marks.live} + marks.strange);
    json.Name("deleted").Whole(marks.deleted).Name("invalidMarks").Whole(marks.strange);
    json.Name("recordLength").Whole(layout.recordLength).Name("headerLength").Whole(layout.headerLength).Name("memo");
    table.MemoName().empty() ? json.Null() : json.Text(table.MemoName());
    WriteFields(json, layout);
    return json.EndObject().Line();
}

} // namespace

void ShowDbfInfo(const Invocation& call, Output& output)
{
    DbfTable table(call, DbfAccess::Read);
    const DbfMarks marks = table.Marks(0, table.Held());
    output.text = call.Has("json") ? InfoJson(table, marks) : InfoText(table, marks);
}

} // namespace vorn::tool
