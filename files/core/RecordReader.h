#pragma once

/// @file
/// The records of a table, one after the other or by number, read ahead in blocks.
#include "files/core/DecodeKey.h"
#include "files/core/TableFile.h"
#include "files/core/TableLayout.h"

#include <memory>

namespace vorn
{
/// Has one record current, which it takes from its block without a copy.
class RecordReader
{
public:
    /// The three outlive the reader.
    RecordReader(TableFile& file, const TableLayout& layout, const DecodeKey& key);

    /// Begins anew after the layout changed; the file stands where the first read goes on.
    void Start();
    /// Records of one read; below 1 is 1. What was read ahead is dropped.
    void SetReadAhead(int records);

    /// Makes a record current, or the next live one when it is deleted; -1 reads on. False when there is none.
    bool Read(int index)
    {
        return (index < 0 && Step()) || Find(index);
    }
    /// The same, fetching no more than the one record at first.
    bool ReadOne(int index);
    /// Reads one record, deleted or not, into `bytes` (a record's length); the current record stays.
    bool Peek(int index, char* bytes);

    /// -1 before the first read; the number of records past the end.
    int Current() const
    {
        return m_current;
    }
    /// The bytes of the record read last, with kTrimMargin readable ones in front; null when there is none.
    char* Record() const
    {
        return m_record;
    }
    /// Whether these are the current record's: not after a read that failed.
    bool IsRecordCurrent() const
    {
        return m_isCurrent;
    }
    /// A record of blanks to be filled, when there is none. Null when the table has no room for one.
    char* RecordToFill();

    /// Where the table's user stands: behind the current record, or where he moved the file. -1 when unknown.
    LONGLONG Position() const;
    /// Puts him elsewhere; reading on will seek.
    void SetPosition(LONGLONG position);
    /// Whether he moved or changed the file since the reader used it.
    bool IsTouched() const
    {
        return m_touches != m_file.Touches();
    }

private:
    static constexpr unsigned kNowhere = ~0U;

    // The record after the current one; -1, with the current one past the end, when there is none.
    int Following()
    {
        if (m_current < m_layout.records - 1)
            return m_current + 1;
        m_current = m_layout.records;
        m_isCurrent = false;
        m_left = 0; // what lies ahead no longer follows the current one
        return -1;
    }

    // Most reads: the next record lies ahead in the block, is live and not coded. The current one is then the one
    // before, so only what differs is stored. False, with nothing changed, for any other.
    bool Step()
    {
        char* record = m_ahead;
        if (m_left == 0 || m_current >= m_layout.records - 1 || IsTouched() || m_key.IsSet() || *record == '*')
            return false;
        m_record = record;
        m_ahead = record + m_layout.recordLength;
        --m_left;
        m_next = static_cast<unsigned>(++m_current) + 1;
        return true;
    }

    bool Find(int index);
    bool Take(int index);
    bool Fill(int index);
    int ReadBlock(int index);
    bool MakeBlock();
    int RecordsOfBlock() const;

    TableFile& m_file;
    const TableLayout& m_layout;
    const DecodeKey& m_key;

    std::unique_ptr<char[]> m_block;
    int m_blockRecords = 0; ///< Room in the block.
    int m_readAhead = 1;    ///< As asked for.
    bool m_onlyOne = false; ///< The next read of the file takes a single record.

    char* m_record = nullptr;
    char* m_ahead = nullptr;    ///< The next record in the block.
    int m_left = 0;             ///< Records from there on.
    unsigned m_next = kNowhere; ///< Number of the record that the user stands at.
    int m_current = -1;
    bool m_isCurrent = false;
    LONGLONG m_position = -1; ///< Where he stands when that is no record.
    unsigned m_touches = 0;
};
} // namespace vorn
