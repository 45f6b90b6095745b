#include "files/core/CDBFFile.h"

#include "files/core/NoThrow.h"
#include "files/core/ReplacementFile.h"
#include "files/core/TablePack.h"
#include "files/core/TableState.h"

#include <algorithm>
#include <cstring>

using vorn::NoThrow;
using vorn::TableState;

namespace
{
constexpr UINT kSharing = 0x70;

// Local time; null when it cannot be had.
const std::tm* LocalNow(std::tm& parts)
{
    const std::time_t now = std::time(nullptr);
#ifdef _WIN32
    return localtime_s(&parts, &now) == 0 ? &parts : nullptr;
#else
    return localtime_r(&now, &parts);
#endif
}

std::vector<char> NewHead(const TableState& state)
{
    std::tm parts{};
    return state.layout.baseOffset == 0 ? vorn::MakeHead(state.layout.fields, LocalNow(parts)) : std::vector<char>();
}

bool WriteNewTable(const CString& name, const std::vector<char>& head)
{
    vorn::ReplacementFile table(name);
    if (head.empty() || !table.Make())
        return false;
    table.File().Write(head.data(), static_cast<UINT>(head.size()));
    return table.Finish(head.size()) && table.TakePlace();
}

bool OpenTable(TableState& state, const char* name, UINT mode)
{
    state.name = name;
    state.mode = mode & ~kSharing;
    return state.file.OpenTable(name, state.mode | CFile::shareDenyWrite) && state.ReadHead();
}

// A table that could not be replaced goes on being read where it was.
bool ReplaceTable(TableState& state, vorn::ReplacementFile& packed)
{
    const LONGLONG position = state.reader.Position();
    state.file.CloseTable();
    if (packed.TakePlace())
        return true;
    state.file.OpenTable(state.name, (state.mode & ~static_cast<UINT>(CFile::modeCreate)) | CFile::shareDenyWrite);
    state.reader.SetPosition(position);
    return false;
}

bool Pack(TableState& state)
{
    if (!state.file.IsOpen() || !state.layout.IsTable() || state.layout.baseOffset != 0)
        return false;
    vorn::ReplacementFile packed(state.name);
    if (!packed.Make())
        return false;
    const LONGLONG length = vorn::PackTable(state.file, state.layout, state.key, packed.File());
    return length >= 0 && packed.Finish(static_cast<ULONGLONG>(length)) && ReplaceTable(state, packed);
}
} // namespace

CDBFFile::CDBFFile(int bufferRecords) : m_state(std::make_unique<TableState>())
{
    SetBufferSize(bufferRecords);
}

CDBFFile::~CDBFFile()
{
    m_state->CloseFiles();
}

int CDBFFile::Open(const char* name, int mode)
{
    Close();
    const bool isOpen = NoThrow(false,
                                [&]
                                {
                                    if (name == nullptr || !OpenTable(*m_state, name, static_cast<UINT>(mode)))
                                        return false;
                                    m_state->OpenMemo();
                                    return true;
                                });
    if (!isOpen)
        Close();
    return isOpen ? 1 : 0;
}

int CDBFFile::Create(const char* name)
{
    const bool isMade = NoThrow(false,
                                [&]
                                {
                                    const std::vector<char> head = NewHead(*m_state);
                                    m_state->CloseFiles();
                                    m_state->reader.Start();
                                    return name != nullptr && WriteNewTable(name, head);
                                });
    if (!isMade)
        return 0;
    const bool isOpen = NoThrow(false,
                                [&]
                                {
                                    return OpenTable(*m_state, name, CFile::modeReadWrite);
                                });
    if (!isOpen)
        Close();
    return isOpen ? 1 : 0;
}

void CDBFFile::AddNewField(const char* name, char type, int length)
{
    NoThrow(false,
            [&]
            {
                vorn::AppendField(m_state->layout.fields, name != nullptr ? name : "", type, length);
                m_state->names.Forget();
                return true;
            });
}

int CDBFFile::Close()
{
    m_state->CloseFiles();
    m_state->ForgetTable();
    return 1;
}

int CDBFFile::ReadRecord(int index)
{
    return index >= -1 && m_state->reader.Read(index) ? 1 : 0;
}

int CDBFFile::NextRecord()
{
    TableState& state = *m_state;
    if (state.reader.Current() < 0 || !state.reader.Read(-1))
        return 0;
    if (state.query.field < 0)
        return 1;
    return NoThrow(0,
                   [&]
                   {
                       vorn::FieldScratch scratch;
                       return state.IsMatch(scratch) ? 1 : 0;
                   });
}

int CDBFFile::Pack()
{
    const bool isPacked = NoThrow(false,
                                  [this]
                                  {
                                      return ::Pack(*m_state);
                                  });
    if (isPacked)
        Close();
    return isPacked ? 0 : -1;
}

int CDBFFile::GetBufferSize() const
{
    return m_state->readAhead;
}

void CDBFFile::SetBufferSize(int records)
{
    m_state->readAhead = std::max(records, 0);
    m_state->reader.SetReadAhead(records);
}

void CDBFFile::SetBaseOffset(int offset)
{
    m_state->layout.baseOffset = offset;
    if (m_state->file.IsOpen())
        m_state->ReadHead();
}

void CDBFFile::SetDecodeString(const char* key, int length)
{
    NoThrow(false,
            [&]
            {
                const std::size_t size = key == nullptr ? 0
                                         : length < 1   ? std::strlen(key)
                                                        : static_cast<std::size_t>(length);
                m_state->key.Set({key, size});
                return true;
            });
}
