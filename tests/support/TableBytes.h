#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorn::test
{

/// The bytes of a dBASE III table, put together by hand: nothing of the library under test is used.
class TableBytes
{
public:
    /// A field; `decimals` is the descriptor's byte 17, for other types than numbers the length's high byte.
    TableBytes& Field(std::string_view name, char type, int length, int decimals = 0);
    /// A record, flag and all: padded with blanks or cut to the sum of the field lengths.
    TableBytes& Record(std::string_view values, char flag = ' ');

    /// What the header says in place of the truth.
    TableBytes& StateHeaderLength(int length);
    TableBytes& StateRecordLength(int length);
    TableBytes& StateCount(unsigned long count);
    /// The bytes behind the descriptors in place of one 0x0D.
    TableBytes& EndHeaderWith(std::string_view end);
    TableBytes& Date(int year, int month, int day);

    int HeaderLength() const;
    int RecordLength() const;
    std::string Header() const;
    std::string Bytes() const;

private:
    struct Descriptor
    {
        std::string name;
        char type;
        int length;
        int decimals;
    };

    std::vector<Descriptor> m_fields;
    std::vector<std::string> m_records;
    std::string m_end = "\r";
    std::string m_date = std::string("\x7E\x0B\x15", 3);
    std::optional<int> m_headerLength;
    std::optional<int> m_recordLength;
    std::optional<unsigned long> m_count;
};

/// `value` in `size` bytes, lowest first.
std::string LittleEndian(unsigned long value, int size);

/// A memo entry with its mark, length and zeros up to a multiple of 512.
std::string MemoEntryBytes(std::string_view text);

/// `text` with `count` blanks behind, or cut, to a width.
std::string Padded(std::string_view text, std::size_t width, char with = ' ');

/// Bytes XORed with the key from its start.
std::string Scrambled(std::string bytes, std::string_view key);

} // namespace vorn::test
