#include "files/core/TableFile.h"

#include "files/core/GuardedWrite.h"
#include "files/core/NoThrow.h"

namespace vorn
{
bool TableFile::OpenTable(const char* name, UINT flags)
{
    Forget();
    m_position = 0;
    return NoThrow(false,
                   [&]
                   {
                       return CFile::Open(name, flags) != FALSE;
                   });
}

void TableFile::CloseTable()
{
    CFile::Abort();
}

bool TableFile::StandAt(LONGLONG position)
{
    if (position < 0)
        return false;
    if (position == m_position)
        return true;
    m_position = NoThrow<LONGLONG>(kUnknown,
                                   [&]
                                   {
                                       return static_cast<LONGLONG>(CFile::Seek(position, CFile::begin));
                                   });
    return position == m_position;
}

int TableFile::ReadAt(LONGLONG position, char* bytes, int count)
{
    if (!IsOpen() || !StandAt(position))
        return -1;
    const int got = NoThrow(-1,
                            [&]
                            {
                                return static_cast<int>(CFile::Read(bytes, static_cast<UINT>(count)));
                            });
    m_position = got < 0 ? kUnknown : position + got;
    return got;
}

// Nothing is replaced behind the end: what a failed write leaves there is cut off.
bool TableFile::Append(std::span<const char> bytes)
{
    const bool isWritten = NoThrow(false,
                                   [&]
                                   {
                                       CFile::Write(bytes.data(), static_cast<UINT>(bytes.size()));
                                       return true;
                                   });
    if (isWritten)
    {
        m_position += static_cast<LONGLONG>(bytes.size());
        m_end = m_position;
        return true;
    }
    NoThrow(false,
            [this]
            {
                CFile::SetLength(static_cast<ULONGLONG>(m_end));
                return true;
            });
    Forget();
    return false;
}

bool TableFile::WriteAt(LONGLONG position, std::span<const char> bytes)
{
    if (!IsOpen() || position < 0)
        return false;
    if (position == m_position && position == m_end)
        return Append(bytes);
    const unsigned touches = m_touches;
    const bool isWritten = WriteGuarded(*this, static_cast<ULONGLONG>(position), bytes);
    m_touches = touches;
    Forget();
    if (isWritten)
    {
        m_position = position + static_cast<LONGLONG>(bytes.size());
        m_end = Length();
    }
    return isWritten;
}

LONGLONG TableFile::Position() const
{
    return IsOpen() ? NoThrow<LONGLONG>(-1,
                                        [this]
                                        {
                                            return static_cast<LONGLONG>(GetPosition());
                                        })
                    : -1;
}

LONGLONG TableFile::Length() const
{
    return IsOpen() ? NoThrow<LONGLONG>(0,
                                        [this]
                                        {
                                            return static_cast<LONGLONG>(GetLength());
                                        })
                    : 0;
}

BOOL TableFile::Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    Touch();
    return CFile::Open(lpszFileName, nOpenFlags, pError);
}

void TableFile::Abort()
{
    Touch();
    CFile::Abort();
}

void TableFile::Close()
{
    Touch();
    CFile::Close();
}

UINT TableFile::Read(void* lpBuf, UINT nCount)
{
    Touch();
    return CFile::Read(lpBuf, nCount);
}

void TableFile::Write(const void* lpBuf, UINT nCount)
{
    Touch();
    CFile::Write(lpBuf, nCount);
}

ULONGLONG TableFile::Seek(LONGLONG lOff, UINT nFrom)
{
    Touch();
    return CFile::Seek(lOff, nFrom);
}

void TableFile::SetLength(ULONGLONG dwNewLen)
{
    Touch();
    CFile::SetLength(dwNewLen);
}
} // namespace vorn
