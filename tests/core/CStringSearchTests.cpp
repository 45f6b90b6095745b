#include "framework/core/CString.h"

#include "framework/core/OleException.h"
#include "tests/support/Thrown.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// Parts, searching, comparing and tokens of CString.

TEST(CStringParts, LeftTakesTheFirstCharacters)
{
    const CString text("abcdef");
    EXPECT_EQ(text.Left(3), "abc");
    EXPECT_EQ(text.Left(0), "");
    EXPECT_EQ(text.Left(6), "abcdef");
    EXPECT_EQ(text.Left(100), "abcdef");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Left(INT_MIN), "");
}

TEST(CStringParts, RightTakesTheLastCharacters)
{
    const CString text("abcdef");
    EXPECT_EQ(text.Right(2), "ef");
    EXPECT_EQ(text.Right(0), "");
    EXPECT_EQ(text.Right(6), "abcdef");
    EXPECT_EQ(text.Right(INT_MAX), "abcdef");
    EXPECT_EQ(text.Right(-1), "");
}

TEST(CStringParts, MidClipsBothEnds)
{
    const CString text("abcdef");
    EXPECT_EQ(text.Mid(2), "cdef");
    EXPECT_EQ(text.Mid(2, 3), "cde");
    EXPECT_EQ(text.Mid(2, 100), "cdef");
    EXPECT_EQ(text.Mid(2, 0), "");
    EXPECT_EQ(text.Mid(2, -3), "");
    EXPECT_EQ(text.Mid(-2), "abcdef");
    EXPECT_EQ(text.Mid(-2, 3), "abc");
    EXPECT_EQ(text.Mid(6), "");
    EXPECT_EQ(text.Mid(7, 1), "");
    EXPECT_EQ(text.Mid(INT_MAX, INT_MAX), "");
    EXPECT_EQ(text.Mid(1, INT_MAX), "bcdef");
    EXPECT_EQ(CString().Mid(0, 1), "");
}

TEST(CStringParts, SpansStopAtTheFirstOther)
{
    const CString text("cabinet");
    EXPECT_EQ(text.SpanIncluding("abc"), "cab");
    EXPECT_EQ(text.SpanIncluding("xyz"), "");
    EXPECT_EQ(text.SpanIncluding("cabinet"), "cabinet");
    EXPECT_EQ(text.SpanIncluding(""), "");
    EXPECT_EQ(text.SpanExcluding("ni"), "cab");
    EXPECT_EQ(text.SpanExcluding("c"), "");
    EXPECT_EQ(text.SpanExcluding("xyz"), "cabinet");
    EXPECT_EQ(text.SpanExcluding(""), "cabinet");
}

// --- Searching ---

TEST(CStringFind, FindsCharactersAndTexts)
{
    const CString text("abcabc");
    EXPECT_EQ(text.Find('c'), 2);
    EXPECT_EQ(text.Find('c', 3), 5);
    EXPECT_EQ(text.Find('x'), -1);
    EXPECT_EQ(text.Find("bc"), 1);
    EXPECT_EQ(text.Find("bc", 2), 4);
    EXPECT_EQ(text.Find("cb"), -1);
    EXPECT_EQ(text.Find("abcabcd"), -1);
}

TEST(CStringFind, StartsOutsideTheTextFindNothing)
{
    const CString text("abc");
    EXPECT_EQ(text.Find('a', -1), -1);
    EXPECT_EQ(text.Find("a", -1), -1);
    EXPECT_EQ(text.Find('c', 3), -1);
    EXPECT_EQ(text.Find("c", 4), -1);
    EXPECT_EQ(text.Find('c', INT_MAX), -1);
    EXPECT_EQ(text.Find("c", INT_MAX), -1);
    EXPECT_EQ(text.Find("", 0), 0);
    EXPECT_EQ(text.Find("", 3), 3);
    EXPECT_EQ(text.Find("", 4), -1);
}

TEST(CStringFind, SearchesFromTheEndAndForSets)
{
    const CString text("C:\\Charts\\World.png");
    EXPECT_EQ(text.ReverseFind('\\'), 9);
    EXPECT_EQ(text.ReverseFind('?'), -1);
    EXPECT_EQ(text.FindOneOf("\\:"), 1);
    EXPECT_EQ(text.FindOneOf("?*"), -1);
    EXPECT_EQ(text.FindOneOf(""), -1);
    EXPECT_EQ(CString().ReverseFind('a'), -1);
    EXPECT_EQ(CString().FindOneOf("a"), -1);
}

// --- Comparing ---

TEST(CStringCompare, OrdersByUnsignedCharacters)
{
    EXPECT_EQ(CString("abc").Compare("abc"), 0);
    EXPECT_LT(CString("abc").Compare("abd"), 0);
    EXPECT_GT(CString("abd").Compare("abc"), 0);
    EXPECT_LT(CString("ab").Compare("abc"), 0);
    EXPECT_GT(CString("abc").Compare("ab"), 0);
    EXPECT_GT(CString("\xB0").Compare("z"), 0);
    EXPECT_LT(CString("Z").Compare("a"), 0);
    EXPECT_LT(CString().Compare("a"), 0);
}

TEST(CStringCompare, IgnoresTheCaseOfAsciiLettersOnly)
{
    EXPECT_EQ(CString("Runway 09L").CompareNoCase("rUNWAY 09l"), 0);
    EXPECT_LT(CString("ABC").CompareNoCase("abd"), 0);
    EXPECT_GT(CString("abd").CompareNoCase("ABC"), 0);
    EXPECT_LT(CString("ab").CompareNoCase("ABC"), 0);
    EXPECT_NE(CString("\xC4").CompareNoCase("\xE4"), 0);
    EXPECT_NE(CString("[").CompareNoCase("{"), 0);
    EXPECT_GT(CString("\xB0").CompareNoCase("z"), 0);
    EXPECT_EQ(CString("ABC").CollateNoCase("abc"), 0);
    EXPECT_EQ(CString("abc").Collate("abc"), 0);
    EXPECT_LT(CString("abc").Collate("abd"), 0);
}

TEST(CStringCompare, OperatorsWorkWithTextOnEitherSide)
{
    const CString a("a");
    const CString b("b");
    EXPECT_TRUE(a == CString("a"));
    EXPECT_TRUE(a == "a");
    EXPECT_TRUE("a" == a);
    EXPECT_TRUE(a == 'a');
    EXPECT_TRUE('a' == a);
    EXPECT_FALSE(CString("aa") == 'a');
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a != "b");
    EXPECT_TRUE("b" != a);
    EXPECT_TRUE(a != 'b');
    EXPECT_TRUE(a < b);
    EXPECT_TRUE(a < "b");
    EXPECT_TRUE("a" < b);
    EXPECT_TRUE(b > a);
    EXPECT_TRUE(b > "a");
    EXPECT_TRUE("b" > a);
    EXPECT_TRUE(a <= a);
    EXPECT_TRUE(a <= "a");
    EXPECT_TRUE("a" >= a);
    EXPECT_TRUE(b >= a);
    EXPECT_TRUE(b >= "b");
}

// --- Tokens ---

namespace
{
std::vector<std::string> TokensOf(const CString& text, const char* separators)
{
    std::vector<std::string> tokens;
    int at = 0;
    for (CString token = text.Tokenize(separators, at); at != -1; token = text.Tokenize(separators, at))
    {
        tokens.emplace_back(token.GetString());
    }
    return tokens;
}

using Tokens = std::vector<std::string>;
} // namespace

TEST(CStringTokenize, SkipsSeparatorsInFrontAndBetween)
{
    EXPECT_EQ(TokensOf("%First Second#Third", "% #"), (Tokens{"First", "Second", "Third"}));
    EXPECT_EQ(TokensOf(",,a,,b,,", ","), (Tokens{"a", "b"}));
    EXPECT_EQ(TokensOf("a", ","), (Tokens{"a"}));
    EXPECT_EQ(TokensOf("", ","), Tokens{});
    EXPECT_EQ(TokensOf(",,,", ","), Tokens{});
}

TEST(CStringTokenize, WithoutSeparatorsTheRestIsOneToken)
{
    EXPECT_EQ(TokensOf("a b", ""), (Tokens{"a b"}));
    EXPECT_EQ(TokensOf("a b", nullptr), (Tokens{"a b"}));
}

TEST(CStringTokenize, MovesTheStartOnAndEndsWithMinusOne)
{
    const CString text("ab;cd");
    int at = 0;
    EXPECT_EQ(text.Tokenize(";", at), "ab");
    EXPECT_EQ(at, 3);
    EXPECT_EQ(text.Tokenize(";", at), "cd");
    EXPECT_GE(at, 5);
    EXPECT_EQ(text.Tokenize(";", at), "");
    EXPECT_EQ(at, -1);
    EXPECT_THROWN(text.Tokenize(";", at), COleException);
    at = INT_MAX;
    EXPECT_EQ(text.Tokenize(";", at), "");
    EXPECT_EQ(at, -1);
}
