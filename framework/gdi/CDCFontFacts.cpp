#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"
#include <array>

int CDC::GetTextFace(int count, LPSTR faceName) const
{
    return ::GetTextFace(m_hAttribDC, count, faceName);
}

int CDC::GetTextFace(CString& faceName) const
{
    std::array<char, 256> buffer{};
    const int count = GetTextFace(static_cast<int>(buffer.size()), buffer.data());
    faceName = buffer.data();
    return count;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC metrics) const
{
    return ::GetTextMetrics(m_hAttribDC, metrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC metrics) const
{
    return ::GetTextMetrics(m_hDC, metrics);
}

UINT CDC::GetOutlineTextMetrics(UINT size, LPOUTLINETEXTMETRIC metrics) const
{
    return ::GetOutlineTextMetrics(m_hAttribDC, size, metrics);
}

DWORD CDC::GetCharacterPlacement(LPCSTR text, int count, int maxExtent, LPGCP_RESULTS results, DWORD flags) const
{
    return ::GetCharacterPlacement(m_hAttribDC, vorn::TextOf(text), vorn::LengthOf(text, count), maxExtent, results,
                                   flags);
}

DWORD CDC::GetCharacterPlacement(const CString& text, int maxExtent, LPGCP_RESULTS results, DWORD flags) const
{
    return GetCharacterPlacement(text, text.GetLength(), maxExtent, results, flags);
}

BOOL CDC::GetCharWidth(UINT first, UINT last, LPINT widths) const
{
    return ::GetCharWidth32(m_hAttribDC, first, last, widths);
}

BOOL CDC::GetCharWidth(UINT first, UINT last, float* widths) const
{
    return ::GetCharWidthFloat(m_hAttribDC, first, last, widths);
}

BOOL CDC::GetOutputCharWidth(UINT first, UINT last, LPINT widths) const
{
    return ::GetCharWidth32(m_hDC, first, last, widths);
}

BOOL CDC::GetCharABCWidths(UINT first, UINT last, LPABC widths) const
{
    return ::GetCharABCWidths(m_hAttribDC, first, last, widths);
}

BOOL CDC::GetCharABCWidths(UINT first, UINT last, LPABCFLOAT widths) const
{
    return ::GetCharABCWidthsFloat(m_hAttribDC, first, last, widths);
}

CSize CDC::GetAspectRatioFilter() const
{
    CSize ratio(0, 0);
    ::GetAspectRatioFilterEx(m_hAttribDC, &ratio);
    return ratio;
}

int CDC::GetKerningPairs(int count, LPKERNINGPAIR pairs) const
{
    return static_cast<int>(::GetKerningPairs(m_hAttribDC, static_cast<DWORD>(count), pairs));
}

DWORD CDC::GetFontData(DWORD table, DWORD offset, LPVOID data, DWORD count) const
{
    return ::GetFontData(m_hAttribDC, table, offset, data, count);
}

DWORD CDC::GetFontLanguageInfo() const
{
    return ::GetFontLanguageInfo(m_hAttribDC);
}

DWORD CDC::GetGlyphOutline(UINT character, UINT format, LPGLYPHMETRICS metrics, DWORD size, LPVOID data,
                           const MAT2* matrix) const
{
    return ::GetGlyphOutline(m_hAttribDC, character, format, metrics, size, data, matrix);
}
