#include "framework/core/CString.h"
#include "framework/core/OleException.h"

#include <algorithm>
#include <cstring>

using vorn::StringData;

// Makes the block this string's own, with room for `capacity` characters; the text stays.
void CString::Reserve(int capacity)
{
    StringData* data = Data();
    if (!data->IsShared() && capacity <= data->capacity)
    {
        return;
    }
    StringData* block = vorn::AllocateString(std::max(capacity, data->length));
    std::memcpy(block->Text(), data->Text(), static_cast<std::size_t>(data->length) + 1);
    block->length = data->length;
    if (data->IsLocked())
    {
        block->refs = -1;
    }
    Replace(block);
}

// As Reserve(), with room ahead, so that a text built piece by piece is not copied for each piece.
void CString::Grow(int capacity)
{
    const int current = GetAllocLength();
    if (capacity > current && current > 0)
    {
        const long long ahead = static_cast<long long>(capacity) + capacity / 2;
        capacity = ahead > vorn::kMaxStringLength ? capacity : static_cast<int>(ahead);
    }
    Reserve(capacity);
}

char* CString::GetBuffer()
{
    Reserve(GetLength());
    return m_pszData;
}

char* CString::GetBuffer(int nMinBufferLength)
{
    if (nMinBufferLength < 0)
    {
        AtlThrow(E_INVALIDARG);
    }
    Reserve(std::max(nMinBufferLength, GetLength()));
    return m_pszData;
}

char* CString::GetBufferSetLength(int nLength)
{
    GetBuffer(nLength);
    SetLength(nLength);
    return m_pszData;
}

void CString::ReleaseBuffer(int nNewLength)
{
    if (nNewLength == -1)
    {
        const void* end = std::memchr(m_pszData, 0, static_cast<std::size_t>(GetAllocLength()) + 1);
        nNewLength = end != nullptr ? static_cast<int>(static_cast<const char*>(end) - m_pszData) : GetAllocLength();
    }
    ReleaseBufferSetLength(nNewLength);
}

void CString::ReleaseBufferSetLength(int nNewLength)
{
    if (nNewLength < 0 || nNewLength > GetAllocLength())
    {
        AtlThrow(E_INVALIDARG);
    }
    if (nNewLength == 0)
    {
        Empty();
        return;
    }
    GetBuffer();
    SetLength(nNewLength);
}

void CString::Truncate(int nNewLength)
{
    if (nNewLength < 0)
    {
        AtlThrow(E_INVALIDARG);
    }
    if (nNewLength < GetLength())
    {
        ReleaseBufferSetLength(nNewLength);
    }
}

char* CString::LockBuffer()
{
    GetBuffer();
    Data()->refs = -1;
    return m_pszData;
}

void CString::UnlockBuffer() noexcept
{
    StringData* data = Data();
    if (data->IsLocked())
    {
        data->refs = 1;
    }
}

void CString::FreeExtra()
{
    StringData* data = Data();
    if (data->IsShared() || data->IsLocked() || data->length == data->capacity)
    {
        return;
    }
    if (data->length == 0)
    {
        Empty();
        return;
    }
    StringData* block = vorn::AllocateString(data->length);
    std::memcpy(block->Text(), data->Text(), static_cast<std::size_t>(data->length) + 1);
    block->length = data->length;
    Replace(block);
}

void CString::Preallocate(int nLength)
{
    GetBuffer(nLength);
}
