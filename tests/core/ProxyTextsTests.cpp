#include "config/core/ProxyTexts.h"

#include <gtest/gtest.h>

#include <ostream>

using vorn::ParsePorts;
using vorn::PortRange;

namespace vorn
{
std::ostream& operator<<(std::ostream& out, const PortRange& ports)
{
    return out << ports.first << " to " << ports.last;
}
} // namespace vorn

TEST(ProxyLine, ShowsHostAndPort)
{
    EXPECT_EQ(vorn::ProxyLine("proxy", 8080), "proxy:8080");
    EXPECT_EQ(vorn::ProxyLine("proxy", 65535), "proxy:65535");
    EXPECT_EQ(vorn::ProxyLine("proxy", 0), "proxy");
    EXPECT_EQ(vorn::ProxyLine("[::1]", 1), "[::1]:1");
    EXPECT_EQ(vorn::ProxyLine("100%s", 1), "100%s:1");
}

TEST(ProxyLine, AnEmptyHostIsNamedSoWhateverItsPort)
{
    EXPECT_EQ(vorn::ProxyLine(nullptr, 0), "<no host>");
    EXPECT_EQ(vorn::ProxyLine("", 0), "<no host>");
    EXPECT_EQ(vorn::ProxyLine(nullptr, 8080), "<no host>");
}

TEST(ProxyTypes, StandInTheirOrder)
{
    ASSERT_EQ(vorn::kProxyTypes.size(), 4u);
    EXPECT_STREQ(vorn::kProxyTypes[0].text, "HTTP");
    EXPECT_STREQ(vorn::kProxyTypes[1].text, "HTTP Tunneling");
    EXPECT_STREQ(vorn::kProxyTypes[2].text, "SOCKS Version 4");
    EXPECT_STREQ(vorn::kProxyTypes[3].text, "SOCKS Version 5");
    EXPECT_EQ(vorn::kProxyTypes[0].type, 1);
    EXPECT_EQ(vorn::kProxyTypes[1].type, 4);
    EXPECT_EQ(vorn::kProxyTypes[2].type, 2);
    EXPECT_EQ(vorn::kProxyTypes[3].type, 3);
}

TEST(ProxyPorts, AreShownAsRangeOrAsOne)
{
    EXPECT_EQ(vorn::PortsText({1, 65535}), "1-65535");
    EXPECT_EQ(vorn::PortsText({443, 443}), "443");
    EXPECT_EQ(vorn::PortsText({0, 0}), "0");
    EXPECT_EQ(vorn::PortsText({9, 8}), "9-8");
}

TEST(ProxyPorts, ATextIsSplitAtItsFirstHyphenBehindTheFirstCharacter)
{
    EXPECT_EQ(ParsePorts("8000-8080"), (PortRange{8000, 8080}));
    EXPECT_EQ(ParsePorts("443"), (PortRange{443, 443}));
    EXPECT_EQ(ParsePorts("1-2-3"), (PortRange{1, 2}));
    EXPECT_EQ(ParsePorts("80-"), (PortRange{80, 0}));
    EXPECT_EQ(ParsePorts("-5"), (PortRange{0, 0}));
    EXPECT_EQ(ParsePorts("-5-7"), (PortRange{0, 7}));
    EXPECT_EQ(ParsePorts(" -5"), (PortRange{0, 5}));
    EXPECT_EQ(ParsePorts("-"), (PortRange{0, 0}));
    EXPECT_EQ(ParsePorts(""), (PortRange{0, 0}));
}

TEST(ProxyPorts, NumbersStopAtTheFirstOtherCharacter)
{
    EXPECT_EQ(ParsePorts("  80 - \t90x"), (PortRange{80, 90}));
    EXPECT_EQ(ParsePorts("80x90"), (PortRange{80, 80}));
    EXPECT_EQ(ParsePorts("+80"), (PortRange{0, 0}));
    EXPECT_EQ(ParsePorts("http"), (PortRange{0, 0}));
    EXPECT_EQ(ParsePorts("007"), (PortRange{7, 7}));
}

TEST(ProxyPorts, NumbersBeyondSixteenBitsAreZero)
{
    EXPECT_EQ(ParsePorts("65535-65536"), (PortRange{65535, 0}));
    EXPECT_EQ(ParsePorts("99999999999999999999"), (PortRange{0, 0}));
}
