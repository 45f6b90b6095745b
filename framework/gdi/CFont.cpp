#include "framework/gdi/CFont.h"
#include "framework/gdi/CClientDC.h"
#include "framework/gdi/GdiHelpers.h"
#include <cstdlib>

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

namespace
{
constexpr int kTenthPointsPerInch = 720;

/// Height in logical units of `dc` for a size in tenths of a point.
int LogicalHeight(HDC dc, int tenths)
{
    POINT points[2] = {{0, 0}, {0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), tenths, kTenthPointsPerInch)}};
    ::DPtoLP(dc, points, 2);
    return static_cast<int>(std::labs(points[1].y - points[0].y));
}
} // namespace

CFont::CFont() = default;

CFont::operator HFONT() const
{
    return static_cast<HFONT>(m_hObject);
}

CFont* PASCAL CFont::FromHandle(HFONT font)
{
    return static_cast<CFont*>(CGdiObject::FromHandle(font));
}

BOOL CFont::CreateFontIndirect(const LOGFONT* description)
{
    return description ? Attach(::CreateFontIndirect(description)) : FALSE;
}

BOOL CFont::CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                       BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                       BYTE pitchAndFamily, LPCSTR faceName)
{
    return Attach(::CreateFont(height, width, escapement, orientation, weight, italic, underline, strikeOut, charSet,
                               outPrecision, clipPrecision, quality, pitchAndFamily, faceName));
}

BOOL CFont::CreatePointFont(int pointSizeTenths, LPCSTR faceName, CDC* dc)
{
    LOGFONT description{};
    description.lfCharSet = DEFAULT_CHARSET;
    description.lfHeight = pointSizeTenths;
    ::lstrcpyn(description.lfFaceName, vorn::TextOf(faceName), LF_FACESIZE);
    return CreatePointFontIndirect(&description, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* description, CDC* dc)
{
    if (!description)
        return FALSE;
    LOGFONT scaled = *description;
    if (dc)
    {
        scaled.lfHeight = -LogicalHeight(dc->m_hAttribDC ? dc->m_hAttribDC : dc->m_hDC, description->lfHeight);
    }
    else
    {
        CClientDC screen(nullptr);
        scaled.lfHeight = -LogicalHeight(screen, description->lfHeight);
    }
    return CreateFontIndirect(&scaled);
}

int CFont::GetLogFont(LOGFONT* description) const
{
    return GetObject(sizeof(LOGFONT), description);
}
