#include "tests/windows/texts/PretendedZone.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>

namespace vorn::test
{

namespace
{

/// Some runtimes lose every rule of daylight time for good once they have looked for a TZ that was not there: it is set
/// before anybody asks for local time, and never removed.
constexpr const char* kNeutralZone = "GMT0";

class NeutralZone : public testing::Environment
{
public:
    void SetUp() override
    {
        SetRuntimeZone(kNeutralZone);
    }
};

const testing::Environment* const g_neutralZone =
    testing::AddGlobalTestEnvironment(std::make_unique<NeutralZone>().release());

TIME_ZONE_INFORMATION g_zone;
DWORD g_state;
int g_questions;

DWORD WINAPI Answer(TIME_ZONE_INFORMATION* zone)
{
    ++g_questions;
    *zone = g_zone;
    return g_state;
}

SYSTEMTIME Sunday(WORD month, WORD nth, WORD hour)
{
    SYSTEMTIME rule{};
    rule.wMonth = month;
    rule.wDay = nth;
    rule.wHour = hour;
    return rule;
}

} // namespace

PretendedZone::PretendedZone(const TIME_ZONE_INFORMATION& zone, DWORD state, const char* runtime)
    : m_redirect("VornCommon.dll", "GetTimeZoneInformation", reinterpret_cast<const void*>(&Answer))
{
    EXPECT_TRUE(m_redirect.IsActive());
    g_zone = zone;
    g_state = state;
    g_questions = 0;
    SetRuntimeZone(runtime);
}

PretendedZone::~PretendedZone()
{
    SetRuntimeZone(kNeutralZone);
}

int PretendedZone::Questions()
{
    return g_questions;
}

void PretendedZone::ForgetQuestions()
{
    g_questions = 0;
}

void SetRuntimeZone(const char* zone)
{
    _putenv((std::string("TZ=") + zone).c_str());
    _tzset();
}

TIME_ZONE_INFORMATION EasternZone()
{
    TIME_ZONE_INFORMATION zone = PlainZone(300);
    zone.DaylightDate = Sunday(3, 2, 2);
    zone.StandardDate = Sunday(11, 1, 2);
    return zone;
}

TIME_ZONE_INFORMATION SouthernZone()
{
    TIME_ZONE_INFORMATION zone = PlainZone(-600);
    zone.DaylightDate = Sunday(10, 1, 2);
    zone.StandardDate = Sunday(4, 1, 3);
    return zone;
}

TIME_ZONE_INFORMATION PlainZone(LONG bias)
{
    TIME_ZONE_INFORMATION zone{};
    zone.Bias = bias;
    zone.DaylightBias = -60;
    return zone;
}

TIME_ZONE_INFORMATION UniversalZone()
{
    return PlainZone(0);
}

} // namespace vorn::test
