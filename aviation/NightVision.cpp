#include "aviation/Drawing.h"
#include "aviation/core/NightScaleCache.h"
#include "config/AppRegMgr.h"
#include "family/VornChart/core/ColorContext.h"

namespace
{

constexpr int kHost = 0;

const vorn::NightScales& Scales()
{
    static vorn::NightScaleCache cache;
    return cache.Get(
        [](const char* section, const char* key, const char* otherwise)
        {
            return AppRegMgr::Instance()->ReadVornString(section, key, otherwise, kHost);
        },
        [](const char* section, const char* key, const CString& text)
        {
            AppRegMgr::Instance()->WriteVornString(section, key, text, kHost);
        });
}

} // namespace

void GetNVScales(double& red, double& green, double& blue)
{
    const vorn::NightScales& scales = Scales();
    red = scales.red;
    green = scales.green;
    blue = scales.blue;
}

COLORREF MakeNightVision(COLORREF c)
{
    return vorn::Dimmed(c, Scales());
}

void MakeNightVision(BYTE& red, BYTE& green, BYTE& blue)
{
    vorn::Dim(red, green, blue, Scales());
}

COLORREF MakeNormalColor(COLORREF c)
{
    return vorn::Undimmed(c, Scales());
}

bool IsNightVision()
{
    return ColorContext::Instance()->GetCurrentState() == COLORSTATE_NIGHT;
}
