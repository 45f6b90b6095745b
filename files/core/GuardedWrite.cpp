#include "files/core/GuardedWrite.h"

#include "files/core/NoThrow.h"

#include <algorithm>
#include <vector>

namespace vorn
{
namespace
{
// What stands at the place of a write.
class OldContent
{
public:
    OldContent(CFile& file, ULONGLONG position, std::size_t count)
        : m_file(file), m_position(position), m_length(file.GetLength())
    {
        if (position < m_length)
        {
            m_bytes.resize(static_cast<std::size_t>(std::min<ULONGLONG>(count, m_length - position)));
            m_bytes.resize(NoThrow<UINT>(0,
                                         [this]
                                         {
                                             return ReadBytes();
                                         }));
        }
        file.Seek(static_cast<LONGLONG>(position), CFile::begin);
    }

    void PutBack()
    {
        NoThrow(false,
                [this]
                {
                    return PutBytesBack();
                });
        NoThrow(false,
                [this]
                {
                    return CutAdded();
                });
        NoThrow<ULONGLONG>(0,
                           [this]
                           {
                               return m_file.Seek(static_cast<LONGLONG>(m_position), CFile::begin);
                           });
    }

private:
    UINT ReadBytes()
    {
        m_file.Seek(static_cast<LONGLONG>(m_position), CFile::begin);
        return m_file.Read(m_bytes.data(), static_cast<UINT>(m_bytes.size()));
    }
    bool PutBytesBack()
    {
        if (!m_bytes.empty())
        {
            m_file.Seek(static_cast<LONGLONG>(m_position), CFile::begin);
            m_file.Write(m_bytes.data(), static_cast<UINT>(m_bytes.size()));
        }
        return true;
    }
    bool CutAdded()
    {
        if (m_file.GetLength() > m_length)
            m_file.SetLength(m_length);
        return true;
    }

    CFile& m_file;
    ULONGLONG m_position;
    ULONGLONG m_length;
    std::vector<char> m_bytes;
};
} // namespace

bool WriteGuarded(CFile& file, ULONGLONG position, std::span<const char> bytes)
{
    return NoThrow(false,
                   [&]
                   {
                       OldContent old(file, position, bytes.size());
                       const bool isWritten = NoThrow(false,
                                                      [&]
                                                      {
                                                          file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
                                                          return true;
                                                      });
                       if (!isWritten)
                           old.PutBack();
                       return isWritten;
                   });
}
} // namespace vorn
