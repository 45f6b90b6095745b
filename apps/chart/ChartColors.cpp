#include "apps/chart/ChartColors.h"

#include <algorithm>
#include <cmath>

namespace vorn::chart
{

namespace
{

constexpr int kTintByDay = 46; // percent
constexpr int kTintByNight = 60;

AppColorsType TypeOf(Ink ink)
{
    switch (ink)
    {
    case Ink::Aid:
        return APPCOLOR_AIRSPACE;
    case Ink::Beacon:
        return APPCOLOR_ROUTE;
    case Ink::Field:
        return APPCOLOR_AIRCRAFT;
    case Ink::Grid:
        return APPCOLOR_AIRWAY;
    case Ink::Route:
        return APPCOLOR_ACTIVELEG;
    case Ink::Direct:
        return APPCOLOR_HIGHLIGHT;
    case Ink::Text:
        break;
    }
    return APPCOLOR_TEXT;
}

BYTE Mixed(BYTE ground, BYTE tint, int percent)
{
    return static_cast<BYTE>((ground * (100 - percent) + tint * percent) / 100);
}

} // namespace

COLORREF InkColor(Ink ink)
{
    return ColorContext::Instance()->GetColor(TypeOf(ink));
}

HPEN FinePen(AppColorsType color, double unit)
{
    constexpr double kFine = 0.5;
    return ResMgr::Inst()->GetAppPen(PS_SOLID, std::max(1, static_cast<int>(std::lround(unit * kFine))), color);
}

COLORREF BandColor(const TerrainColorMap& terrain, int band)
{
    const DWORD color = terrain.Color(band); // 0x00RRGGBB
    const COLORREF byDay = RGB(color >> 16 & 0xFF, color >> 8 & 0xFF, color & 0xFF);
    const bool night = IsNightVision();
    const COLORREF tint = night ? MakeNightVision(byDay) : byDay;
    const COLORREF land = ColorContext::Instance()->GetColor(APPCOLOR_LAND);
    const int percent = night ? kTintByNight : kTintByDay;
    return RGB(Mixed(GetRValue(land), GetRValue(tint), percent), Mixed(GetGValue(land), GetGValue(tint), percent),
               Mixed(GetBValue(land), GetBValue(tint), percent));
}

} // namespace vorn::chart
