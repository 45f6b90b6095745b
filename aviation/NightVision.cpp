#include "aviation/Drawing.h"
#include "aviation/core/NightScaleCache.h"
#include "config/AppRegMgr.h"
#include "family/VornChart/core/ColorContext.h"

namespace
{

constexpr int kHost = 0;

CString Stored(const char* section, const char* key, const char* otherwise)
{
    return AppRegMgr::Instance()->ReadVornString(section, key, otherwise, kHost);
}

void Store(const char* section, const char* key, const CString& text)
{
    AppRegMgr::Instance()->WriteVornString(section, key, text, kHost);
}

constinit vorn::NightScaleCache cache;

const vorn::NightTables& Tables()
{
    cache.Get(Stored, Store);
    return cache.Tables();
}

} // namespace

void GetNVScales(double& red, double& green, double& blue)
{
    const vorn::NightScales& scales = cache.Get(Stored, Store);
    red = scales.red;
    green = scales.green;
    blue = scales.blue;
}

void ForgetNVScales()
{
    cache = {};
}

COLORREF MakeNightVision(COLORREF c)
{
    return Tables().Dimmed(c);
}

void MakeNightVision(BYTE& red, BYTE& green, BYTE& blue)
{
    Tables().Dim(red, green, blue);
}

COLORREF MakeNormalColor(COLORREF c)
{
    return Tables().Undimmed(c);
}

bool IsNightVision()
{
    return ColorContext::Instance()->GetCurrentState() == COLORSTATE_NIGHT;
}
