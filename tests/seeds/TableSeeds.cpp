#include "tests/seeds/TableSeeds.h"
#include "tests/seeds/TableBytes.h"

namespace vorn::test
{
namespace
{

const std::vector<FieldBytes> kStations{{"IDENT", 'C', 3}, {"FREQ", 'N', 5}, {"ELEVENCHARS", 'C', 4}};
const std::vector<std::string> kRecords{" DEN11790abcd", "*GLL11420gone", " BJC  542\t   ", " LAA 1169    "};

std::string Stations()
{
    return TableBytes(kStations, kRecords);
}

std::string WithoutFields()
{
    return TableHeader(3, 33, 1) + "\r * ";
}

std::string WithDecimals()
{
    return TableBytes({{"VALUE", 'N', 6, 2}, {"BEHIND", 'C', 3}}, {"   12.25abc", " -1.5   xyz"});
}

std::string AllDeleted()
{
    return TableBytes(kStations, std::vector<std::string>(40, kRecords[1]));
}

/// Lengths and counts that are not true: what is read must end, and stay inside the record.
std::string WithLengths(unsigned records, int header, int record)
{
    return TableHeader(records, header, record) + Stations().substr(32);
}

std::string WithNegativeField()
{
    return TableBytes({{"A", 'C', 3}, {"B", 'C', -200}, {"C", 'C', 0x7FFF}, {"D", 'M', 2}}, {" abcde"});
}

/// The area behind the descriptors, where others keep a path, counts for descriptors too.
std::string WithBacklink()
{
    std::string table = Stations();
    table.insert(32 + 32 * kStations.size() + 1, std::string(263, '\0'));
    table.replace(8, 2, LittleEndian(33 + 32 * 3 + 263, 2));
    return table;
}

std::string Notes(const std::vector<std::string>& numbers)
{
    std::vector<std::string> records;
    for (const std::string& number : numbers)
    {
        records.push_back(" x" + std::string(10 - number.size(), ' ') + number);
    }
    return TableBytes({{"ID", 'C', 1}, {"NOTE", 'M', 10}}, records);
}

/// One record with a memo; only the record is coded.
std::string CodedNotes(const std::string& key)
{
    const std::string plain = Notes({"1"});
    const std::size_t begin = plain.size() - 12;
    return plain.substr(0, begin) + Coded(plain.substr(begin), key);
}

/// Marker and length of a memo stay plain.
std::string CodedMemo(const std::string& text, const std::string& key)
{
    return MemoBytes(text).replace(8, text.size(), Coded(text, key));
}

/// Key, table and memo file as one input: each of the first two behind its length, in 1 and 2 bytes.
std::string Together(const std::string& key, const std::string& table, const std::string& memo)
{
    return LittleEndian(static_cast<long long>(key.size()), 1) + key +
           LittleEndian(static_cast<long long>(table.size()), 2) + table + memo;
}

std::string MemoFile(const std::vector<std::string>& entries)
{
    std::string file;
    for (const std::string& entry : entries)
    {
        file += entry;
    }
    return MemoHeader(1 + static_cast<int>(file.size() / 512)) + file;
}

std::string EntryOfLength(long long length)
{
    return MemoBytes("text").replace(4, 4, LittleEndian(length, 4));
}

std::string OldEntry(const std::string& text)
{
    std::string entry = text;
    entry.resize(512);
    return entry;
}

/// Steps of two bytes, what and with which argument, behind their count; then key, table and memo file.
std::string Use(const std::string& steps, const std::string& whole)
{
    return LittleEndian(static_cast<long long>(steps.size() / 2), 1) + steps + whole;
}

} // namespace

std::map<std::string, std::string> TableSeeds()
{
    const std::string stations = Together("", Stations(), "");
    const std::string notes = Together("", Notes({"1", "2", "", "7"}), MemoFile({MemoBytes("one"), MemoBytes("two")}));
    return {
        {"table/stations", Stations()},
        {"table/without-fields", WithoutFields()},
        {"table/decimals", WithDecimals()},
        {"table/all-deleted", AllDeleted()},
        {"table/endless-count", WithLengths(0xFFFFFFFF, 129, 13)},
        {"table/negative-header", WithLengths(4, -1, 13)},
        {"table/negative-record", WithLengths(4, 129, -13)},
        {"table/no-record-length", WithLengths(4, 129, 0)},
        {"table/short-record", WithLengths(4, 129, 3)},
        {"table/short-descriptors", Stations().substr(0, 100)},
        {"table/negative-field", WithNegativeField()},
        {"table/backlink", WithBacklink()},
        {"table/cut-record", Stations().substr(0, 129 + 20)},
        {"tablememo/two", notes},
        {"tablememo/coded", Together("key", CodedNotes("key"), MemoFile({CodedMemo("one", "key")}))},
        {"tablememo/long", Together("", Notes({"1"}), MemoFile({MemoBytes(std::string(1200, 'm'))}))},
        {"tablememo/old", Together("", Notes({"1", "2"}), MemoFile({OldEntry("old\x1A\x1A"), OldEntry("no end")}))},
        {"tablememo/lengths", Together("", Notes({"1", "2", "3", "4"}),
                                       MemoFile({EntryOfLength(7), EntryOfLength(-1), EntryOfLength(0x7FFFFFFF),
                                                 EntryOfLength(0x80000008)}))},
        {"tablememo/numbers", Together("", Notes({"-1", "0", "9999999999", "1x"}), MemoFile({MemoBytes("one")}))},
        {"tablememo/behind", Together("", Notes({"1"}) + MemoFile({MemoBytes("behind")}), "")},
        {"tableuse/read", Use(std::string("\x00\x00\x01\x02\x02\x00\x03\x01", 8), stations)},
        {"tableuse/search", Use(std::string("\x04\x00\x05\x01\x06\x00\x07\x02\x08\x01", 10), stations)},
        {"tableuse/change", Use(std::string("\x00\x02\x09\x01\x0A\x00\x0B\x05\x0C\x00\x0D\x00", 12), stations)},
        {"tableuse/delete", Use(std::string("\x00\x00\x0E\x00\x01\x00\x0E\x00\x0F\x00\x02\x00", 12), stations)},
        {"tableuse/settings", Use(std::string("\x10\x03\x11\x01\x12\x20\x13\x00\x14\x00\x02\x00", 12), notes)},
        {"tableuse/memo", Use(std::string("\x15\x00\x16\x09\x02\x00\x00\x00\x17\x00\x18\x00", 12), notes)},
    };
}

} // namespace vorn::test
