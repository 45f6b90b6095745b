#include "tests/seeds/TableSeeds.h"
#include "tests/support/TableBytes.h"

namespace vorn::test
{
namespace
{

constexpr std::size_t kBlock = 512;

TableBytes StationFields()
{
    TableBytes table;
    table.Field("IDENT", 'C', 3).Field("FREQ", 'N', 5).Field("ELEVENCHARS", 'C', 4);
    return table;
}

TableBytes Stations()
{
    TableBytes table = StationFields();
    table.Record("DEN11790abcd").Record("GLL11420gone", '*').Record("BJC  542\t   ").Record("LAA 1169    ");
    return table;
}

std::string WithDecimals()
{
    TableBytes table;
    table.Field("VALUE", 'N', 6, 2).Field("BEHIND", 'C', 3).Record(" 12.25abc").Record("-1.5  xyz");
    return table.Bytes();
}

std::string AllDeleted()
{
    TableBytes table = StationFields();
    for (int i = 0; i < 40; ++i)
    {
        table.Record("GLL11420gone", '*');
    }
    return table.Bytes();
}

std::string WithNegativeField()
{
    TableBytes table;
    table.Field("A", 'C', 3).Field("B", 'C', 0x38, 0xFF).Field("C", 'C', 0xFF, 0x7F).Field("D", 'M', 2);
    return table.StateRecordLength(6).Header() + " abcde";
}

/// The area behind the descriptors, where others keep a path, counts for descriptors too.
std::string WithBacklink()
{
    return Stations().EndHeaderWith('\r' + std::string(263, '\0')).Bytes();
}

TableBytes NoteFields()
{
    TableBytes table;
    table.Field("ID", 'C', 1).Field("NOTE", 'M', 10);
    return table;
}

std::string Notes(const std::vector<std::string>& numbers)
{
    TableBytes table = NoteFields();
    for (const std::string& number : numbers)
    {
        table.Record('x' + std::string(10 - number.size(), ' ') + number);
    }
    return table.Bytes();
}

std::string MemoFile(const std::string& entries)
{
    std::string header = LittleEndian(1 + entries.size() / kBlock, 4);
    header.resize(20);
    header += LittleEndian(kBlock, 2);
    header.resize(kBlock);
    return header + entries;
}

std::string EntryOfLength(unsigned long length)
{
    return MemoEntryBytes("text").replace(4, 4, LittleEndian(length, 4));
}

/// Of the older kind, without marker and length.
std::string OldEntry(const std::string& text)
{
    return Padded(text, kBlock, '\0');
}

/// One record with a memo; only the record is coded.
std::string CodedNotes(const std::string& key)
{
    return NoteFields().StateCount(1).Header() + Scrambled(" x         1", key);
}

/// Marker and length of a memo stay plain.
std::string CodedEntry(const std::string& text, const std::string& key)
{
    return MemoEntryBytes(text).replace(8, text.size(), Scrambled(text, key));
}

/// Key, table and memo file as one input: each of the first two behind its length, in 1 and 2 bytes.
std::string Together(const std::string& key, const std::string& table, const std::string& memo)
{
    return LittleEndian(key.size(), 1) + key + LittleEndian(table.size(), 2) + table + memo;
}

/// Steps of two bytes, what and with which argument, behind their count; then key, table and memo file.
std::string Use(const std::string& steps, const std::string& whole)
{
    return LittleEndian(steps.size() / 2, 1) + steps + whole;
}

using Seeds = std::map<std::string, std::string>;

void AddTables(Seeds& seeds)
{
    seeds["table/stations"] = Stations().Bytes();
    seeds["table/without-fields"] = TableBytes().StateCount(3).Bytes() + " * ";
    seeds["table/decimals"] = WithDecimals();
    seeds["table/all-deleted"] = AllDeleted();
    seeds["table/endless-count"] = Stations().StateCount(0xFFFFFFFF).Bytes();
    seeds["table/negative-header"] = Stations().StateHeaderLength(-1).Bytes();
    seeds["table/negative-record"] = Stations().StateRecordLength(-13).Bytes();
    seeds["table/no-record-length"] = Stations().StateRecordLength(0).Bytes();
    seeds["table/short-record"] = Stations().StateRecordLength(3).Bytes();
    seeds["table/short-descriptors"] = Stations().Bytes().substr(0, 100);
    seeds["table/negative-field"] = WithNegativeField();
    seeds["table/backlink"] = WithBacklink();
    seeds["table/cut-record"] = Stations().Bytes().substr(0, 129 + 20);
}

void AddMemos(Seeds& seeds)
{
    const std::string one = MemoEntryBytes("one");
    std::string lengths;
    for (const unsigned long length : {7UL, 0xFFFFFFFFUL, 0x7FFFFFFFUL, 0x80000008UL, 0x60000000UL, 2000UL})
    {
        lengths += EntryOfLength(length);
    }
    seeds["tablememo/two"] = Together("", Notes({"1", "2", "", "7"}), MemoFile(one + MemoEntryBytes("two")));
    seeds["tablememo/coded"] = Together("key", CodedNotes("key"), MemoFile(CodedEntry("one", "key")));
    seeds["tablememo/long"] = Together("", Notes({"1"}), MemoFile(MemoEntryBytes(std::string(1200, 'm'))));
    seeds["tablememo/old"] = Together("", Notes({"1", "2"}), MemoFile(OldEntry("old\x1A\x1A") + OldEntry("no end")));
    seeds["tablememo/lengths"] = Together("", Notes({"1", "2", "3", "4", "5", "6"}), MemoFile(lengths));
    seeds["tablememo/numbers"] = Together("", Notes({"-1", "0", "9999999999", "1x"}), MemoFile(one));
    seeds["tablememo/behind"] = Together("", Notes({"1"}) + MemoFile(MemoEntryBytes("behind")), "");
}

void AddUses(Seeds& seeds)
{
    const std::string stations = Together("", Stations().Bytes(), "");
    const std::string notes = Together("", Notes({"1", "2"}), MemoFile(MemoEntryBytes("one") + MemoEntryBytes("two")));
    seeds["tableuse/read"] = Use({0, 0, 1, 2, 2, 0, 3, 1}, stations);
    seeds["tableuse/search"] = Use({4, 0, 5, 1, 6, 0, 7, 2, 8, 1}, stations);
    seeds["tableuse/change"] = Use({0, 2, 9, 1, 10, 0, 11, 5, 12, 0, 13, 0}, stations);
    seeds["tableuse/delete"] = Use({0, 2, 14, 0, 1, 0, 14, 0, 15, 0, 2, 0}, stations);
    seeds["tableuse/settings"] = Use({16, 3, 17, 1, 18, 32, 19, 0, 20, 0, 2, 0}, notes);
    seeds["tableuse/memo"] = Use({21, 0, 22, 9, 2, 0, 0, 0, 23, 0, 24, 3}, notes);
}

} // namespace

std::map<std::string, std::string> TableSeeds()
{
    Seeds seeds;
    AddTables(seeds);
    AddMemos(seeds);
    AddUses(seeds);
    return seeds;
}

} // namespace vorn::test
