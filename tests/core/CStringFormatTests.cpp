#include "framework/core/CString.h"

#include "framework/core/OleException.h"
#include "tests/support/Thrown.h"

#include <climits>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>

// Every conversion of CString::Format, by the rules of the C standard on every system.

namespace
{
CString FormattedV(const char* format, ...) VORN_PRINTF_LIKE(1, 2);

CString FormattedV(const char* format, ...)
{
    CString text;
    va_list arguments;
    va_start(arguments, format);
    try
    {
        text.FormatV(format, arguments);
    }
    catch (CException*)
    {
        va_end(arguments);
        throw;
    }
    va_end(arguments);
    return text;
}

template <class... Arguments>
CString Formatted(const char* format, Arguments... arguments)
{
    CString text("old text");
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    text.Format(format, arguments...);
#pragma GCC diagnostic pop
    return text;
}
} // namespace

TEST(CStringFormat, SignedNumbers)
{
    EXPECT_EQ(Formatted("%d", 42), "42");
    EXPECT_EQ(Formatted("%i", -42), "-42");
    EXPECT_EQ(Formatted("%d", INT_MIN), "-2147483648");
    EXPECT_EQ(Formatted("%5d|%-5d|%05d", 42, 42, 42), "   42|42   |00042");
    EXPECT_EQ(Formatted("%+d % d", 7, 7), "+7  7");
    EXPECT_EQ(Formatted("%.3d", 7), "007");
    EXPECT_EQ(Formatted("%.0d", 0), "");
    EXPECT_EQ(Formatted("%*d|%-*d", 4, 7, 4, 7), "   7|7   ");
}

TEST(CStringFormat, APrecisionSwitchesZeroPaddingOff)
{
    EXPECT_EQ(Formatted("%03.2d", 7), " 07");
    EXPECT_EQ(Formatted("%c%03.2d", 'N', 47), "N 47");
}

TEST(CStringFormat, UnsignedNumbers)
{
    EXPECT_EQ(Formatted("%u", UINT_MAX), "4294967295");
    EXPECT_EQ(Formatted("%u", -1), "4294967295");
    EXPECT_EQ(Formatted("%x %X %#x", 255U, 255U, 255U), "ff FF 0xff");
    EXPECT_EQ(Formatted("%o %#o", 8U, 8U), "10 010");
    EXPECT_EQ(Formatted("%08X", 0x00BB0102U), "00BB0102");
}

TEST(CStringFormat, WidthsOfNumbers)
{
    EXPECT_EQ(Formatted("%hd %hhd", 70000, 300), "4464 44");
    EXPECT_EQ(Formatted("%ld", 123456L), "123456");
    EXPECT_EQ(Formatted("%lld", LLONG_MIN), "-9223372036854775808");
    EXPECT_EQ(Formatted("%llu", ULLONG_MAX), "18446744073709551615");
    EXPECT_EQ(Formatted("%llx", 0x123456789ABCDEFULL), "123456789abcdef");
    EXPECT_EQ(Formatted("%zu", sizeof(int)), "4");
    EXPECT_EQ(Formatted("%td", static_cast<std::ptrdiff_t>(-3)), "-3");
    EXPECT_EQ(Formatted("%jd", static_cast<std::intmax_t>(-5)), "-5");
}

TEST(CStringFormat, FloatingPointNumbers)
{
    EXPECT_EQ(Formatted("%f", 3.14159265), "3.141593");
    EXPECT_EQ(Formatted("%.1f", 0.25), "0.2") << "ties go to the even digit";
    EXPECT_EQ(Formatted("%.0f", 0.5), "0");
    EXPECT_EQ(Formatted("%.0f", 2.5), "2");
    EXPECT_EQ(Formatted("%.*f", 2, 1.005), "1.00");
    EXPECT_EQ(Formatted("%.*f", -1, 1.5), "1.500000");
    EXPECT_EQ(Formatted("%8.2f|%-8.2f|%08.2f", 3.14159, 3.14159, -3.14159), "    3.14|3.14    |-0003.14");
    EXPECT_EQ(Formatted("%e", 12345.678), "1.234568e+04");
    EXPECT_EQ(Formatted("%E", 1e-300), "1.000000E-300");
    EXPECT_EQ(Formatted("%g %g %G", 0.0001, 1e10, 1e-10), "0.0001 1e+10 1E-10");
    EXPECT_EQ(Formatted("%#.0f", 3.0), "3.");
    EXPECT_EQ(Formatted("%.0f", -0.3), "-0");
    EXPECT_EQ(Formatted("%a", 1.0).Left(4), "0x1p");
}

TEST(CStringFormat, InfinitiesAndNotANumber)
{
    EXPECT_EQ(Formatted("%f", INFINITY), "inf");
    EXPECT_EQ(Formatted("%f", -INFINITY), "-inf");
    EXPECT_EQ(Formatted("%F", INFINITY), "INF");
    EXPECT_EQ(Formatted("%.1f", static_cast<double>(NAN)), "nan");
    EXPECT_EQ(Formatted("%6.1f", INFINITY), "   inf");
}

TEST(CStringFormat, CharactersAndTexts)
{
    EXPECT_EQ(Formatted("%c%c", 'o', 'k'), "ok");
    EXPECT_EQ(Formatted("%3c|%-3c|", 'x', 'y'), "  x|y  |");
    EXPECT_EQ(Formatted("%s", "text"), "text");
    EXPECT_EQ(Formatted("%6s|%-6s|%.2s", "abc", "abc", "abc"), "   abc|abc   |ab");
    EXPECT_EQ(Formatted("%.*s", 3, "abcdef"), "abc");
    EXPECT_EQ(Formatted("100%%"), "100%");
    EXPECT_EQ(Formatted("%ls", L"wide"), "wide");
    EXPECT_EQ(Formatted("plain"), "plain");
}

TEST(CStringFormat, PointersAndCounts)
{
    int value = 0;
    CString expected;
    expected.Format("%p", static_cast<void*>(&value));
    EXPECT_FALSE(expected.IsEmpty());
    EXPECT_EQ(Formatted("%p", static_cast<void*>(&value)), expected);
}

TEST(CStringFormat, StringsTravelAsPointersToTheirCharacters)
{
    const CString name("KM");
    CString text;
    text.Format("%s", static_cast<const char*>(name));
    EXPECT_EQ(text, "KM");
    text.Format("%d %s", 5, name);
    EXPECT_EQ(text, "5 KM");
    text.Format("%s-%s", name, "x");
    EXPECT_EQ(text, "KM-x");
    text.AppendFormat("/%s/%c", name, 'z');
    EXPECT_EQ(text, "KM-x/KM/z");
    text.Format("%s%s", text, text);
    EXPECT_EQ(text, "KM-x/KM/zKM-x/KM/z");
    text.Format("%s %.1f %lld", CString("temporary"), 1.5F, 1LL << 40);
    EXPECT_EQ(text, "temporary 1.5 1099511627776");
}

TEST(CStringFormat, LongResultsGrow)
{
    for (const int length : {254, 255, 256, 257, 1000, 100000})
    {
        const CString expected('y', length);
        CString text;
        text.Format("%s", expected.GetString());
        EXPECT_EQ(text, expected);
        EXPECT_EQ(text.GetLength(), length);
        text.Format("%*d", length, 1);
        EXPECT_EQ(text.GetLength(), length);
    }
    EXPECT_EQ(Formatted("%f", 1e300).GetLength(), 308);
    EXPECT_EQ(Formatted("%.1000f", 1.0).GetLength(), 1002);
}

TEST(CStringFormat, ListsOfArgumentsMayBePassedOn)
{
    EXPECT_EQ(FormattedV("%d %s", 1, "two"), "1 two");
}

TEST(CStringFormat, AppendsToTheText)
{
    CString text("x=");
    text.AppendFormat("%d", 5);
    text.AppendFormat("%s", "");
    EXPECT_EQ(text, "x=5");
}

TEST(CStringFormat, ANullFormatThrowsInvalidArgument)
{
    const char* format = nullptr;
    EXPECT_THROWN(FormattedV(format), COleException);
}
