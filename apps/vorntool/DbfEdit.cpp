#include "apps/vorntool/DbfRun.h"
#include "apps/vorntool/DbfTable.h"
#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/ToolFailure.h"
#include "apps/vorntool/core/DbfColumns.h"
#include "apps/vorntool/core/DbfGrid.h"
#include "apps/vorntool/core/JsonWriter.h"

namespace vorn::tool
{

namespace
{

constexpr std::size_t kBlock = 512;
constexpr std::size_t kMemoHead = 8;

void RefuseCoded(const DbfTable& table)
{
    if (table.IsCoded())
    {
        throw ToolFailure("records are never written coded: in a coded table the changed ones could no longer be read");
    }
}

// A record that is live only because its mark is no mark: writing would spoil a coded or damaged table.
void RefuseStrange(const DbfMarks& marks)
{
    if (marks.strange > 0)
    {
        throw ToolFailure("records without a valid deletion mark: the table is coded or damaged");
    }
}

// The value as the table's own text, after all checks.
CString TakeValue(const DbfTable& table, int field, const std::string& given)
{
    const std::optional<CString> value = LibraryFromUtf8(given);
    if (!value)
    {
        throw ToolFailure(Quoted(Shown(given)) + " has characters that the table's code page has not");
    }
    const DbfField& properties = table.Field(field);
    if (UsableLength(properties, table.Layout().recordLength) != properties.length)
    {
        throw ToolFailure("field " + table.FieldName(field) + " does not lie within the record");
    }
    const std::string reason = ReasonAgainst(properties.type, properties.length, value->GetString());
    if (!reason.empty())
    {
        throw ToolFailure(Quoted(Shown(given)) + " " + reason);
    }
    return *value;
}

// Adds a text to the memo file.
// @return the number of its first block, as the field holds it
std::string AddMemo(DbfTable& table, const CString& text)
{
    CDBFFile& library = table.Library();
    if (text.IsEmpty())
    {
        return {};
    }
    const auto length = static_cast<std::size_t>(text.GetLength());
    const auto blocks = static_cast<long>((length + kMemoHead + kBlock - 1) / kBlock);
    const long next = library.WriteDBTHeader(nullptr) != 0 ? library.WriteDBTRecord(nullptr, text) : 0;
    if (next <= blocks || library.WriteDBTHeader(nullptr) == 0)
    {
        throw ToolFailure(table.MemoName().empty() ? "the table has no memo file" : "the memo file cannot be written");
    }
    return std::to_string(next - blocks);
}

void StoreMemo(DbfTable& table, int field, const CString& text)
{
    const DbfField& properties = table.Field(field);
    const std::string block = AddMemo(table, text);
    if (block.size() > static_cast<std::size_t>(properties.length))
    {
        throw ToolFailure("the memo's number " + block + " does not fit the field");
    }
    table.Library().SetFieldValue(field, Placed('M', properties.length, block).c_str());
    if (table.Library().GetFieldValue(field) != text)
    {
        throw ToolFailure("the memo was not written as it should be; the record was not changed");
    }
}

void Store(DbfTable& table, int field, const CString& value)
{
    const DbfField& properties = table.Field(field);
    if (properties.type == 'M')
    {
        StoreMemo(table, field, value);
        return;
    }
    const std::string placed =
        value.IsEmpty() ? std::string() : Placed(properties.type, properties.length, value.GetString());
    table.Library().SetFieldValue(field, placed.c_str());
}

void WriteCurrent(DbfTable& table, int record)
{
    table.Library().FP()->Seek(table.PlaceOf(static_cast<std::uint32_t>(record)), CFile::begin);
    if (table.Library().WriteRecord(nullptr) == 0)
    {
        throw ToolFailure("record " + std::to_string(record) + " could not be written");
    }
}

} // namespace

void SetDbfField(const Invocation& call, Output& output)
{
    DbfTable table(call, DbfAccess::Write);
    RefuseCoded(table);
    const int record = table.MakeCurrent(call.values[1]);
    RefuseStrange(table.Marks(static_cast<std::uint32_t>(record), 1));
    const int field = table.FieldNamed(call.values[2]);
    Store(table, field, TakeValue(table, field, call.values[3]));
    WriteCurrent(table, record);
    if (call.Has("json"))
    {
        table.Library().ReadRecord(record);
        JsonWriter json;
        json.BeginObject().Name("file").Text(table.Name()).Name("record").Whole(record).Name("field");
        output.text = json.Text(table.FieldName(field)).Name("value").Text(table.Value(field)).EndObject().Line();
    }
}

void DeleteDbfRecord(const Invocation& call, Output& output)
{
    DbfTable table(call, DbfAccess::Write);
    RefuseCoded(table);
    const int record = table.MakeCurrent(call.values[1]);
    RefuseStrange(table.Marks(static_cast<std::uint32_t>(record), 1));
    table.Library().DeleteRecord();
    if (table.Marks(static_cast<std::uint32_t>(record), 1).deleted == 0)
    {
        throw ToolFailure("record " + call.values[1] + " could not be written");
    }
    if (call.Has("json"))
    {
        JsonWriter json;
        json.BeginObject().Name("file").Text(table.Name()).Name("record").Whole(record);
        output.text = json.Name("deleted").Flag(true).EndObject().Line();
    }
}

void PackDbf(const Invocation& call, Output& output)
{
    DbfTable table(call, DbfAccess::Write);
    RefuseCoded(table);
    if (table.Offset() > 0)
    {
        throw ToolFailure("a table inside a file cannot be packed: the file would be replaced by the table alone");
    }
    const DbfMarks marks = table.Marks(0, table.Held());
    RefuseStrange(marks);
    if (marks.deleted > 0 && table.Library().Pack() != 0)
    {
        throw ToolFailure(Quoted(table.Name()) + " was not packed: its folder cannot be written, or another program " +
                          "has it open");
    }
    JsonWriter json;
    json.BeginObject().Name("file").Text(table.Name()).Name("removed").Whole(marks.deleted);
    json.Name("records").Whole(marks.live).EndObject();
    output.text = call.Has("json") ? json.Line()
                                   : std::to_string(marks.deleted) + " deleted records removed, " +
                                         std::to_string(marks.live) + " left\n";
}

} // namespace vorn::tool
