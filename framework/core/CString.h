#pragma once

/// @file
/// The framework's 8-bit string.
#include "framework/core/BaseTypes.h"
#include "framework/core/Diagnostics.h"
#include "framework/core/Export.h"
#include "framework/core/StringData.h"

#include <compare>
#include <concepts>
#include <cstdarg>
#include <type_traits>

class CString;

namespace vorn
{
template <class T>
concept IsCString = std::derived_from<std::remove_cvref_t<T>, CString>;
} // namespace vorn

/// A text of 8-bit characters, as large as one pointer (to its first character), always ended by a zero.
///
/// Copies share one counted block until one of them is changed; a short text may be copied at once, which is cheaper
/// than counting. The counts are safe over threads, one object is not.
/// Zeros inside the text are allowed: lengths count them and comparisons of two strings see them, while a `const
/// char*` argument ends at its first zero and a null one is an empty text. An argument may point into the string's own
/// characters.
///
/// Errors: an index outside the text throws a COleException* with E_INVALIDARG (see AtlThrow()); a length that cannot
/// exist, or short memory, throws a CMemoryException*. The string is then unchanged. Letter case and white space are
/// those of ASCII.
class HOSTFRAMEWORK_API CString
{
public:
    using XCHAR = char;
    using PXSTR = char*;
    using PCXSTR = const char*;

    // --- Making, copying, ending -------------------------------------------------------------------------------

    CString() noexcept : m_pszData(vorn::g_emptyString.data.Text())
    {
    }
    CString(const CString& strSrc) : m_pszData(Share(strSrc.Data())->Text())
    {
    }
    CString(CString&& strSrc) noexcept : m_pszData(strSrc.m_pszData)
    {
        strSrc.m_pszData = vorn::g_emptyString.data.Text();
    }
    /// A copy of a zero-ended text. A resource identifier in place of a pointer (MAKEINTRESOURCE) loads that string.
    CString(const char* pszSrc);
    /// A copy of `nLength` characters, zeros included.
    CString(const char* pchSrc, int nLength);
    explicit CString(const unsigned char* pszSrc);
    /// `nRepeat` times the character; empty for a count below 1.
    explicit CString(char ch, int nRepeat = 1);
    ~CString()
    {
        Release(Data());
    }

    CString& operator=(const CString& strSrc);
    CString& operator=(CString&& strSrc) noexcept(false);
    CString& operator=(const char* pszSrc);
    CString& operator=(const unsigned char* pszSrc);
    CString& operator=(char ch);

    // --- Looking at the text -----------------------------------------------------------------------------------

    /// The zero-ended characters; valid until the string is changed or ended.
    operator const char*() const noexcept
    {
        return m_pszData;
    }
    const char* GetString() const noexcept
    {
        return m_pszData;
    }
    int GetLength() const noexcept
    {
        return Data()->length;
    }
    bool IsEmpty() const noexcept
    {
        return Data()->length == 0;
    }
    /// Characters that fit without a new block, the end not counted.
    int GetAllocLength() const noexcept
    {
        return Data()->capacity;
    }
    /// The character at `iChar`, 0 to GetLength(); the last one is the end (0).
    char GetAt(int iChar) const;
    char operator[](int iChar) const
    {
        return GetAt(iChar);
    }

    // --- Changing the text -------------------------------------------------------------------------------------

    /// Replaces the character at `iChar`, 0 to GetLength() - 1.
    void SetAt(int iChar, char ch);
    void Empty() noexcept;
    void SetString(const char* pszSrc);
    /// `nLength` characters from `pchSrc`; null is allowed with 0 only.
    void SetString(const char* pchSrc, int nLength);
    void Append(const char* pszSrc);
    void Append(const char* pchSrc, int nLength);
    void Append(const CString& strSrc);
    void AppendChar(char ch);
    CString& operator+=(const CString& strSrc);
    CString& operator+=(const char* pszSrc);
    CString& operator+=(char ch);

    /// Inserts before `iIndex`; below 0 counts as 0, beyond the end appends. Returns the new length.
    int Insert(int iIndex, const char* psz);
    int Insert(int iIndex, char ch);
    /// Removes up to `nCount` characters from `iIndex` on; negative values count as 0. Returns the new length.
    int Delete(int iIndex, int nCount = 1);
    /// Replaces each `chOld`; case matters. Returns the number of replacements.
    int Replace(char chOld, char chNew);
    /// Replaces each `pszOld` from left to right by `pszNew` (null removes). Returns the number of replacements, 0 for
    /// an empty or null `pszOld`.
    int Replace(const char* pszOld, const char* pszNew);
    /// Removes each `chRemove`; returns how many there were.
    int Remove(char chRemove);

    /// Removes white space at both ends.
    CString& Trim();
    CString& Trim(char chTarget);
    /// Removes characters that occur in `pszTargets` at both ends.
    CString& Trim(const char* pszTargets);
    CString& TrimLeft();
    CString& TrimLeft(char chTarget);
    CString& TrimLeft(const char* pszTargets);
    CString& TrimRight();
    CString& TrimRight(char chTarget);
    CString& TrimRight(const char* pszTargets);
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    /// Cuts the text to at most `nNewLength` characters.
    void Truncate(int nNewLength);

    // --- Parts of the text -------------------------------------------------------------------------------------

    /// The first `nCount` characters; negative counts as 0, beyond the length as all.
    CString Left(int nCount) const;
    /// The last `nCount` characters, with the same limits.
    CString Right(int nCount) const;
    /// From `iFirst` to the end. A negative start counts as 0, one beyond the end gives an empty text.
    CString Mid(int iFirst) const;
    CString Mid(int iFirst, int nCount) const;
    /// The longest start made only of characters of `pszCharSet`.
    CString SpanIncluding(const char* pszCharSet) const;
    /// The longest start without any character of `pszCharSet`.
    CString SpanExcluding(const char* pszCharSet) const;
    /// The next piece between any characters of `pszTokens`, searched from `iStart`; leading separators are skipped.
    /// `iStart` moves on; when no piece is left it becomes -1 and the result is empty. Without separators the rest of
    /// the text is one piece. A negative `iStart` throws (invalid argument).
    CString Tokenize(const char* pszTokens, int& iStart) const;

    // --- Searching and comparing -------------------------------------------------------------------------------

    /// Index of the first occurrence at or after `iStart`, or -1 (also for a start outside the text).
    int Find(char ch, int iStart = 0) const;
    int Find(const char* pszSub, int iStart = 0) const;
    int ReverseFind(char ch) const;
    /// Index of the first character that occurs in `pszCharSet`, or -1.
    int FindOneOf(const char* pszCharSet) const;
    /// Below, equal or above 0, by the characters' unsigned values.
    int Compare(const char* psz) const noexcept;
    int Compare(const CString& str) const noexcept;
    /// Whether the characters are the same; sooner known than their order.
    bool Equals(const char* psz) const noexcept;
    bool Equals(const CString& str) const noexcept;
    /// As Compare(), without regard to the case of ASCII letters.
    int CompareNoCase(const char* psz) const noexcept;
    /// Order of the C library's current locale.
    int Collate(const char* psz) const noexcept;
    int CollateNoCase(const char* psz) const noexcept;

    // --- Formatting --------------------------------------------------------------------------------------------

    /// printf-like, after the rules of the C standard on every system. Arguments may be this string's own text.
    void Format(const char* pszFormat, ...) VORN_PRINTF_LIKE(2, 3);
    void AppendFormat(const char* pszFormat, ...) VORN_PRINTF_LIKE(2, 3);
    void FormatV(const char* pszFormat, va_list args);
    void AppendFormatV(const char* pszFormat, va_list args);

    /// Strings among the arguments are passed as pointers to their characters.
    template <class... Arguments>
    requires(vorn::IsCString<Arguments> || ...) void Format(const char* pszFormat, const Arguments&... arguments)
    {
        FormatPlain(pszFormat, AsPlainArgument(arguments)...);
    }
    template <class... Arguments>
    requires(vorn::IsCString<Arguments> || ...) void AppendFormat(const char* pszFormat, const Arguments&... arguments)
    {
        AppendFormatPlain(pszFormat, AsPlainArgument(arguments)...);
    }

#ifdef _WIN32
    /// The same with the format taken from the string table of the resource chain; an unknown one throws (invalid
    /// argument).
    void Format(UINT nFormatID, ...);
    void AppendFormat(UINT nFormatID, ...);
    /// Loads a string of the resource chain; FALSE, with the text unchanged, when there is none.
    BOOL LoadString(UINT nID);
    /// Loads a string of one module.
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
#endif

    // --- The buffer --------------------------------------------------------------------------------------------

    /// The characters for writing, owned by this string alone. Call ReleaseBuffer() before any other operation.
    char* GetBuffer();
    /// The same with room for at least `nMinBufferLength` characters and their end; the text stays.
    char* GetBuffer(int nMinBufferLength);
    /// The same, with the length set at once to `nLength`; characters beyond the old text are undefined.
    char* GetBufferSetLength(int nLength);
    /// Sets the length after writing: -1 up to the first zero; otherwise 0 to GetAllocLength().
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength);
    /// Takes the text out of sharing until UnlockBuffer(): copies of it get blocks of their own, and texts assigned to
    /// it are copied into its block.
    char* LockBuffer();
    void UnlockBuffer() noexcept;
    /// Gives back memory that the text does not need.
    void FreeExtra();
    /// Makes room for `nLength` characters ahead of time.
    void Preallocate(int nLength);

    static int StringLength(const char* psz) noexcept;
    static void CopyChars(char* pchDest, const char* pchSrc, int nChars) noexcept;

private:
    explicit CString(vorn::StringData* data) noexcept : m_pszData(data->Text())
    {
    }

    vorn::StringData* Data() const noexcept
    {
        return vorn::StringData::Of(m_pszData);
    }
    static void Release(vorn::StringData* data) noexcept
    {
        const int owners = data->refs.load(std::memory_order_acquire);
        if (owners <= 1 ? owners != 0 : data->refs.fetch_sub(1, std::memory_order_acq_rel) == 1)
        {
            vorn::FreeString(data);
        }
    }
    static vorn::StringData* Share(vorn::StringData* data)
    {
        const int owners = data->refs.load(std::memory_order_relaxed);
        if (owners < 0)
        {
            return CopyOf(data);
        }
        if (owners > 0)
        {
            if (data->length <= vorn::kShortTextLength)
            {
                return vorn::ShareShort(data);
            }
            data->refs.fetch_add(1, std::memory_order_relaxed);
        }
        return data;
    }
    static vorn::StringData* CopyOf(vorn::StringData* data);
    static CString FromTwo(const char* first, int firstLength, const char* second, int secondLength);

    void Replace(vorn::StringData* data) noexcept;
    void SetLength(int length) noexcept
    {
        Data()->length = length;
        m_pszData[length] = '\0';
    }
    void Reserve(int capacity);
    void Grow(int capacity);
    void ReplaceEach(const char* from, int fromLength, const char* to, int toLength, int count);
    void Splice(int index, int removed, const char* text, int length);
    CString& Keep(int first, int length);
    void FormatPlain(const char* pszFormat, ...);
    void AppendFormatPlain(const char* pszFormat, ...);

    template <class Argument>
    static auto AsPlainArgument(const Argument& argument) noexcept
    {
        if constexpr (vorn::IsCString<Argument>)
        {
            return argument.GetString();
        }
        else
        {
            return static_cast<std::decay_t<const Argument>>(argument);
        }
    }

    friend HOSTFRAMEWORK_API CString operator+(const CString& first, const CString& second);
    friend HOSTFRAMEWORK_API CString operator+(const CString& first, const char* second);
    friend HOSTFRAMEWORK_API CString operator+(const char* first, const CString& second);
    friend HOSTFRAMEWORK_API CString operator+(const CString& first, char second);
    friend HOSTFRAMEWORK_API CString operator+(char first, const CString& second);

    char* m_pszData;
};

static_assert(sizeof(CString) == sizeof(void*), "hosts pass strings in places of a character pointer");

using CStringA = CString;

HOSTFRAMEWORK_API CString operator+(const CString& first, const CString& second);
HOSTFRAMEWORK_API CString operator+(const CString& first, const char* second);
HOSTFRAMEWORK_API CString operator+(const char* first, const CString& second);
HOSTFRAMEWORK_API CString operator+(const CString& first, char second);
HOSTFRAMEWORK_API CString operator+(char first, const CString& second);

inline bool operator==(const CString& first, const CString& second) noexcept
{
    return first.Equals(second);
}
inline bool operator==(const CString& first, const char* second) noexcept
{
    return first.Equals(second);
}
inline bool operator==(const CString& first, char second) noexcept
{
    return first.GetLength() == 1 && *first.GetString() == second;
}
inline std::strong_ordering operator<=>(const CString& first, const CString& second) noexcept
{
    return first.Compare(second) <=> 0;
}
inline std::strong_ordering operator<=>(const CString& first, const char* second) noexcept
{
    return first.Compare(second) <=> 0;
}
