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

int CountOccurrences(std::string_view text, std::string_view part)
{
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size()))
    {
        ++count;
    }
    return count;
}
} // namespace

// Replaces `removed` characters at `index` by a text that may be part of this one.
void CString::Splice(int index, int removed, const char* text, int length)
{
    const CString copy(text, length);
    const int oldLength = GetLength();
    if (length - removed > vorn::kMaxStringLength - oldLength)
    {
        AfxThrowMemoryException();
    }
    const int newLength = oldLength - removed + length;
    Grow(std::max(newLength, oldLength));
    char* at = m_pszData + index;
    CopyChars(at + length, at + removed, oldLength - index - removed);
    CopyChars(at, copy, length);
    SetLength(newLength);
}

int CString::Insert(int iIndex, const char* psz)
{
    const int length = StringLength(psz);
    if (length > 0)
    {
        Splice(std::clamp(iIndex, 0, GetLength()), 0, psz, length);
    }
    return GetLength();
}

int CString::Insert(int iIndex, char ch)
{
    Splice(std::clamp(iIndex, 0, GetLength()), 0, &ch, 1);
    return GetLength();
}

int CString::Delete(int iIndex, int nCount)
{
    const int index = std::clamp(iIndex, 0, GetLength());
    const int count = std::clamp(nCount, 0, GetLength() - index);
    if (count > 0)
    {
        Splice(index, count, "", 0);
    }
    return GetLength();
}

int CString::Replace(char chOld, char chNew)
{
    const auto count = std::count(m_pszData, m_pszData + GetLength(), chOld);
    if (count > 0 && chOld != chNew)
    {
        char* text = GetBuffer();
        std::replace(text, text + GetLength(), chOld, chNew);
    }
    return chOld != chNew ? static_cast<int>(count) : 0;
}

int CString::Replace(const char* pszOld, const char* pszNew)
{
    if (StringLength(pszOld) == 0)
    {
        return 0;
    }
    const int count = CountOccurrences(View(*this), pszOld);
    if (count > 0)
    {
        ReplaceEach(pszOld, StringLength(pszOld), pszNew, StringLength(pszNew), count);
    }
    return count;
}

// Builds the result in a new block, so that both texts may be parts of this one.
void CString::ReplaceEach(const char* from, int fromLength, const char* to, int toLength, int count)
{
    const long long newLength = GetLength() + static_cast<long long>(toLength - fromLength) * count;
    if (newLength > vorn::kMaxStringLength)
    {
        AfxThrowMemoryException();
    }
    CString result;
    result.Preallocate(static_cast<int>(newLength));
    const std::string_view text = View(*this);
    std::size_t done = 0;
    for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from, done))
    {
        result.Append(m_pszData + done, static_cast<int>(at - done));
        result.Append(to, toLength);
        done = at + static_cast<std::size_t>(fromLength);
    }
    result.Append(m_pszData + done, static_cast<int>(text.size() - done));
    *this = static_cast<CString&&>(result);
}

int CString::Remove(char chRemove)
{
    const auto count = std::count(m_pszData, m_pszData + GetLength(), chRemove);
    if (count > 0)
    {
        char* text = GetBuffer();
        const char* end = std::remove(text, text + GetLength(), chRemove);
        SetLength(static_cast<int>(end - text));
    }
    return static_cast<int>(count);
}

// Cuts the text to one part of itself.
CString& CString::Keep(int first, int length)
{
    if (length != GetLength())
    {
        *this = Mid(first, length);
    }
    return *this;
}

CString& CString::TrimLeft(const char* pszTargets)
{
    const std::size_t first = View(*this).find_first_not_of(pszTargets != nullptr ? pszTargets : "");
    const int removed = first == std::string_view::npos ? GetLength() : static_cast<int>(first);
    return Keep(removed, GetLength() - removed);
}

CString& CString::TrimRight(const char* pszTargets)
{
    const std::size_t last = View(*this).find_last_not_of(pszTargets != nullptr ? pszTargets : "");
    return Keep(0, last == std::string_view::npos ? 0 : static_cast<int>(last) + 1);
}

CString& CString::Trim(const char* pszTargets)
{
    const CString targets(pszTargets);
    return TrimRight(targets).TrimLeft(targets);
}

CString& CString::Trim()
{
    return Trim(vorn::kWhiteSpace);
}

CString& CString::TrimLeft()
{
    return TrimLeft(vorn::kWhiteSpace);
}

CString& CString::TrimRight()
{
    return TrimRight(vorn::kWhiteSpace);
}

CString& CString::Trim(char chTarget)
{
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CString& CString::TrimLeft(char chTarget)
{
    const std::size_t first = View(*this).find_first_not_of(chTarget);
    const int removed = first == std::string_view::npos ? GetLength() : static_cast<int>(first);
    return Keep(removed, GetLength() - removed);
}

CString& CString::TrimRight(char chTarget)
{
    const std::size_t last = View(*this).find_last_not_of(chTarget);
    return Keep(0, last == std::string_view::npos ? 0 : static_cast<int>(last) + 1);
}

CString& CString::MakeUpper()
{
    char* text = GetBuffer();
    std::transform(text, text + GetLength(), text, vorn::ToUpperAscii);
    return *this;
}

CString& CString::MakeLower()
{
    char* text = GetBuffer();
    std::transform(text, text + GetLength(), text, vorn::ToLowerAscii);
    return *this;
}

CString& CString::MakeReverse()
{
    char* text = GetBuffer();
    std::reverse(text, text + GetLength());
    return *this;
}
