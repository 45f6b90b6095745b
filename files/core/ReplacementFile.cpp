#include "files/core/ReplacementFile.h"

#include "files/core/NoThrow.h"
#include "framework/core/FileSystem.h"

namespace vorn
{
ReplacementFile::ReplacementFile(const CString& name) : m_name(name), m_ownName(name + ".tmp")
{
}

ReplacementFile::~ReplacementFile()
{
    if (!m_isMade)
        return;
    m_file.Abort();
    NoThrow(false,
            [this]
            {
                CFile::Remove(m_ownName);
                return true;
            });
}

bool ReplacementFile::Make()
{
    m_isMade = NoThrow(false,
                       [this]
                       {
                           return m_file.Open(m_ownName,
                                              CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive) != FALSE;
                       });
    return m_isMade;
}

bool ReplacementFile::Finish(ULONGLONG length)
{
    return NoThrow(false,
                   [&]
                   {
                       m_file.Flush();
                       const bool isWhole = m_file.GetLength() == length;
                       m_file.Close();
                       return isWhole;
                   });
}

bool ReplacementFile::TakePlace()
{
    if (MoveFileOver(m_ownName, m_name) != 0)
        return false;
    m_isMade = false;
    return true;
}
} // namespace vorn
