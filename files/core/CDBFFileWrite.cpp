#include "files/core/CDBFFile.h"

#include "files/core/GuardedWrite.h"
#include "files/core/NoThrow.h"
#include "files/core/TableState.h"

#include <algorithm>

using vorn::NoThrow;
using vorn::TableState;

namespace
{
std::span<const char> RecordOf(const TableState& state)
{
    const char* record = state.reader.Record();
    return {record, record != nullptr ? static_cast<std::size_t>(state.layout.recordLength) : 0};
}

bool WriteOwn(TableState& state, LONGLONG position, std::span<const char> bytes)
{
    if (!state.file.WriteAt(position, bytes))
        return false;
    state.reader.SetPosition(position + static_cast<LONGLONG>(bytes.size()));
    return true;
}

// The user's place in the file stays.
bool WriteOwnCount(TableState& state, std::span<const char> count)
{
    const bool isTouched = state.reader.IsTouched();
    const LONGLONG position = state.reader.Position();
    const bool isWritten = state.file.WriteAt(LONGLONG{state.layout.baseOffset} + vorn::kCountOffset, count);
    if (isTouched)
        state.reader.SetPosition(position);
    return isWritten;
}

bool WriteCountTo(CFile& file, std::span<const char> count)
{
    const ULONGLONG position = file.GetPosition();
    const bool isWritten = vorn::WriteGuarded(file, vorn::kCountOffset, count);
    file.Seek(static_cast<LONGLONG>(position), CFile::begin);
    return isWritten;
}

// Where an entry of the open memo file goes: behind all others.
ULONGLONG FreeMemoPosition(const CFile& memo)
{
    const ULONGLONG blocks = (memo.GetLength() + vorn::kMemoBlock - 1) / vorn::kMemoBlock;
    return blocks * vorn::kMemoBlock;
}

bool WriteMemoHead(CFile& memo)
{
    const ULONGLONG blocks = std::max<ULONGLONG>(FreeMemoPosition(memo) / vorn::kMemoBlock, 1);
    if (!vorn::WriteGuarded(memo, 0, vorn::MemoHead(static_cast<std::uint32_t>(blocks))))
        return false;
    if (memo.GetLength() % vorn::kMemoBlock != 0)
        memo.SetLength(FreeMemoPosition(memo));
    memo.SeekToEnd();
    return true;
}

long WriteMemo(CFile& memo, ULONGLONG position, std::string_view text)
{
    const std::vector<char> entry = vorn::MemoEntry(text, position);
    if (entry.empty() || !vorn::WriteGuarded(memo, position, entry))
        return 0;
    return static_cast<long>((position + entry.size()) / vorn::kMemoBlock);
}
} // namespace

int CDBFFile::WriteHeader(CFile* file)
{
    TableState& state = *m_state;
    return NoThrow(0,
                   [&]
                   {
                       const std::vector<char>& head = state.layout.head;
                       if (head.empty())
                           return 0;
                       const bool isWritten = file != nullptr ? vorn::WriteGuarded(*file, 0, head)
                                                              : WriteOwn(state, state.layout.baseOffset, head);
                       return isWritten ? 1 : 0;
                   });
}

int CDBFFile::WriteRecord(CFile* file)
{
    TableState& state = *m_state;
    return NoThrow(0,
                   [&]
                   {
                       const std::span<const char> record = RecordOf(state);
                       if (record.empty())
                           return 0;
                       const bool isWritten = file != nullptr ? vorn::WriteGuarded(*file, file->GetPosition(), record)
                                                              : WriteOwn(state, state.reader.Position(), record);
                       return isWritten ? 1 : 0;
                   });
}

int CDBFFile::WriteNumRecords(CFile* file, int records)
{
    TableState& state = *m_state;
    char count[4];
    vorn::PutUInt32(count, static_cast<std::uint32_t>(records));
    return NoThrow(0,
                   [&]
                   {
                       if (file != nullptr)
                           return WriteCountTo(*file, count) ? 1 : 0;
                       if (records < 0 || !state.layout.IsTable() || !WriteOwnCount(state, count))
                           return 0;
                       state.layout.SetRecords(records);
                       return 1;
                   });
}

int CDBFFile::WriteDBTHeader(CFile* file)
{
    return NoThrow(0,
                   [&]
                   {
                       CFile& memo = file != nullptr ? *file : m_state->memo;
                       return (file != nullptr || m_state->HasMemo()) && WriteMemoHead(memo) ? 1 : 0;
                   });
}

long CDBFFile::WriteDBTRecord(CFile* file, const char* text)
{
    return NoThrow(0L,
                   [&]
                   {
                       const std::string_view characters = text != nullptr ? text : "";
                       if (file != nullptr)
                           return WriteMemo(*file, file->GetPosition(), characters);
                       CFile& memo = m_state->memo;
                       return m_state->HasMemo() ? WriteMemo(memo, FreeMemoPosition(memo), characters) : 0L;
                   });
}

void CDBFFile::DeleteRecord()
{
    TableState& state = *m_state;
    char* record = state.reader.Record();
    if (record == nullptr || !state.reader.IsRecordCurrent())
        return;
    const char flag = *record;
    *record = '*';
    if (!state.file.WriteAt(state.layout.PositionOf(state.reader.Current()), RecordOf(state)))
        *record = flag;
}
