#include "files/core/TableDump.h"

#include "files/core/NoThrow.h"
#include "files/core/RecordReader.h"
#include "files/core/TableBox.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace vorn
{
namespace
{
constexpr int kBlock = 64 * 1024;
constexpr const char* kFileLineEnd = "\r\n";

template <class... Values>
std::string Line(const char* lineEnd, const char* format, Values... values)
{
    CString text;
    text.Format(format, values...);
    text += lineEnd;
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

unsigned ByteAt(const char* bytes)
{
    return static_cast<unsigned char>(*bytes);
}

// The fields of a record by their lengths alone, cut where the record ends.
class FieldWalk
{
public:
    FieldWalk(const TableLayout& layout, const char* record)
        : m_rest(record, static_cast<std::size_t>(layout.recordLength))
    {
        m_rest.remove_prefix(1);
    }

    std::string_view Next(int length)
    {
        const std::string_view field = m_rest.substr(0, static_cast<std::size_t>(std::max(length, 0)));
        m_rest.remove_prefix(field.size());
        return field.substr(0, field.find('\0'));
    }

private:
    std::string_view m_rest;
};

void AppendField(std::string& text, std::string_view field)
{
    text += '>';
    text += field;
    text += "< ";
}

// Collects lines into large writes.
class DumpWriter
{
public:
    explicit DumpWriter(CFile& file) : m_file(file)
    {
    }
    void Add(std::string_view text)
    {
        m_pending += text;
        if (m_pending.size() >= kBlock)
            Write();
    }
    void Write()
    {
        m_file.Write(m_pending.data(), static_cast<UINT>(m_pending.size()));
        m_pending.clear();
    }

private:
    CFile& m_file;
    std::string m_pending;
};

void AddRecords(TableFile& table, const TableLayout& layout, const DecodeKey& key, DumpWriter& writer)
{
    RecordReader reader(table, layout, key);
    reader.SetReadAhead(kBlock / std::max(layout.recordLength, 1));
    reader.Start();
    for (int index = 0; index < layout.records; ++index)
    {
        if (index > reader.Current() && !reader.Read(index))
            return;
        writer.Add(RecordLine(layout, reader.Record()));
        writer.Add(kFileLineEnd);
    }
}
} // namespace

std::vector<std::string> HeaderLines(const TableLayout& layout, const char* lineEnd)
{
    const char* head = layout.head.data();
    std::vector<std::string> lines = {
        Line(lineEnd, "dbt %d", ByteAt(head)),
        Line(lineEnd, "date: %d %d %d", ByteAt(head + 1), ByteAt(head + 2), ByteAt(head + 3)),
        Line(lineEnd, "num records: %d", layout.records),
        Line(lineEnd, "record len:  %d", layout.recordLength),
        Line(lineEnd, "header len:  %d", layout.headerLength),
        Line(lineEnd, "num fields:  %d", static_cast<int>(layout.fields.size())),
    };
    for (const TableField& field : layout.fields)
        lines.push_back(Line(lineEnd, "%s type=%c length=%d precision=%d offset=%d", field.name, field.type,
                             field.length, field.precision, field.offset));
    return lines;
}

std::string RecordText(const TableLayout& layout, const char* record)
{
    std::string text;
    FieldWalk walk(layout, record);
    for (const TableField& field : layout.fields)
        AppendField(text, walk.Next(field.length));
    return text;
}

std::string RecordLine(const TableLayout& layout, const char* record)
{
    std::string text;
    FieldWalk walk(layout, record);
    for (const TableField& field : layout.fields)
    {
        const std::string_view value = walk.Next(field.length);
        if (field.type == 'C' || field.type == 'N')
            AppendField(text, value);
        else
            TableBox("Unexpected DBG field type", "");
    }
    return text;
}

bool DumpTable(TableFile& table, const TableLayout& layout, const DecodeKey& key, CFile& dump)
{
    return NoThrow(false,
                   [&]
                   {
                       DumpWriter writer(dump);
                       for (const std::string& line : HeaderLines(layout, kFileLineEnd))
                           writer.Add(line);
                       writer.Add(kFileLineEnd);
                       AddRecords(table, layout, key, writer);
                       writer.Write();
                       return true;
                   });
}
} // namespace vorn
