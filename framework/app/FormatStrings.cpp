#include "framework/window/ModuleState.h"

namespace
{

/// Which text a percent sign's follower asks for: 1 to 9, then A to Z; 0 for none.
int IndexOf(char mark)
{
    if (mark >= '1' && mark <= '9')
    {
        return mark - '0';
    }
    return mark >= 'A' && mark <= 'Z' ? mark - 'A' + 10 : 0;
}

} // namespace

void AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, const LPCTSTR* rglpsz, int nString)
{
    CString result;
    for (LPCTSTR at = lpszFormat ? lpszFormat : ""; *at; ++at)
    {
        const int index = *at == '%' ? IndexOf(at[1]) : 0;
        if (index == 0)
        {
            result += *at;
            continue;
        }
        ++at;
        if (index > nString)
        {
            result += '?';
        }
        else if (rglpsz[index - 1])
        {
            result += rglpsz[index - 1];
        }
    }
    rString = result;
}

namespace
{

void FormatResource(CString& text, UINT id, const LPCTSTR* arguments, int count)
{
    CString format;
    AfxLoadString(id, format);
    AfxFormatStrings(text, format, arguments, count);
}

} // namespace

void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1)
{
    FormatResource(rString, nIDS, &lpsz1, 1);
}

void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2)
{
    const LPCTSTR arguments[] = {lpsz1, lpsz2};
    FormatResource(rString, nIDS, arguments, 2);
}

BOOL AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep)
{
    rString.Empty();
    if (!lpszFullString || iSubString < 0)
    {
        return FALSE;
    }
    const CString full(lpszFullString);
    int start = 0;
    for (; iSubString > 0; --iSubString)
    {
        const int separator = full.Find(chSep, start);
        if (separator < 0)
        {
            return FALSE;
        }
        start = separator + 1;
    }
    const int end = full.Find(chSep, start);
    rString = end < 0 ? full.Mid(start) : full.Mid(start, end - start);
    return TRUE;
}
