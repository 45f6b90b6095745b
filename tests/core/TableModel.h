#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vorn::test
{

/// A dBASE table in memory, worked on in the plainest way: what CDBFFile is to do, without files, blocks and short
/// cuts.
class TableModel
{
public:
    struct Field
    {
        std::string name;
        char type;
        int length;
        int offset;
    };

    explicit TableModel(std::string bytes);

    /// As CDBFFile::ReadRecord(), NextRecord() and Query().
    bool ReadRecord(int index);
    bool NextRecord();
    bool Query(int field, const std::string& value, bool caseSensitive);
    std::string Value(int field) const;
    void SetValue(int field, const std::string& value);
    void DeleteRecord();
    /// Writes the record buffer over a record.
    void WriteRecordAt(int index);
    void SetKey(const std::string& key);

    /// Whether the last read gave a record.
    bool HasRecord() const
    {
        return m_hasRecord;
    }
    int Current() const
    {
        return m_current;
    }
    int Count() const
    {
        return m_count;
    }
    const std::vector<Field>& Fields() const
    {
        return m_fields;
    }
    const std::string& Bytes() const
    {
        return m_bytes;
    }

private:
    int Word(std::size_t at) const;
    std::size_t PositionOf(int index) const;
    bool Take(int index);
    bool Matches() const;

    std::string m_bytes;
    std::vector<Field> m_fields;
    int m_headerLength;
    int m_recordLength;
    int m_count;
    int m_current = -1;
    bool m_hasRecord = false;
    std::string m_record;
    std::string m_key;
    int m_queryField = -1;
    std::string m_queryValue;
    bool m_queryCaseSensitive = false;
};

} // namespace vorn::test
