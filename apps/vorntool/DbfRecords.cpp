#include "apps/vorntool/DbfRecords.h"

#include "apps/vorntool/core/Columns.h"
#include "apps/vorntool/core/DbfGrid.h"
#include "apps/vorntool/core/JsonWriter.h"
#include "apps/vorntool/core/ToolNumbers.h"
#include "apps/vorntool/core/Utf8.h"

#include <functional>

namespace vorn::tool
{

namespace
{

// Reading on keeps what the library has read ahead; a seek would drop it.
void MakeCurrent(CDBFFile& table, int record)
{
    if (table.CurRecIndex() < record)
    {
        table.ReadRecord(-1);
    }
    if (table.CurRecIndex() != record)
    {
        table.ReadRecord(record);
    }
}

using RecordWork = std::function<void(int record)>;

void ForEach(DbfTable& table, const std::vector<int>& records, const RecordWork& work)
{
    for (const int record : records)
    {
        MakeCurrent(table.Library(), record);
        work(record);
    }
}

class Printer
{
public:
    Printer(DbfTable& table, const std::vector<int>& fields, DbfForm form)
        : m_table(table), m_fields(fields), m_form(form)
    {
        m_grid.AddColumn("Record", true);
        for (const int field : m_fields)
        {
            m_grid.AddColumn(m_table.FieldName(field), IsNumber(field));
        }
    }

    void Measure(int record)
    {
        m_grid.Measure(Row(record));
    }

    std::string Head() const
    {
        return m_form == DbfForm::Grid ? m_grid.Headings() : m_form == DbfForm::Json ? "[" : "";
    }

    std::string Text(int record)
    {
        switch (m_form)
        {
        case DbfForm::Grid:
            return m_grid.Line(Row(record));
        case DbfForm::Vertical:
            return Block(record);
        case DbfForm::Json:
            break;
        }
        return Json(record);
    }

    const char* Between() const
    {
        return m_form == DbfForm::Grid ? "" : m_form == DbfForm::Json ? "," : "\n";
    }

    const char* Foot() const
    {
        return m_form == DbfForm::Json ? "]\n" : "";
    }

private:
    std::vector<std::string> Row(int record)
    {
        std::vector<std::string> row = {std::to_string(record)};
        for (const int field : m_fields)
        {
            row.push_back(m_table.Value(field));
        }
        return row;
    }

    std::string Block(int record)
    {
        std::vector<LabelledText> lines;
        for (const int field : m_fields)
        {
            lines.push_back(
                {std::string(2, ' ').append(OneLine(m_table.FieldName(field))), OneLine(m_table.Value(field))});
        }
        return "Record " + std::to_string(record) + "\n" + LinedUp(lines);
    }

    std::string Json(int record)
    {
        JsonWriter json;
        json.BeginObject().Name("record").Whole(record).Name("fields").BeginObject();
        for (const int field : m_fields)
        {
            json.Name(m_table.FieldName(field));
            WriteValue(json, field);
        }
        std::string line = json.EndObject().EndObject().Line();
        line.pop_back();
        return line;
    }

    bool IsNumber(int field) const
    {
        return m_table.Field(field).type == 'N';
    }

    // A number of more digits than 64 bits hold stays a text.
    void WriteValue(JsonWriter& json, int field)
    {
        const std::string& value = m_table.Value(field);
        const std::optional<std::int64_t> number = IsNumber(field) ? ParseWhole(value) : std::nullopt;
        number ? json.Whole(*number) : json.Text(value);
    }

    DbfTable& m_table;
    const std::vector<int>& m_fields;
    DbfForm m_form;
    DbfGrid m_grid;
};

} // namespace

DbfForm DbfFormFrom(const Invocation& call)
{
    return call.Has("json") ? DbfForm::Json : call.Has("vertical") ? DbfForm::Vertical : DbfForm::Grid;
}

void PrintDbfRecords(DbfTable& table, const std::vector<int>& records, const std::vector<int>& fields, DbfForm form,
                     DbfProgress& progress)
{
    Printer printer(table, fields, form);
    if (form == DbfForm::Grid)
    {
        ForEach(table, records,
                [&](int record)
                {
                    printer.Measure(record);
                });
    }
    DbfOutput output;
    std::string text = printer.Head();
    std::uint64_t done = 0;
    ForEach(table, records,
            [&](int record)
            {
                text.append(done == 0 ? "" : printer.Between()).append(printer.Text(record));
                output.Take(text);
                ++done;
                progress.At(done, done);
            });
    output.Finish(text.append(printer.Foot()));
    progress.Done();
}

} // namespace vorn::tool
