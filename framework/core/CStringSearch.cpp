#include "framework/core/AsciiText.h"
#include "framework/core/CString.h"
#include "framework/core/OleException.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace
{
std::string_view View(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

std::string_view View(const char* text)
{
    return text != nullptr ? std::string_view(text) : std::string_view();
}

int Index(std::size_t position)
{
    return position == std::string_view::npos ? -1 : static_cast<int>(position);
}

int Sign(int difference, std::size_t first, std::size_t second)
{
    if (difference != 0)
    {
        return difference < 0 ? -1 : 1;
    }
    return first == second ? 0 : (first < second ? -1 : 1);
}

int CompareViews(std::string_view first, std::string_view second)
{
    return Sign(std::char_traits<char>::compare(first.data(), second.data(), std::min(first.size(), second.size())),
                first.size(), second.size());
}

int CompareViewsNoCase(std::string_view first, std::string_view second)
{
    const std::size_t common = std::min(first.size(), second.size());
    int difference = 0;
    for (std::size_t i = 0; i < common && difference == 0; ++i)
    {
        difference = static_cast<unsigned char>(vorn::ToLowerAscii(first[i])) -
                     static_cast<unsigned char>(vorn::ToLowerAscii(second[i]));
    }
    return Sign(difference, first.size(), second.size());
}
} // namespace

int CString::Find(char ch, int iStart) const
{
    return iStart < 0 ? -1 : Index(View(*this).find(ch, static_cast<std::size_t>(iStart)));
}

int CString::Find(const char* pszSub, int iStart) const
{
    if (pszSub == nullptr || iStart < 0 || iStart > GetLength())
    {
        return -1;
    }
    return Index(View(*this).find(pszSub, static_cast<std::size_t>(iStart)));
}

int CString::ReverseFind(char ch) const
{
    return Index(View(*this).rfind(ch));
}

int CString::FindOneOf(const char* pszCharSet) const
{
    return Index(View(*this).find_first_of(View(pszCharSet)));
}

int CString::Compare(const char* psz) const noexcept
{
    return CompareViews(View(*this), View(psz));
}

int CString::Compare(const CString& str) const noexcept
{
    return CompareViews(View(*this), View(str));
}

bool CString::Equals(const char* psz) const noexcept
{
    const char* other = psz != nullptr ? psz : "";
    const int length = GetLength();
    for (int i = 0; i < length; ++i)
    {
        if (m_pszData[i] != other[i] || other[i] == '\0')
        {
            return false;
        }
    }
    return other[length] == '\0';
}

bool CString::Equals(const CString& str) const noexcept
{
    return m_pszData == str.m_pszData || View(*this) == View(str);
}

int CString::CompareNoCase(const char* psz) const noexcept
{
    return CompareViewsNoCase(View(*this), View(psz));
}

int CString::Collate(const char* psz) const noexcept
{
    return Sign(std::strcoll(m_pszData, psz != nullptr ? psz : ""), 0, 0);
}

int CString::CollateNoCase(const char* psz) const noexcept
{
    return CompareNoCase(psz);
}

CString CString::Left(int nCount) const
{
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const
{
    const int count = std::clamp(nCount, 0, GetLength());
    return Mid(GetLength() - count, count);
}

CString CString::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength());
}

CString CString::Mid(int iFirst, int nCount) const
{
    const int first = std::clamp(iFirst, 0, GetLength());
    const int count = std::clamp(nCount, 0, GetLength() - first);
    return count == GetLength() ? *this : CString(m_pszData + first, count);
}

CString CString::SpanIncluding(const char* pszCharSet) const
{
    const int end = Index(View(*this).find_first_not_of(View(pszCharSet)));
    return end < 0 ? *this : Left(end);
}

CString CString::SpanExcluding(const char* pszCharSet) const
{
    const int end = FindOneOf(pszCharSet);
    return end < 0 ? *this : Left(end);
}

CString CString::Tokenize(const char* pszTokens, int& iStart) const
{
    if (iStart < 0)
    {
        AtlThrow(E_INVALIDARG);
    }
    const std::string_view text = View(*this);
    const std::size_t first = text.find_first_not_of(View(pszTokens), static_cast<std::size_t>(iStart));
    if (first == std::string_view::npos)
    {
        iStart = -1;
        return CString();
    }
    const std::size_t end = std::min(text.find_first_of(View(pszTokens), first), text.size());
    iStart = static_cast<int>(end) + 1;
    return Mid(static_cast<int>(first), static_cast<int>(end - first));
}
