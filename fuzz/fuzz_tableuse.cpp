#include "files/core/CDBFFile.h"
#include "fuzz/TableFiles.h"

#include <array>

namespace
{

using vorn::fuzz::InputParts;
using vorn::fuzz::Require;
using vorn::fuzz::TableFiles;

constexpr int kMostRecords = 64;
constexpr int kMostSteps = 24;
constexpr const char* kValues[] = {"", "DEN", "1", "xyz abc", "a value that is longer than most fields are", nullptr};
constexpr const char* kNames[] = {"IDENT", "FREQ", "ELEVENCHARS", "NOTE", "no such field", nullptr};

const TableFiles& Files()
{
    static const TableFiles files;
    return files;
}

std::string s_path; ///< Of the table that is open.

const char* ValueOf(int number)
{
    return kValues[static_cast<std::size_t>(number) % std::size(kValues)];
}

const char* NameOf(int number)
{
    return kNames[static_cast<std::size_t>(number) % std::size(kNames)];
}

int LiveRecords(CDBFFile& table, int most)
{
    int count = 0;
    for (int read = table.ReadRecord(0); read == 1 && count < most; read = table.ReadRecord(-1))
    {
        ++count;
    }
    return count;
}

void ReadIndex(CDBFFile& table, int argument)
{
    const int index = argument - 2;
    const int before = table.CurRecIndex();
    const int read = table.ReadRecord(index);
    Require(index >= -1 || (read == 0 && table.CurRecIndex() == before));
    Require(read == 0 || index < 0 || table.CurRecIndex() >= index);
}

void ReadNext(CDBFFile& table, int)
{
    table.NextRecord();
}

void ReadAll(CDBFFile& table, int)
{
    LiveRecords(table, kMostRecords);
}

void ReadValues(CDBFFile& table, int argument)
{
    CString value;
    for (int field = -1; field <= table.NumFields() && field < 40; ++field)
    {
        table.GetFieldValue(field, value);
        table.GetFieldValueRaw(table.GetFieldName(field));
    }
    table.GetFieldValue(NameOf(argument), value);
    Require(value == table.GetFieldValue(NameOf(argument)));
}

void QueryField(CDBFFile& table, int argument)
{
    const int found = table.Query(argument % 8 - 1, ValueOf(argument), argument & 1);
    Require(found == 0 || table.GetLastQueryField() == argument % 8 - 1);
}

void QueryName(CDBFFile& table, int argument)
{
    const int found = table.Query(NameOf(argument), ValueOf(argument / 8), 1);
    Require(found == 0 || table.GetFieldValue(NameOf(argument)) == table.GetLastQueryValue());
}

void QuerySortedNumber(CDBFFile& table, int argument)
{
    table.QuerySortedIntData(NameOf(argument), ValueOf(argument / 8));
}

void QuerySortedText(CDBFFile& table, int argument)
{
    const char* value = ValueOf(argument / 8);
    const int found = table.QuerySortedStrData(NameOf(argument), value);
    Require(found == 0 || value == nullptr || table.GetFieldValue(NameOf(argument)) == value);
}

void RememberQuery(CDBFFile& table, int argument)
{
    table.SetNextRecordParams(NameOf(argument), ValueOf(argument / 8), argument & 1);
}

void SetText(CDBFFile& table, int argument)
{
    table.SetFieldValue(argument % 8 - 1, ValueOf(argument / 8));
    table.SetFieldValue(NameOf(argument), ValueOf(argument / 8));
}

void SetNumber(CDBFFile& table, int argument)
{
    table.SetFieldValue(NameOf(argument), static_cast<long>(argument) * 1001 - 300);
}

void WriteHere(CDBFFile& table, int argument)
{
    if (argument % 4 == 0 && table.FP()->m_hFile != CFile::hFileNull)
    {
        table.FP()->SeekToEnd();
    }
    table.WriteRecord(nullptr);
}

void WriteCount(CDBFFile& table, int argument)
{
    table.WriteNumRecords(nullptr, argument - 1);
}

void WriteHead(CDBFFile& table, int)
{
    table.WriteHeader(nullptr);
}

void Delete(CDBFFile& table, int)
{
    const LONGLONG length = table.FileLen();
    table.DeleteRecord();
    Require(table.FileLen() == length);
}

void Reopen(CDBFFile& table, int argument)
{
    table.Close();
    Require(table.NumFields() == 0 && table.NumRecords() == 0);
    table.Open(s_path.c_str(), argument % 4 == 3 ? CFile::modeRead : CFile::modeReadWrite);
}

/// Packing keeps the live records, as many as can be read.
void PackAndReopen(CDBFFile& table, int argument)
{
    const int live = table.NumRecords() == 0 ? 0 : LiveRecords(table, kMostRecords);
    table.SetBufferSize(argument % 5);
    if (table.Pack() == 0)
    {
        table.SetDecodeString(nullptr, 0);
        Reopen(table, 0);
        Require(live == kMostRecords || table.NumRecords() == live);
    }
}

void SetReadAhead(CDBFFile& table, int argument)
{
    table.SetBufferSize(argument == 255 ? 0x7FFFFFFF : argument - 1);
}

void SetOffset(CDBFFile& table, int argument)
{
    table.SetBaseOffset(argument - 1);
}

void SetKey(CDBFFile& table, int argument)
{
    const std::string key(static_cast<std::size_t>(argument % 12), static_cast<char>(argument));
    table.SetDecodeString(key.c_str(), argument % 2 == 0 ? 0 : static_cast<int>(key.size()));
}

void AskFacts(CDBFFile& table, int argument)
{
    Require(table.GetFieldNumber(NameOf(argument)) < table.NumFields());
    const bool exists = argument > 0 && argument <= table.NumFields();
    Require(exists || table.GetFieldType(argument - 1) == 0);
    Require(table.GetFieldName(argument - 1).GetLength() <= 11);
    Require(table.CurRecIndex() >= -1 && table.NumRecords() >= 0 && table.GetBufferSize() >= 0);
    table.GetFieldType(NameOf(argument));
    table.HeaderSize();
}

void Dump(CDBFFile& table, int)
{
    if (table.NumRecords() <= kMostRecords)
    {
        table.DumpToFile(Files().Beside("dump.txt").c_str());
    }
}

void WriteMemo(CDBFFile& table, int argument)
{
    table.WriteDBTRecord(nullptr, ValueOf(argument));
}

void WriteMemoHeader(CDBFFile& table, int)
{
    table.WriteDBTHeader(nullptr);
}

void CreateAnother(CDBFFile& table, int argument)
{
    s_path = Files().Beside("made.dbf");
    table.SetBaseOffset(0);
    for (int i = 0; i < argument % 4; ++i)
    {
        table.AddNewField(NameOf(i), 'C', argument * 7);
    }
    if (table.Create(s_path.c_str()) == 1)
    {
        Require(table.NumRecords() == 0 && table.FileLen() == table.HeaderSize());
    }
}

constexpr std::array kSteps{ReadIndex,     ReadNext,          ReadAll,         ReadValues,    QueryField,
                            QueryName,     QuerySortedNumber, QuerySortedText, RememberQuery, SetText,
                            SetNumber,     WriteHere,         WriteCount,      WriteHead,     Delete,
                            PackAndReopen, SetReadAhead,      SetOffset,       SetKey,        AskFacts,
                            Dump,          WriteMemo,         WriteMemoHeader, Reopen,        CreateAnother};

} // namespace

/// Steps over any table with any memo file: none of them breaks, and what each promises holds.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    InputParts parts(data, size);
    InputParts steps = parts;
    const unsigned count = steps.Number(1);
    parts.Number(1);
    parts.Part(std::size_t{2} * count);
    const std::string key(parts.Part(parts.Number(1) % 16));
    TableFiles::Write(Files().Table(), parts.Part(parts.Number(2)));
    TableFiles::Write(Files().Memo(), parts.Rest());
    CDBFFile table(static_cast<int>(size % 4));
    table.SetDecodeString(key.data(), static_cast<int>(key.size()));
    s_path = Files().Table();
    table.Open(s_path.c_str(), CFile::modeReadWrite);
    for (unsigned i = 0; i < count && i < kMostSteps; ++i)
    {
        const unsigned step = steps.Number(1);
        kSteps[step % kSteps.size()](table, static_cast<int>(steps.Number(1)));
    }
    return 0;
}
