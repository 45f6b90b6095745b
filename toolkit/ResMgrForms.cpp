#include "toolkit/ResMgr.h"

#include <cstring>

// The forms of requests that lead to a pen, a brush or a font by its values.

HPEN ResMgr::GetStdPen(COLORREF color)
{
    return GetPen(PS_SOLID, 1, color);
}

HPEN ResMgr::GetSysPen(int style, int width, int sysColorIndex)
{
    return GetPen(style, width, ::GetSysColor(sysColorIndex));
}

HPEN ResMgr::GetStdSysPen(int sysColorIndex)
{
    return GetStdPen(::GetSysColor(sysColorIndex));
}

HPEN ResMgr::GetAppPen(int style, int width, AppColorsType color)
{
    return GetPen(style, width, m_colors->GetColor(color));
}

HPEN ResMgr::GetStdAppPen(AppColorsType color)
{
    return GetStdPen(m_colors->GetColor(color));
}

HPEN ResMgr::GetNullPen()
{
    return GetPen(PS_NULL, 0, 0);
}

HBRUSH ResMgr::GetBrush(COLORREF color)
{
    return GetBrush(BS_SOLID, color, 0);
}

HBRUSH ResMgr::GetSysBrush(int sysColorIndex)
{
    return GetBrush(::GetSysColor(sysColorIndex));
}

HBRUSH ResMgr::GetAppBrush(AppColorsType color)
{
    return GetBrush(m_colors->GetColor(color));
}

HBRUSH ResMgr::GetAppBrush(UINT style, AppColorsType color, LONG hatch)
{
    return GetBrush(style, static_cast<COLORREF>(color), hatch);
}

HBRUSH ResMgr::GetNullBrush()
{
    return GetBrush(BS_NULL, 0, 0);
}

HFONT ResMgr::GetFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                      BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                      BYTE pitchAndFamily, LPCSTR face)
{
    LOGFONTA description = {height,    width,   escapement,   orientation,   weight,  italic,         underline,
                            strikeOut, charSet, outPrecision, clipPrecision, quality, pitchAndFamily, {}};
    if (face != nullptr)
    {
        std::strncpy(description.lfFaceName, face, LF_FACESIZE - 1);
    }
    return GetFont(&description);
}
