#include "framework/core/CString.h"

#include <climits>
#include <gtest/gtest.h>

// Inserting, deleting, replacing, trimming and letter case of CString.

TEST(CStringInsert, InsertsBeforeTheIndex)
{
    CString text("ad");
    EXPECT_EQ(text.Insert(1, "bc"), 4);
    EXPECT_EQ(text, "abcd");
    EXPECT_EQ(text.Insert(0, '<'), 5);
    EXPECT_EQ(text.Insert(5, '>'), 6);
    EXPECT_EQ(text, "<abcd>");
    EXPECT_EQ(text.Insert(2, ""), 6);
}

TEST(CStringInsert, ClipsTheIndex)
{
    CString text("m");
    text.Insert(-5, "l");
    text.Insert(100, "n");
    text.Insert(INT_MIN, 'k');
    text.Insert(INT_MAX, 'o');
    EXPECT_EQ(text, "klmno");
    CString empty;
    EXPECT_EQ(empty.Insert(3, "x"), 1);
    EXPECT_EQ(empty, "x");
}

TEST(CStringDelete, RemovesCharacters)
{
    CString text("abcdef");
    EXPECT_EQ(text.Delete(1), 5);
    EXPECT_EQ(text, "acdef");
    EXPECT_EQ(text.Delete(1, 2), 3);
    EXPECT_EQ(text, "aef");
    EXPECT_EQ(text.Delete(1, INT_MAX), 1);
    EXPECT_EQ(text, "a");
    EXPECT_EQ(text.Delete(0), 0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CStringDelete, ClipsIndexAndCount)
{
    CString text("abc");
    EXPECT_EQ(text.Delete(3), 3);
    EXPECT_EQ(text.Delete(100, 5), 3);
    EXPECT_EQ(text.Delete(0, -1), 3);
    EXPECT_EQ(text.Delete(1, 0), 3);
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(text.Delete(-1, 1), 2);
    EXPECT_EQ(text, "bc");
}

TEST(CStringReplace, ReplacesCharactersAndCounts)
{
    CString text("banana");
    EXPECT_EQ(text.Replace('a', 'o'), 3);
    EXPECT_EQ(text, "bonono");
    EXPECT_EQ(text.Replace('x', 'y'), 0);
    EXPECT_EQ(text.Replace('o', 'o'), 0);
    EXPECT_EQ(text.Replace('B', 'x'), 0) << "case matters";
    EXPECT_EQ(text, "bonono");
}

TEST(CStringReplace, ReplacesTextsOfAnyLength)
{
    CString text("the cat sat on the mat");
    EXPECT_EQ(text.Replace("the", "a"), 2);
    EXPECT_EQ(text, "a cat sat on a mat");
    EXPECT_EQ(text.Replace("at", "ooooooo"), 3);
    EXPECT_EQ(text, "a cooooooo sooooooo on a mooooooo");
    EXPECT_EQ(text.Replace("oo", "x"), 9);
    EXPECT_EQ(text, "a cxxxo sxxxo on a mxxxo");
    EXPECT_EQ(text.Replace("xxxo", ""), 3);
    EXPECT_EQ(text, "a c s on a m");
    EXPECT_EQ(text.Replace(" ", nullptr), 5);
    EXPECT_EQ(text, "acsonam");
}

TEST(CStringReplace, DoesNotLookAtWhatItPutIn)
{
    CString text("aaa");
    EXPECT_EQ(text.Replace("a", "aa"), 3);
    EXPECT_EQ(text, "aaaaaa");
    EXPECT_EQ(text.Replace("aa", "a"), 3);
    EXPECT_EQ(text, "aaa");
    EXPECT_EQ(text.Replace("", "x"), 0);
    EXPECT_EQ(text.Replace("aaaa", "x"), 0);
    EXPECT_EQ(text.Replace("aaa", ""), 1);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.Replace("a", "b"), 0);
}

TEST(CStringRemove, CountsWhatItRemoves)
{
    CString text("a-b-c-");
    EXPECT_EQ(text.Remove('-'), 3);
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(text.Remove('x'), 0);
    EXPECT_EQ(text.Remove('A'), 0);
    EXPECT_EQ(CString().Remove('a'), 0);
}

TEST(CStringTrim, RemovesWhiteSpace)
{
    EXPECT_EQ(CString(" \t\r\n\v\fabc \t\r\n\v\f").Trim(), "abc");
    EXPECT_EQ(CString("  a b  ").TrimLeft(), "a b  ");
    EXPECT_EQ(CString("  a b  ").TrimRight(), "  a b");
    EXPECT_EQ(CString("   ").Trim(), "");
    EXPECT_EQ(CString("   ").TrimLeft(), "");
    EXPECT_EQ(CString("   ").TrimRight(), "");
    EXPECT_EQ(CString("abc").Trim(), "abc");
    EXPECT_EQ(CString().Trim(), "");
    EXPECT_EQ(CString("\xA0x").Trim(), "\xA0x") << "only ASCII is white space";
}

TEST(CStringTrim, RemovesAGivenCharacterOrSet)
{
    EXPECT_EQ(CString("**a*b**").Trim('*'), "a*b");
    EXPECT_EQ(CString("**a*b**").TrimLeft('*'), "a*b**");
    EXPECT_EQ(CString("**a*b**").TrimRight('*'), "**a*b");
    EXPECT_EQ(CString("***").Trim('*'), "");
    EXPECT_EQ(CString("+-a-+b+-").Trim("+-"), "a-+b");
    EXPECT_EQ(CString("+-a").TrimLeft("-+"), "a");
    EXPECT_EQ(CString("a+-").TrimRight("-+"), "a");
    EXPECT_EQ(CString("+-").Trim("-+"), "");
    EXPECT_EQ(CString(" a ").Trim(""), " a ");
}

TEST(CStringTrim, GivesTheStringItself)
{
    CString text(" a ");
    EXPECT_EQ(&text.Trim(), &text);
    EXPECT_EQ(text, "a");
    text.TrimLeft().MakeUpper().MakeReverse();
    EXPECT_EQ(text, "A");
}

TEST(CStringCase, ChangesAsciiLettersOnly)
{
    EXPECT_EQ(CString("az AZ 09 \xE4\xC4[{").MakeUpper(), "AZ AZ 09 \xE4\xC4[{");
    EXPECT_EQ(CString("az AZ 09 \xE4\xC4[{").MakeLower(), "az az 09 \xE4\xC4[{");
    EXPECT_EQ(CString("abc").MakeReverse(), "cba");
    EXPECT_EQ(CString().MakeUpper(), "");
    EXPECT_EQ(CString().MakeReverse(), "");
}

TEST(CStringTruncate, CutsButNeverExtends)
{
    CString text("abcdef");
    text.Truncate(10);
    EXPECT_EQ(text, "abcdef");
    text.Truncate(3);
    EXPECT_EQ(text, "abc");
    EXPECT_EQ(text.GetLength(), 3);
    text.Truncate(0);
    EXPECT_TRUE(text.IsEmpty());
}
