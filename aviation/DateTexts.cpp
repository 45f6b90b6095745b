#include "aviation/Date.h"
#include "aviation/RuntimeClock.h"
#include "aviation/core/Currency.h"
#include "frame/core/StringViews.h"
#include "framework/core/OleException.h"

namespace
{

std::string Printed(const std::optional<std::tm>& fields, const char* picture)
{
    if (!fields)
        AtlThrow(E_INVALIDARG);
    return vorn::MomentText(*fields, picture);
}

std::string Zulu(const CTime& time, const char* picture)
{
    return Printed(vorn::UniversalFields(time.GetTime()), picture);
}

} // namespace

CString Date::GetDMdY()
{
    return isValid() ? vorn::ToCString(Printed(vorn::LocalFields(m_time.GetTime()), vorn::kDayPicture)) : CString();
}

CString Date::GetZuluTDMdY()
{
    return isValid() ? vorn::ToCString(Zulu(m_time, vorn::kZuluMomentPicture)) : CString();
}

CString Date::GetNavEffDate()
{
    return isValid() ? GetTermEffDate() : CString();
}

CString Date::GetTermEffDate()
{
    return vorn::ToCString(Zulu(m_time, vorn::kDayPicture));
}

CString Date::GetNavExpDate()
{
    if (!isValid())
        return {};
    const double days = GetDaysDiff();
    return vorn::ToCString(vorn::NavExpiryText(Zulu(m_time, vorn::kZuluMomentPicture), days, isExpired()));
}

CString Date::GetTermExpDate()
{
    if (!isValid())
        return {};
    const double days = GetDaysDiff();
    const bool late = isLate();
    return vorn::ToCString(vorn::TerminalExpiryText(Zulu(m_time, vorn::kZuluMomentPicture), days, late, isExpired()));
}
