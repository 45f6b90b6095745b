#include "framework/core/CString.h"
#include "framework/core/OleException.h"

#include <cstdio>

// The result is made outside this string's block: arguments may be its own text.
void CString::FormatV(const char* pszFormat, va_list args)
{
    if (pszFormat == nullptr)
    {
        AtlThrow(E_INVALIDARG);
    }
    char shortText[256];
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(shortText, sizeof(shortText), pszFormat, args);
    CString longText;
    if (length >= static_cast<int>(sizeof(shortText)))
    {
        try
        {
            longText.GetBuffer(length);
        }
        catch (...)
        {
            va_end(again);
            throw;
        }
        std::vsnprintf(longText.m_pszData, static_cast<std::size_t>(length) + 1, pszFormat, again);
        longText.SetLength(length);
    }
    va_end(again);
    if (length < 0)
    {
        AtlThrow(E_INVALIDARG);
    }
    if (longText.IsEmpty())
    {
        SetString(shortText, length);
    }
    else
    {
        *this = static_cast<CString&&>(longText);
    }
}

void CString::AppendFormatV(const char* pszFormat, va_list args)
{
    CString text;
    text.FormatV(pszFormat, args);
    Append(text);
}

void CString::Format(const char* pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void CString::AppendFormat(const char* pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

void CString::FormatPlain(const char* pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void CString::AppendFormatPlain(const char* pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}
