#include "framework/core/Time.h"

#include "framework/core/OleException.h"

#include <array>
#include <climits>
#include <vector>

namespace
{
constexpr long long kLastMoment = 32535215999LL; // 3000-12-31 23:59:59 UTC
constexpr long long kTicksPerSecond = 10000000;
constexpr long long kSecondsFrom1601To1970 = 11644473600LL;

bool IsInRange(long long time)
{
    return time >= 0 && time <= kLastMoment;
}

long long FromLocalFields(std::tm& fields)
{
#ifdef _WIN32
    const long long time = _mktime64(&fields);
#else
    const long long time = std::mktime(&fields);
#endif
    return IsInRange(time) ? time : 0;
}

bool ToFields(long long time, std::tm& fields, bool isLocal)
{
#ifdef _WIN32
    const __time64_t moment = time;
    return IsInRange(time) && (isLocal ? _localtime64_s(&fields, &moment) : _gmtime64_s(&fields, &moment)) == 0;
#else
    const std::time_t moment = time;
    return IsInRange(time) && (isLocal ? localtime_r(&moment, &fields) : gmtime_r(&moment, &fields)) != nullptr;
#endif
}

long long TicksOf(const FILETIME& time)
{
    return static_cast<long long>(static_cast<unsigned long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime);
}

long long SecondsOf(const FILETIME& time)
{
    return TicksOf(time) / kTicksPerSecond - kSecondsFrom1601To1970;
}

CString FormatFields(LPCSTR format, const std::tm& fields)
{
    std::array<char, 128> shortText;
    if (std::size_t length = std::strftime(shortText.data(), shortText.size(), format, &fields); length > 0)
    {
        return CString(shortText.data(), static_cast<int>(length));
    }
    std::vector<char> longText(4096);
    const std::size_t length = std::strftime(longText.data(), longText.size(), format, &fields);
    return CString(longText.data(), static_cast<int>(length));
}

CString FormatTime(long long time, LPCSTR format, bool isLocal)
{
    std::tm fields{};
    if (format == nullptr || !ToFields(time, fields, isLocal))
    {
        AtlThrow(E_INVALIDARG);
    }
    return FormatFields(format, fields);
}

// One local field, or `failed` for a moment that cannot be broken down.
int LocalField(long long time, int std::tm::*field, int offset, int failed)
{
    std::tm fields{};
    return ToFields(time, fields, true) ? fields.*field + offset : failed;
}
} // namespace

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
{
    std::tm fields{};
    fields.tm_sec = nSec;
    fields.tm_min = nMin;
    fields.tm_hour = nHour;
    fields.tm_mday = nDay;
    fields.tm_mon = nMonth == INT_MIN ? nMonth : nMonth - 1;
    fields.tm_year = nYear < INT_MIN + 1900 ? INT_MIN : nYear - 1900;
    fields.tm_isdst = nDST;
    m_time = FromLocalFields(fields);
}

CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST)
    : CTime((wDosDate >> 9) + 1980, wDosDate >> 5 & 0xF, wDosDate & 0x1F, wDosTime >> 11, wDosTime >> 5 & 0x3F,
            (wDosTime & 0x1F) * 2, nDST)
{
}

CTime::CTime(const SYSTEMTIME& st, int nDST)
{
    if (st.wYear >= 1900)
    {
        *this = CTime(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST);
    }
}

CTime::CTime(const FILETIME& ft, int) : m_time(IsValidFILETIME(ft) ? SecondsOf(ft) : 0)
{
}

CTime CTime::GetCurrentTime()
{
#ifdef _WIN32
    return CTime(_time64(nullptr));
#else
    return CTime(std::time(nullptr));
#endif
}

BOOL CTime::IsValidFILETIME(const FILETIME& ft) noexcept
{
    return IsInRange(SecondsOf(ft)) ? TRUE : FALSE;
}

std::tm* CTime::GetGmtTm(std::tm* ptm) const
{
    if (ptm == nullptr)
    {
        AtlThrow(E_INVALIDARG);
    }
    return ToFields(m_time, *ptm, false) ? ptm : nullptr;
}

std::tm* CTime::GetLocalTm(std::tm* ptm) const
{
    if (ptm == nullptr)
    {
        AtlThrow(E_INVALIDARG);
    }
    return ToFields(m_time, *ptm, true) ? ptm : nullptr;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const
{
    std::tm fields{};
    if (!ToFields(m_time, fields, true))
    {
        return false;
    }
    const auto word = [](int value)
    {
        return static_cast<WORD>(value);
    };
    st = {word(fields.tm_year + 1900), word(fields.tm_mon + 1), word(fields.tm_wday), word(fields.tm_mday),
          word(fields.tm_hour),        word(fields.tm_min),     word(fields.tm_sec),  0};
    return true;
}

int CTime::GetYear() const
{
    return LocalField(m_time, &std::tm::tm_year, 1900, 0);
}

int CTime::GetMonth() const
{
    return LocalField(m_time, &std::tm::tm_mon, 1, 0);
}

int CTime::GetDay() const
{
    return LocalField(m_time, &std::tm::tm_mday, 0, 0);
}

int CTime::GetHour() const
{
    return LocalField(m_time, &std::tm::tm_hour, 0, -1);
}

int CTime::GetMinute() const
{
    return LocalField(m_time, &std::tm::tm_min, 0, -1);
}

int CTime::GetSecond() const
{
    return LocalField(m_time, &std::tm::tm_sec, 0, -1);
}

int CTime::GetDayOfWeek() const
{
    return LocalField(m_time, &std::tm::tm_wday, 1, 0);
}

CString CTime::Format(LPCSTR pszFormat) const
{
    return FormatTime(m_time, pszFormat, true);
}

CString CTime::FormatGmt(LPCSTR pszFormat) const
{
    return FormatTime(m_time, pszFormat, false);
}
