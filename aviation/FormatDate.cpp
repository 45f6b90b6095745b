#include "aviation/Formatting.h"
#include "aviation/LocaleText.h"
#include "aviation/RuntimeClock.h"

#include <windows.h>

#include <oleauto.h>

namespace
{

constexpr int kDateCapacity = 1024;
constexpr const char* kLongPicture = "dddd',' dd MMMM yyyy";
constexpr const char* kShortPicture = "dd MMM yyyy";

WORD ToWord(int value)
{
    return static_cast<WORD>(value);
}

/// The date through an automation date and back, which fills in the weekday. The time of day stays out: it could round
/// the date up.
std::optional<SYSTEMTIME> ThroughAutomation(const std::tm& fields)
{
    SYSTEMTIME date{};
    date.wYear = ToWord(fields.tm_year + 1900);
    date.wMonth = ToWord(fields.tm_mon + 1);
    date.wDay = ToWord(fields.tm_mday);
    double automation = 0;
    SYSTEMTIME back{};
    if (!SystemTimeToVariantTime(&date, &automation) || !VariantTimeToSystemTime(automation, &back))
        return std::nullopt;
    const bool inRange = back.wDay >= 1 && back.wDay <= 31 && back.wMonth >= 1 && back.wMonth <= 12;
    return inRange ? std::optional(back) : std::nullopt;
}

bool FormatDate(long long t, CString& out, DWORD localeFlags, const char* picture)
{
    out.Empty();
    const std::optional<std::tm> fields = vorn::UniversalFields(t);
    const std::optional<SYSTEMTIME> date = fields ? ThroughAutomation(*fields) : std::nullopt;
    if (date)
        out = vorn::LocaleDate(*date, localeFlags, picture, kDateCapacity);
    return !out.IsEmpty();
}

} // namespace

bool FormatStdLongDate(long long t, CString& out, bool useLocale)
{
    return useLocale ? FormatDate(t, out, DATE_LONGDATE, nullptr) : FormatDate(t, out, 0, kLongPicture);
}

bool FormatStdShortDate(long long t, CString& out, bool useLocale)
{
    return useLocale ? FormatDate(t, out, DATE_SHORTDATE, nullptr) : FormatDate(t, out, 0, kShortPicture);
}
