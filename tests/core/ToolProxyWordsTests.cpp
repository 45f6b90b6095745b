#include "apps/vorntool/core/LogLines.h"
#include "apps/vorntool/core/ProxyWords.h"

#include <gtest/gtest.h>

#include <string>

using namespace vorn::tool;

namespace
{

std::string Ports(std::string_view text)
{
    const auto ports = ParseProxyPorts(text);
    return ports ? TextOf(*ports) : "none";
}

} // namespace

TEST(ProxyWords, TypesGoByTheirWordsInEitherCase)
{
    EXPECT_EQ(ProxyTypeNamed("http"), 1);
    EXPECT_EQ(ProxyTypeNamed("Socks4"), 2);
    EXPECT_EQ(ProxyTypeNamed("SOCKS5"), 3);
    EXPECT_EQ(ProxyTypeNamed("tunnel"), 4);
    EXPECT_EQ(ProxyTypeNamed("https"), std::nullopt);
    EXPECT_EQ(ProxyTypeNamed(""), std::nullopt);
}

TEST(ProxyWords, NumbersHaveTheirWords)
{
    for (int type = 1; type <= 4; ++type)
    {
        EXPECT_EQ(ProxyTypeNamed(NameOfProxyType(type).value()), type);
    }
    EXPECT_EQ(NameOfProxyType(0), std::nullopt);
    EXPECT_EQ(NameOfProxyType(5), std::nullopt);
    EXPECT_EQ(NameOfProxyType(-1), std::nullopt);
}

TEST(ProxyWords, ASchemeIsLettersAndDigits)
{
    EXPECT_EQ(SchemeOf("socks5://proxy"), "socks5");
    EXPECT_EQ(SchemeOf("proxy:80"), std::nullopt);
    EXPECT_EQ(SchemeOf("joe:a://b@proxy"), std::nullopt);
}

TEST(ProxyWords, PortsAreOneOrARange)
{
    EXPECT_EQ(Ports("443"), "443");
    EXPECT_EQ(Ports("8000-8080"), "8000-8080");
    EXPECT_EQ(Ports("80-80"), "80");
    EXPECT_EQ(Ports("0-65535"), "0-65535");
    for (const char* text : {"", "-", "80-", "-80", "80-70", "65536", "1-65536", "x", "80x", " 80", "+80", "1-2-3"})
    {
        EXPECT_EQ(Ports(text), "none") << text;
    }
}

TEST(LogLines, EndInCarriageReturnAndLineFeedOrInLineFeed)
{
    using Lines = std::vector<std::string_view>;
    EXPECT_EQ(LogLines(""), Lines());
    EXPECT_EQ(LogLines("one\r\ntwo\nthree"), (Lines{"one", "two", "three"}));
    EXPECT_EQ(LogLines("\r\n\r\nx\r\n"), (Lines{"", "", "x"}));
    EXPECT_EQ(LogLines("a\rb\r\r\n"), (Lines{"a\rb\r"}));
}
