#include "framework/core/CString.h"

#include "framework/core/OleException.h"
#include "framework/core/ShortCopy.h"
#include "framework/core/StringResourceHook.h"

#include <algorithm>
#include <cstring>

using vorn::AllocateString;
using vorn::StringData;

namespace
{
StringData* MakeCopy(const char* text, int length)
{
    if (length == 0)
    {
        return &vorn::g_emptyString.data;
    }
    if (length < 0 || text == nullptr)
    {
        AtlThrow(E_INVALIDARG);
    }
    StringData* data = AllocateString(length);
    char* copy = data->Text();
    vorn::CopyText(copy, text, static_cast<std::size_t>(length));
    copy[length] = '\0';
    data->length = length;
    return data;
}

int AddLengths(int first, int second)
{
    const long long sum = static_cast<long long>(first) + second;
    if (sum > vorn::kMaxStringLength)
    {
        AfxThrowMemoryException();
    }
    return static_cast<int>(sum);
}
} // namespace

// --- Making, copying, ending ---

CString::CString(const char* pszSrc) : m_pszData(vorn::g_emptyString.data.Text())
{
    if (vorn::IsStringResource(pszSrc))
    {
        vorn::LoadStringResource(*this, pszSrc);
        return;
    }
    m_pszData = MakeCopy(pszSrc, StringLength(pszSrc))->Text();
}

CString::CString(const char* pchSrc, int nLength) : m_pszData(MakeCopy(pchSrc, nLength)->Text())
{
}

CString::CString(const unsigned char* pszSrc) : CString(reinterpret_cast<const char*>(pszSrc))
{
}

CString::CString(char ch, int nRepeat) : CString()
{
    if (nRepeat > 0)
    {
        std::memset(GetBufferSetLength(nRepeat), ch, static_cast<std::size_t>(nRepeat));
    }
}

CString& CString::operator=(const CString& strSrc)
{
    if (this == &strSrc || m_pszData == strSrc.m_pszData)
    {
        return *this;
    }
    if (Data()->IsLocked())
    {
        SetString(strSrc.m_pszData, strSrc.GetLength());
    }
    else
    {
        Replace(Share(strSrc.Data()));
    }
    return *this;
}

CString& CString::operator=(CString&& strSrc) noexcept(false)
{
    if (Data()->IsLocked() || strSrc.Data()->IsLocked())
    {
        return *this = static_cast<const CString&>(strSrc);
    }
    if (this != &strSrc)
    {
        Replace(strSrc.Data());
        strSrc.m_pszData = vorn::g_emptyString.data.Text();
    }
    return *this;
}

CString& CString::operator=(const char* pszSrc)
{
    SetString(pszSrc);
    return *this;
}

CString& CString::operator=(const unsigned char* pszSrc)
{
    SetString(reinterpret_cast<const char*>(pszSrc));
    return *this;
}

CString& CString::operator=(char ch)
{
    SetString(&ch, 1);
    return *this;
}

StringData* CString::CopyOf(StringData* data)
{
    return MakeCopy(data->Text(), data->length);
}

void CString::Replace(StringData* data) noexcept
{
    Release(Data());
    m_pszData = data->Text();
}

CString CString::FromTwo(const char* first, int firstLength, const char* second, int secondLength)
{
    StringData* data = AllocateString(AddLengths(firstLength, secondLength));
    vorn::CopyText(data->Text(), first, static_cast<std::size_t>(firstLength));
    CopyChars(data->Text() + firstLength, second, secondLength);
    CString result(data);
    result.SetLength(firstLength + secondLength);
    return result;
}

// --- Characters ---

char CString::GetAt(int iChar) const
{
    if (iChar < 0 || iChar > GetLength())
    {
        AtlThrow(E_INVALIDARG);
    }
    return m_pszData[iChar];
}

void CString::SetAt(int iChar, char ch)
{
    if (iChar < 0 || iChar >= GetLength())
    {
        AtlThrow(E_INVALIDARG);
    }
    GetBuffer()[iChar] = ch;
}

int CString::StringLength(const char* psz) noexcept
{
    return psz != nullptr ? static_cast<int>(vorn::TextLength(psz)) : 0;
}

void CString::CopyChars(char* pchDest, const char* pchSrc, int nChars) noexcept
{
    if (nChars > 0)
    {
        std::memmove(pchDest, pchSrc, static_cast<std::size_t>(nChars));
    }
}

// --- Assigning and appending ---

void CString::Empty() noexcept
{
    StringData* data = Data();
    if (data->IsLocked())
    {
        SetLength(0);
    }
    else
    {
        Replace(&vorn::g_emptyString.data);
    }
}

void CString::SetString(const char* pszSrc)
{
    SetString(pszSrc, StringLength(pszSrc));
}

void CString::SetString(const char* pchSrc, int nLength)
{
    if (nLength == 0)
    {
        Empty();
        return;
    }
    StringData* data = Data();
    if (nLength < 0 || data->IsShared() || nLength > data->capacity)
    {
        StringData* copy = MakeCopy(pchSrc, nLength);
        if (data->IsLocked())
        {
            copy->refs = -1;
        }
        Replace(copy);
        return;
    }
    if (pchSrc == nullptr)
    {
        AtlThrow(E_INVALIDARG);
    }
    CopyChars(m_pszData, pchSrc, nLength);
    SetLength(nLength);
}

void CString::Append(const char* pszSrc)
{
    Append(pszSrc, StringLength(pszSrc));
}

void CString::Append(const char* pchSrc, int nLength)
{
    if (nLength < 0 || (nLength > 0 && pchSrc == nullptr))
    {
        AtlThrow(E_INVALIDARG);
    }
    const int oldLength = GetLength();
    const int newLength = AddLengths(oldLength, nLength);
    const bool isOwnText = pchSrc >= m_pszData && pchSrc <= m_pszData + oldLength;
    const auto offset = isOwnText ? pchSrc - m_pszData : 0;
    Grow(newLength);
    CopyChars(m_pszData + oldLength, isOwnText ? m_pszData + offset : pchSrc, nLength);
    SetLength(newLength);
}

void CString::Append(const CString& strSrc)
{
    Append(strSrc.m_pszData, strSrc.GetLength());
}

void CString::AppendChar(char ch)
{
    StringData* data = Data();
    if (data->IsShared() || data->length == data->capacity)
    {
        Append(&ch, 1);
        return;
    }
    m_pszData[data->length] = ch;
    SetLength(data->length + 1);
}

CString& CString::operator+=(const CString& strSrc)
{
    Append(strSrc);
    return *this;
}

CString& CString::operator+=(const char* pszSrc)
{
    Append(pszSrc);
    return *this;
}

CString& CString::operator+=(char ch)
{
    AppendChar(ch);
    return *this;
}

CString operator+(const CString& first, const CString& second)
{
    return CString::FromTwo(first, first.GetLength(), second, second.GetLength());
}

CString operator+(const CString& first, const char* second)
{
    return CString::FromTwo(first, first.GetLength(), second, CString::StringLength(second));
}

CString operator+(const char* first, const CString& second)
{
    return CString::FromTwo(first != nullptr ? first : "", CString::StringLength(first), second, second.GetLength());
}

CString operator+(const CString& first, char second)
{
    return CString::FromTwo(first, first.GetLength(), &second, 1);
}

CString operator+(char first, const CString& second)
{
    return CString::FromTwo(&first, 1, second, second.GetLength());
}
