#include "framework/core/MemFile.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <utility>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

namespace
{
constexpr std::size_t kMaxSize = std::numeric_limits<std::size_t>::max() / 2;
}

CMemFile::CMemFile(UINT nGrowBytes) : m_growBytes(nGrowBytes)
{
}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : m_growBytes(nGrowBytes)
{
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile()
{
    ReleaseBlock();
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes)
{
    if (lpBuffer == nullptr && nBufferSize > 0)
    {
        AfxThrowInvalidArgException();
    }
    ReleaseBlock();
    m_data = lpBuffer;
    m_capacity = nBufferSize;
    m_length = nGrowBytes == 0 ? nBufferSize : 0;
    m_growBytes = nGrowBytes;
    m_ownsBlock = false;
}

BYTE* CMemFile::Detach()
{
    BYTE* data = std::exchange(m_data, nullptr);
    ReleaseBlock();
    return data;
}

void CMemFile::Free(BYTE* lpMem) noexcept
{
    std::free(lpMem);
}

void CMemFile::ReleaseBlock() noexcept
{
    if (m_ownsBlock)
    {
        std::free(m_data);
    }
    m_data = nullptr;
    m_capacity = 0;
    m_length = 0;
    m_position = 0;
    m_ownsBlock = true;
}

UINT CMemFile::Read(void* lpBuf, UINT nCount)
{
    const std::size_t left = m_position < m_length ? m_length - m_position : 0;
    const std::size_t count = std::min<std::size_t>(nCount, left);
    if (count > 0)
    {
        std::memcpy(lpBuf, m_data + m_position, count);
        m_position += count;
    }
    return static_cast<UINT>(count);
}

void CMemFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
    {
        return;
    }
    if (m_position > kMaxSize - nCount)
    {
        AfxThrowMemoryException();
    }
    const std::size_t newPosition = m_position + nCount;
    if (newPosition > m_length)
    {
        SetLengthKeepingPosition(newPosition);
    }
    std::memcpy(m_data + m_position, lpBuf, nCount);
    m_position = newPosition;
}

void CMemFile::Flush()
{
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom)
{
    const std::size_t start = nFrom == begin ? 0 : (nFrom == current ? m_position : m_length);
    const bool isTooFar = lOff > 0 && static_cast<ULONGLONG>(lOff) > kMaxSize - start;
    if (nFrom > end || isTooFar || lOff < -static_cast<LONGLONG>(start))
    {
        AfxThrowFileException(CFileException::badSeek);
    }
    m_position = static_cast<std::size_t>(static_cast<LONGLONG>(start) + lOff);
    return m_position;
}

ULONGLONG CMemFile::GetPosition() const
{
    return m_position;
}

ULONGLONG CMemFile::GetLength() const
{
    return m_length;
}

void CMemFile::SetLength(ULONGLONG dwNewLen)
{
    if (dwNewLen > kMaxSize)
    {
        AfxThrowMemoryException();
    }
    SetLengthKeepingPosition(static_cast<std::size_t>(dwNewLen));
    m_position = m_length;
}

void CMemFile::SetLengthKeepingPosition(std::size_t length)
{
    Reserve(length);
    if (length > m_length)
    {
        std::memset(m_data + m_length, 0, length - m_length);
    }
    m_length = length;
}

void CMemFile::Reserve(std::size_t size)
{
    if (size <= m_capacity)
    {
        return;
    }
    if (m_growBytes == 0)
    {
        AfxThrowMemoryException();
    }
    const std::size_t ahead = std::min(kMaxSize, std::max(size, m_capacity + m_capacity / 2));
    const std::size_t capacity = std::min(kMaxSize, (ahead / m_growBytes + 1) * m_growBytes);
    void* block = std::realloc(m_ownsBlock ? m_data : nullptr, capacity);
    if (block == nullptr)
    {
        AfxThrowMemoryException();
    }
    if (!m_ownsBlock && m_length > 0)
    {
        std::memcpy(block, m_data, m_length);
    }
    m_data = static_cast<BYTE*>(block);
    m_capacity = capacity;
    m_ownsBlock = true;
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

CFile* CMemFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

void CMemFile::Abort()
{
    ReleaseBlock();
}

void CMemFile::Close()
{
    ReleaseBlock();
}
