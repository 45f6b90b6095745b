#include "aviation/Date.h"
#include "aviation/Formatting.h"
#include "aviation/HostZone.h"
#include "aviation/RuntimeClock.h"
#include "aviation/core/TimeParse.h"
#include "frame/core/StringViews.h"

namespace
{

std::int64_t BiasAt(CTime& t)
{
    return vorn::BiasMinutes(vorn::HostZone(), IsDaylightTime(t) != FALSE);
}

} // namespace

int ParseHHMM(int base, const char* text)
{
    return vorn::TypedTimeOnDayOf(base, vorn::ViewOf(text), vorn::RuntimeClock());
}

void ValidateTime(CString& hhmm)
{
    const std::string valid = vorn::ValidatedTime(vorn::ViewOf(hhmm));
    hhmm.SetString(valid.data(), static_cast<int>(valid.size()));
}

void SetTimeWithin24Hours(CTime& t)
{
    t = CTime(vorn::WithinNextDay(t.GetTime(), vorn::Now()));
}

void ConvertToZulu(CTime& t)
{
    t = CTime(vorn::ToUniversal(t.GetTime(), BiasAt(t)));
}

void ConvertToLocal(CTime& t)
{
    t = CTime(vorn::FromUniversal(t.GetTime(), BiasAt(t)));
}

bool IsDST(SYSTEMTIME* when)
{
    if (when == nullptr)
        return false;
    return Date::isDST(when->wYear >= 1900
                           ? CTime(when->wYear, when->wMonth, when->wDay, when->wHour, when->wMinute, when->wSecond)
                           : CTime());
}

BOOL IsDaylightTime(CTime& t)
{
    const std::optional<std::tm> fields = vorn::LocalFields(t.GetTime());
    return fields && fields->tm_isdst > 0 ? TRUE : FALSE;
}
