#include "apps/vorntool/DateNamed.h"

#include "apps/vorntool/core/Moments.h"
#include "apps/vorntool/core/ToolNumbers.h"

#include <cfloat>
#include <cmath>
#include <ctime>

namespace vorn::tool
{

namespace
{

constexpr double kFirstOf1970 = 2440587.5; // its Julian day

} // namespace

std::optional<Date> DateNamed(const std::string& word)
{
    if (const std::optional<double> julian = ParseNumber(word))
    {
        return std::fabs(*julian) <= FLT_MAX ? std::optional(Date(static_cast<float>(*julian))) : std::nullopt;
    }
    const std::optional<std::int64_t> moment = ParseMoment(word, std::time(nullptr));
    return moment ? std::optional(Date(CTime(*moment))) : std::nullopt;
}

bool HasTexts(Date& date)
{
    CString day;
    const bool isSomeTime = date.isValid() || date.getJDate() == kFirstOf1970;
    return isSomeTime && FormatStdLongDate(date.getTime().GetTime(), day, false);
}

} // namespace vorn::tool
