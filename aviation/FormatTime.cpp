#include "aviation/Formatting.h"
#include "aviation/LocaleText.h"
#include "aviation/core/Duration.h"
#include "frame/core/StringViews.h"

#include <windows.h>

#include <cmath>

namespace
{

constexpr int kDateCapacity = 512;
constexpr const char* kClockPicture = "HH':'mm':'ss";

CString ClockText(const SYSTEMTIME& when)
{
    char text[64];
    const int size = GetTimeFormatA(LOCALE_USER_DEFAULT, TIME_FORCE24HOURFORMAT, &when, kClockPicture, text,
                                    static_cast<int>(sizeof text));
    return size > 0 ? CString(text) : CString();
}

} // namespace

CString TimeToString(double hours, bool words, bool seconds)
{
    const vorn::CompactText text = vorn::DurationText(hours, {words, seconds});
    return vorn::ToCString(text.View());
}

CString TimeToString(SYSTEMTIME* when, bool longDate)
{
    // The system would take null for the present.
    if (when == nullptr)
        return {};
    const CString date = vorn::LocaleDate(*when, longDate ? DATE_LONGDATE : DATE_SHORTDATE, nullptr, kDateCapacity);
    if (date.IsEmpty())
        return {};
    const CString clock = ClockText(*when);
    return clock.IsEmpty() ? date : date + " " + clock;
}

CString VariantTimeToString(double variantTime, bool longDate)
{
    SYSTEMTIME when{};
    // Some systems call the conversion of a NaN a success.
    if (!std::isfinite(variantTime) || !VariantTimeToSystemTime(variantTime, &when))
        return {};
    return TimeToString(&when, longDate);
}
