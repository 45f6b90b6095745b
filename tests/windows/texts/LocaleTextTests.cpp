#include "aviation/Formatting.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>
#include <limits>
#include <string>

namespace
{

SYSTEMTIME Moment(WORD year, WORD month, WORD day, WORD hour = 0, WORD minute = 0, WORD second = 0)
{
    SYSTEMTIME when{};
    when.wYear = year;
    when.wMonth = month;
    when.wDay = day;
    when.wHour = hour;
    when.wMinute = minute;
    when.wSecond = second;
    return when;
}

/// The system's own text, whatever the user's locale.
std::string SystemDate(const SYSTEMTIME& when, DWORD flags)
{
    char text[512] = {};
    EXPECT_GT(GetDateFormatA(LOCALE_USER_DEFAULT, flags, &when, nullptr, text, sizeof text), 0);
    return text;
}

std::string SystemCurrency(const char* number)
{
    char text[100] = {};
    EXPECT_GT(GetCurrencyFormatA(LOCALE_SYSTEM_DEFAULT, 0, number, nullptr, text, sizeof text), 0);
    return text;
}

CString Currency(double amount)
{
    CString text = "old";
    FormatCurrency(amount, text);
    return text;
}

struct Formatted
{
    bool good;
    std::string text;

    bool operator==(const Formatted&) const = default;
};

Formatted LongDate(long long t, bool useLocale)
{
    CString text = "old";
    const bool good = FormatStdLongDate(t, text, useLocale);
    return {good, std::string(text)};
}

Formatted ShortDate(long long t, bool useLocale)
{
    CString text = "old";
    const bool good = FormatStdShortDate(t, text, useLocale);
    return {good, std::string(text)};
}

constexpr long long kLeapDay = 1709251199; // 2024-02-29 23:59:59 UTC

} // namespace

TEST(SystemTimeTexts, AreTheLocalesDateAndTheTimeOfDay)
{
    SYSTEMTIME when = Moment(2024, 2, 29, 7, 5, 9);
    EXPECT_EQ(std::string(TimeToString(&when, true)), SystemDate(when, DATE_LONGDATE) + " 07:05:09");
    EXPECT_EQ(std::string(TimeToString(&when, false)), SystemDate(when, DATE_SHORTDATE) + " 07:05:09");
    when.wHour = 23;
    EXPECT_EQ(std::string(TimeToString(&when, false)), SystemDate(when, DATE_SHORTDATE) + " 23:05:09");
}

TEST(SystemTimeTexts, AreTheDateAloneWhenTheTimeIsNone)
{
    SYSTEMTIME when = Moment(2024, 2, 29);
    const std::string date = SystemDate(when, DATE_SHORTDATE);
    when.wHour = 25;
    EXPECT_EQ(std::string(TimeToString(&when, false)), date);
}

TEST(SystemTimeTexts, AreEmptyWithoutADate)
{
    SYSTEMTIME when = Moment(2023, 2, 30);
    EXPECT_EQ(TimeToString(&when, true), "");
    SYSTEMTIME none{};
    EXPECT_EQ(TimeToString(&none, false), "");
    EXPECT_EQ(TimeToString(static_cast<SYSTEMTIME*>(nullptr), false), "");
}

TEST(VariantTimeTexts, CountFromTheEndOf1899)
{
    // 45351.5 is noon of 2024-02-29 (Python: date(1899, 12, 30) + 45351 days).
    EXPECT_EQ(std::string(VariantTimeToString(45351.5, false)),
              SystemDate(Moment(2024, 2, 29), DATE_SHORTDATE) + " 12:00:00");
    EXPECT_EQ(std::string(VariantTimeToString(0.25, true)),
              SystemDate(Moment(1899, 12, 30), DATE_LONGDATE) + " 06:00:00");
}

TEST(VariantTimeTexts, AreEmptyForWhatIsNoDate)
{
    for (const double value : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(), 1e10, -1e10, -700000.0})
        EXPECT_EQ(VariantTimeToString(value, false), "") << value;
    // The year 500 converts, but is before the first year that the locale prints.
    EXPECT_EQ(VariantTimeToString(-511000.0, false), "");
}

TEST(StandardDates, HaveFixedPictures)
{
    EXPECT_EQ(LongDate(0, false), (Formatted{true, "Thursday, 01 January 1970"}));
    EXPECT_EQ(ShortDate(0, false), (Formatted{true, "01 Jan 1970"}));
    EXPECT_EQ(LongDate(kLeapDay, false), (Formatted{true, "Thursday, 29 February 2024"}));
    EXPECT_EQ(ShortDate(kLeapDay, false), (Formatted{true, "29 Feb 2024"}));
}

TEST(StandardDates, FollowTheLocaleOnDemand)
{
    EXPECT_EQ(LongDate(kLeapDay, true), (Formatted{true, SystemDate(Moment(2024, 2, 29), DATE_LONGDATE)}));
    EXPECT_EQ(ShortDate(kLeapDay, true), (Formatted{true, SystemDate(Moment(2024, 2, 29), DATE_SHORTDATE)}));
}

TEST(StandardDates, AreFalseAndEmptyForMomentsThatTheRuntimeRefuses)
{
    for (const long long t :
         {-1LL, -86400LL * 400, std::numeric_limits<long long>::max(), std::numeric_limits<long long>::min()})
    {
        for (const bool useLocale : {false, true})
        {
            EXPECT_EQ(LongDate(t, useLocale), (Formatted{false, ""})) << t;
            EXPECT_EQ(ShortDate(t, useLocale), (Formatted{false, ""})) << t;
        }
    }
}

TEST(CurrencyTexts, AreTheSystems)
{
    for (const double amount : {0.0, 1.5, -1.5, 1234.567, 1e6, -0.004})
    {
        char number[64];
        std::snprintf(number, sizeof number, "%f", amount);
        EXPECT_EQ(std::string(Currency(amount)), SystemCurrency(number)) << amount;
    }
}

TEST(CurrencyTexts, DoNotMistakeAnOldErrorForTheirs)
{
    SetLastError(ERROR_FILE_NOT_FOUND);
    EXPECT_NE(Currency(1.5), "");
}

TEST(CurrencyTexts, AreEmptyBeyondTheirRoom)
{
    for (const double amount :
         {1e30, -1e30, 1e300, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()})
        EXPECT_EQ(Currency(amount), "") << amount;
}
