#pragma once

#include "tests/support/ImportRedirect.h"

namespace vorn::test
{

/// Makes the library believe in a time zone of the test's choice, and gives the C runtime the rules named by `runtime`
/// (the form that it takes: "EST5EDT"; empty for the system's own) while the object lives.
class PretendedZone
{
public:
    PretendedZone(const TIME_ZONE_INFORMATION& zone, DWORD state, const char* runtime);
    ~PretendedZone();
    PretendedZone(const PretendedZone&) = delete;
    PretendedZone& operator=(const PretendedZone&) = delete;

    /// How often the library has asked.
    static int Questions();
    static void ForgetQuestions();

private:
    ImportRedirect m_redirect;
};

/// Sets the C runtime's TZ; empty removes it.
void SetRuntimeZone(const char* zone);

/// Zone records as the system gives them. Biases are minutes west.
TIME_ZONE_INFORMATION EasternZone();        ///< second Sunday of March to first of November
TIME_ZONE_INFORMATION SouthernZone();       ///< first Sunday of October to first of April, 10 h east
TIME_ZONE_INFORMATION PlainZone(LONG bias); ///< no daylight time, but the usual daylight bias
TIME_ZONE_INFORMATION UniversalZone();

} // namespace vorn::test
