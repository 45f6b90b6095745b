#include "files/core/CDBFFile.h"

#include "files/core/NoThrow.h"
#include "files/core/TableBox.h"
#include "files/core/TableDump.h"
#include "files/core/TableState.h"

using vorn::NoThrow;

namespace
{
bool IsOwnFile(const vorn::TableState& state, const char* name)
{
    CFile other;
    other.SetFilePath(name);
    return other.GetFilePath().CompareNoCase(state.file.GetFilePath()) == 0;
}
} // namespace

void CDBFFile::DumpHeader()
{
    NoThrow(false,
            [this]
            {
                if (m_state->layout.IsTable())
                    for (const std::string& line : vorn::HeaderLines(m_state->layout, "\n"))
                        vorn::TableBox(line.c_str(), "Header");
                return true;
            });
}

void CDBFFile::DumpCurrentRecord()
{
    NoThrow(false,
            [this]
            {
                if (m_state->reader.Record() != nullptr)
                    vorn::TableBox(vorn::RecordText(m_state->layout, m_state->reader.Record()).c_str(), "");
                return true;
            });
}

int CDBFFile::DumpToFile(const char* name)
{
    return NoThrow(0,
                   [&]
                   {
                       CFile dump;
                       if (name == nullptr || !m_state->layout.IsTable() || IsOwnFile(*m_state, name) ||
                           !dump.Open(name, CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive))
                           return 0;
                       const bool isWritten = vorn::DumpTable(m_state->file, m_state->layout, m_state->key, dump);
                       dump.Close();
                       return isWritten ? 1 : 0;
                   });
}
