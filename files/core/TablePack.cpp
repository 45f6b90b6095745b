#include "files/core/TablePack.h"

#include "files/core/NoThrow.h"
#include "files/core/RecordReader.h"

#include <algorithm>

namespace vorn
{
namespace
{
constexpr int kBlock = 64 * 1024;

class TablePacker
{
public:
    TablePacker(TableFile& table, const TableLayout& layout, const DecodeKey& key, CFile& packed)
        : m_reader(table, layout, key), m_table(table), m_layout(layout), m_packed(packed)
    {
        m_reader.SetReadAhead(kBlock / std::max(layout.recordLength, 1));
        m_reader.Start();
    }

    LONGLONG Run()
    {
        if (m_layout.recordLength < 1)
            return -1;
        m_pending.assign(m_layout.head.begin(), m_layout.head.end());
        while (m_reader.Read(-1))
            Add();
        WritePending();
        if (!IsAllRead())
            return -1;
        WriteCount();
        return m_layout.headerLength + LONGLONG{m_count} * m_layout.recordLength;
    }

private:
    void Add()
    {
        const char* record = m_reader.Record();
        m_pending.insert(m_pending.end(), record, record + m_layout.recordLength);
        ++m_count;
        if (m_pending.size() >= kBlock)
            WritePending();
    }

    void WritePending()
    {
        m_packed.Write(m_pending.data(), static_cast<UINT>(m_pending.size()));
        m_pending.clear();
    }

    void WriteCount()
    {
        char count[4];
        PutUInt32(count, static_cast<std::uint32_t>(m_count));
        m_packed.Seek(kCountOffset, CFile::begin);
        m_packed.Write(count, sizeof(count));
    }

    // A count beyond the file's end is no reason to keep a table unpacked; a record that is there and cannot be read
    // is.
    bool IsAllRead() const
    {
        const LONGLONG next = m_layout.PositionOf(m_reader.Current());
        return m_reader.Current() >= m_layout.records ||
               (m_table.Length() > 0 && next + m_layout.recordLength > m_table.Length());
    }

    RecordReader m_reader;
    TableFile& m_table;
    const TableLayout& m_layout;
    CFile& m_packed;
    std::vector<char> m_pending;
    int m_count = 0;
};
} // namespace

LONGLONG PackTable(TableFile& table, const TableLayout& layout, const DecodeKey& key, CFile& packed)
{
    return NoThrow<LONGLONG>(-1,
                             [&]
                             {
                                 return TablePacker(table, layout, key, packed).Run();
                             });
}
} // namespace vorn
