#include "toolkit/core/LinkOpening.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

using vorn::BrowserCommand;
using vorn::LinkErrorMessage;

namespace
{
constexpr const char* kUrl = "http://example.org/";
} // namespace

TEST(BrowserCommand, AQuotedPlaceholderGoesWithItsQuoteAndWhatFollows)
{
    EXPECT_EQ("\"C:\\web.exe\" -url  http://example.org/", BrowserCommand("\"C:\\web.exe\" -url \"%1\" -new", kUrl))
        << "the blank before it stays";
    EXPECT_EQ("web.exe http://example.org/", BrowserCommand("web.exe\"%1\"", kUrl));
}

TEST(BrowserCommand, ThenAPlainOne)
{
    EXPECT_EQ("web.exe  http://example.org/", BrowserCommand("web.exe %1 %2", kUrl));
    EXPECT_EQ("web.exe \" http://example.org/", BrowserCommand("web.exe \"%1 -x\"", kUrl)) << "not quoted alone";
}

TEST(BrowserCommand, TheQuotedOneIsPreferred)
{
    EXPECT_EQ("web.exe %1  http://example.org/", BrowserCommand("web.exe %1 \"%1\"", kUrl));
}

TEST(BrowserCommand, WithoutAPlaceholderTheUrlIsAppended)
{
    EXPECT_EQ("C:\\web.exe -x http://example.org/", BrowserCommand("C:\\web.exe -x", kUrl));
    EXPECT_EQ(" http://example.org/", BrowserCommand("", kUrl));
    EXPECT_EQ("web.exe %2 ", BrowserCommand("web.exe %2", ""));
}

TEST(BrowserCommand, IsAsLongAsItsParts)
{
    const std::string url(20000, 'u');
    EXPECT_EQ("w " + url, BrowserCommand("w", url));
}

TEST(LinkErrorMessage, SaysWhatTheCodeMeans)
{
    const auto about = [](int code)
    {
        const std::string message = LinkErrorMessage(code);
        EXPECT_EQ(0U, message.find("Can't open link:\n\n"));
        return message.substr(18);
    };
    EXPECT_EQ("The operating system is out of memory or resources.", about(0));
    EXPECT_EQ("The specified file was not found.  The default browser could not be started.", about(2));
    EXPECT_EQ("The specified path was not found.", about(3));
    EXPECT_EQ("The operating system denied access to the specified file.", about(5));
    EXPECT_EQ("There was not enough memory to complete the operation.", about(8));
    EXPECT_EQ("The .EXE file is invalid (non-Win32 .EXE or error in .EXE image).", about(11));
    EXPECT_EQ("A sharing violation occurred. ", about(26));
    EXPECT_EQ("The filename association is incomplete or invalid.", about(27));
    EXPECT_EQ("The DDE transaction could not be completed because the request timed out.", about(28));
    EXPECT_EQ("The DDE transaction failed.", about(29));
    EXPECT_EQ("The DDE transaction could not be completed because other DDE transactions were being processed.",
              about(30));
    EXPECT_EQ("There is no application associated with the given URL.", about(31));
    EXPECT_EQ("The specified dynamic-link library was not found.", about(32));
    EXPECT_EQ("Unknown Error (1) occurred.", about(1));
    EXPECT_EQ("Unknown Error (-2147483648) occurred.", about(INT_MIN));
}
