#include "framework/core/CString.h"

#include "framework/core/OleException.h"

#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

// Making, sharing, assigning and the buffer of CString.

namespace
{
/// Runs `action` and gives the result code of the COleException that it throws, or 0 for none.
template <class Action>
SCODE CodeOf(Action action)
{
    try
    {
        action();
    }
    catch (COleException* error)
    {
        const SCODE code = error->m_sc;
        error->Delete();
        return code;
    }
    return 0;
}

const CString kZeros("a\0b\0", 4);
} // namespace

TEST(CString, IsOnePointerToItsCharacters)
{
    const CString text("Runway");
    const char* pointer = nullptr;
    static_assert(sizeof(text) == sizeof(pointer));
    std::memcpy(&pointer, &text, sizeof(pointer));
    EXPECT_STREQ(pointer, "Runway");
}

TEST(CString, StartsEmptyWithAnEnd)
{
    const CString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_STREQ(text.GetString(), "");
    EXPECT_EQ(text[0], '\0');
}

TEST(CString, IsMadeFromTexts)
{
    EXPECT_STREQ(CString("chart"), "chart");
    EXPECT_STREQ(CString(""), "");
    EXPECT_STREQ(CString("chart", 2), "ch");
    EXPECT_STREQ(CString(reinterpret_cast<const unsigned char*>("chart")), "chart");
    EXPECT_STREQ(CString('x'), "x");
    EXPECT_STREQ(CString('x', 3), "xxx");
    EXPECT_TRUE(CString('x', 0).IsEmpty());
    EXPECT_TRUE(CString('x', -5).IsEmpty());
    EXPECT_EQ(CString('\0', 2).GetLength(), 2);
}

TEST(CString, NullIsAnEmptyText)
{
    const char* null = nullptr;
    CString text(null);
    EXPECT_TRUE(text.IsEmpty());
    text = "x";
    text = null;
    EXPECT_TRUE(text.IsEmpty());
    text.SetString(null);
    text.Append(null);
    text += null;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(CString(null, 0).IsEmpty());
    EXPECT_EQ(text + null, "");
    EXPECT_EQ(null + CString("a"), "a");
    EXPECT_TRUE(text == null);
    EXPECT_EQ(text.Compare(null), 0);
    EXPECT_EQ(text.CompareNoCase(null), 0);
    EXPECT_EQ(text.Collate(null), 0);
    EXPECT_EQ(text.Find(null), -1);
    EXPECT_EQ(text.FindOneOf(null), -1);
    EXPECT_EQ(text.Insert(0, null), 0);
    EXPECT_EQ(text.Replace(null, "x"), 0);
    EXPECT_EQ(text.SpanIncluding(null), "");
    EXPECT_EQ(CString("ab").SpanExcluding(null), "ab");
    EXPECT_EQ(CString(" ab ").Trim(null), " ab ");
}

TEST(CString, BadLengthsThrowInvalidArgument)
{
    const char* null = nullptr;
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      CString text(null, 1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  []
                  {
                      CString text("abc", -1);
                  }),
              E_INVALIDARG);
    CString text("abc");
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.SetString("x", -1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.SetString(null, 2);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.Append("x", -1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.Append(null, 1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.GetBuffer(-1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.GetBufferSetLength(-1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.Preallocate(-1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.Truncate(-1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.ReleaseBuffer(-2);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.ReleaseBuffer(text.GetAllocLength() + 1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.ReleaseBufferSetLength(-1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(text, "abc");
}

TEST(CString, ImpossibleLengthsThrowTheMemoryException)
{
    CString text("abc");
    EXPECT_THROW(text.GetBuffer(INT_MAX), CMemoryException*);
    EXPECT_THROW(text.Preallocate(INT_MAX), CMemoryException*);
    EXPECT_THROW(text.GetBufferSetLength(INT_MAX), CMemoryException*);
    EXPECT_THROW(text.Append("", INT_MAX), CMemoryException*);
    EXPECT_THROW(CString('x', INT_MAX), CMemoryException*);
    EXPECT_EQ(text, "abc");
}

TEST(CString, IndicesOutsideThrowInvalidArgument)
{
    CString text("abc");
    EXPECT_EQ(text.GetAt(0), 'a');
    EXPECT_EQ(text[2], 'c');
    EXPECT_EQ(text[3], '\0') << "the end can be read";
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.GetAt(4);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.GetAt(-1);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      static_cast<void>(text[INT_MAX]);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      static_cast<void>(text[INT_MIN]);
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.SetAt(3, 'x');
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  [&]
                  {
                      text.SetAt(-1, 'x');
                  }),
              E_INVALIDARG);
    EXPECT_EQ(CodeOf(
                  []
                  {
                      CString().SetAt(0, 'x');
                  }),
              E_INVALIDARG);
    EXPECT_EQ(text, "abc");
}

// --- Sharing ---

TEST(CString, CopiesShareUntilOneIsChanged)
{
    const CString text = CString('t', 101);
    const CString first = text;
    CString second = first;
    EXPECT_EQ(first.GetString(), second.GetString());
    second.SetAt(0, 'T');
    EXPECT_NE(first.GetString(), second.GetString());
    EXPECT_EQ(first, text);
    EXPECT_EQ(second, 'T' + CString('t', 100));
}

TEST(CString, EveryChangeLeavesOtherOwnersAlone)
{
    using Change = void (*)(CString&);
    const std::vector<Change> changes = {
        [](CString& text)
        {
            text.SetAt(1, 'X');
        },
        [](CString& text)
        {
            text.Empty();
        },
        [](CString& text)
        {
            text = "other";
        },
        [](CString& text)
        {
            text = 'c';
        },
        [](CString& text)
        {
            text.SetString("o", 1);
        },
        [](CString& text)
        {
            text += "more";
        },
        [](CString& text)
        {
            text += 'm';
        },
        [](CString& text)
        {
            text += text;
        },
        [](CString& text)
        {
            text.AppendChar('m');
        },
        [](CString& text)
        {
            text.Insert(1, "x");
        },
        [](CString& text)
        {
            text.Insert(1, 'x');
        },
        [](CString& text)
        {
            text.Delete(1);
        },
        [](CString& text)
        {
            text.Replace('l', 'L');
        },
        [](CString& text)
        {
            text.Replace("l", "LL");
        },
        [](CString& text)
        {
            text.Remove('l');
        },
        [](CString& text)
        {
            text.Trim();
        },
        [](CString& text)
        {
            text.TrimLeft(" ");
        },
        [](CString& text)
        {
            text.TrimRight(' ');
        },
        [](CString& text)
        {
            text.MakeUpper();
        },
        [](CString& text)
        {
            text.MakeLower();
        },
        [](CString& text)
        {
            text.MakeReverse();
        },
        [](CString& text)
        {
            text.Truncate(1);
        },
        [](CString& text)
        {
            text.Format("%d", 1);
        },
        [](CString& text)
        {
            text.AppendFormat("%d", 1);
        },
        [](CString& text)
        {
            text.GetBuffer()[0] = 'X';
        },
        [](CString& text)
        {
            text.GetBuffer(100)[0] = 'X';
        },
        [](CString& text)
        {
            text.GetBufferSetLength(2)[0] = 'X';
        },
        [](CString& text)
        {
            text.LockBuffer()[0] = 'X';
        },
        [](CString& text)
        {
            text.ReleaseBufferSetLength(2);
        },
        [](CString& text)
        {
            text.FreeExtra();
        },
    };
    for (std::size_t i = 0; i < changes.size(); ++i)
    {
        const CString kept(" Hello ");
        CString changed = kept;
        changes[i](changed);
        EXPECT_EQ(kept, " Hello ") << "change " << i;
        EXPECT_EQ(kept.GetLength(), 7) << "change " << i;
    }
}

TEST(CString, LookingDoesNotEndSharing)
{
    const CString first('w', 101); // too long to be copied at once
    const CString second = first;
    static_cast<void>(second.Find('w'));
    static_cast<void>(second[0]);
    static_cast<void>(second.Compare(first));
    EXPECT_EQ(first.GetString(), second.GetString());
    EXPECT_EQ(first.Left(200).GetString(), first.GetString()) << "a whole part is a copy";
    EXPECT_EQ(first.Mid(0).GetString(), first.GetString());
}

TEST(CString, SelfAssignmentKeepsTheText)
{
    CString text("runway");
    CString& alias = text;
    text = alias;
    EXPECT_EQ(text, "runway");
    text = std::move(alias);
    EXPECT_EQ(text, "runway");
    text = text.GetString();
    EXPECT_EQ(text, "runway");
}

TEST(CString, ArgumentsMayBePartsOfTheTextItself)
{
    CString text("abcdef");
    text = text.GetString() + 2;
    EXPECT_EQ(text, "cdef");
    text.SetString(text.GetString() + 1, 2);
    EXPECT_EQ(text, "de");
    text += text.GetString();
    EXPECT_EQ(text, "dede");
    for (int i = 0; i < 8; ++i)
    {
        text.Append(text.GetString(), text.GetLength());
    }
    EXPECT_EQ(text.GetLength(), 1024);
    EXPECT_EQ(text.Right(4), "dede");
    text = "abc";
    text.Insert(1, text);
    EXPECT_EQ(text, "aabcbc");
    text = "abcabc";
    EXPECT_EQ(text.Replace(text.GetString() + 4, text), 2);
    EXPECT_EQ(text, "aabcabcaabcabc");
    text = "  x ";
    text.Trim(text.GetString() + 3);
    EXPECT_EQ(text, "x");
    text = "ab";
    text.Format("<%s|%s>", text.GetString(), text.GetString());
    EXPECT_EQ(text, "<ab|ab>");
    text.AppendFormat("%s", text.GetString());
    EXPECT_EQ(text, "<ab|ab><ab|ab>");
}

TEST(CString, MovingTakesTheBlock)
{
    CString first("taxiway");
    const char* characters = first.GetString();
    CString second = std::move(first);
    EXPECT_EQ(second.GetString(), characters);
    EXPECT_TRUE(first.IsEmpty()); // NOLINT: a moved-from string is an empty one
    CString third("other");
    third = std::move(second);
    EXPECT_EQ(third.GetString(), characters);
    EXPECT_TRUE(second.IsEmpty()); // NOLINT
    first = "used again";
    EXPECT_EQ(first, "used again");
}

// --- Embedded zeros ---

TEST(CString, KeepsEmbeddedZeros)
{
    EXPECT_EQ(kZeros.GetLength(), 4);
    EXPECT_EQ(kZeros[1], '\0');
    EXPECT_EQ(kZeros[2], 'b');
    const CString copy = kZeros;
    EXPECT_EQ(copy, kZeros);
    EXPECT_FALSE(copy == "a") << "a text of four characters is not one of one";
    EXPECT_TRUE(CString("a\0c", 3) > CString("a\0b", 3));
    EXPECT_EQ((kZeros + kZeros).GetLength(), 8);
    EXPECT_EQ((kZeros + "x").GetLength(), 5);
    CString text = kZeros;
    text += 'x';
    EXPECT_EQ(text.GetLength(), 5);
    EXPECT_EQ(text.Find('x'), 4);
    EXPECT_EQ(text.ReverseFind('b'), 2);
    EXPECT_EQ(text.Mid(2, 3), CString("b\0x", 3));
    EXPECT_EQ(text.Right(3), CString("b\0x", 3));
    EXPECT_EQ(text.Replace('\0', '-'), 2);
    EXPECT_EQ(text, "a-b-x");
    text = kZeros;
    EXPECT_EQ(text.Remove('\0'), 2);
    EXPECT_EQ(text, "ab");
    text = kZeros;
    text.MakeUpper();
    EXPECT_EQ(text, CString("A\0B\0", 4));
    text.MakeReverse();
    EXPECT_EQ(text, CString("\0B\0A", 4));
    EXPECT_EQ(text.Delete(0, 2), 2);
    EXPECT_EQ(text, CString("\0A", 2));
    text.Insert(1, "zz");
    EXPECT_EQ(text, CString("\0zzA", 4));
    text.Format("%c%d", 0, 7);
    EXPECT_EQ(text, CString("\0"
                            "7",
                            2));
}

// --- Buffers ---

TEST(CString, GetBufferGivesRoomAndKeepsTheText)
{
    CString text("abc");
    char* buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, "abc");
    EXPECT_GE(text.GetAllocLength(), 100);
    std::memset(buffer, 'z', 100);
    buffer[100] = '\0';
    text.ReleaseBuffer();
    EXPECT_EQ(text, CString('z', 100));
    EXPECT_EQ(text.GetBuffer(5), buffer) << "room enough: the block stays";
}

TEST(CString, ReleaseBufferFindsTheEnd)
{
    CString text;
    std::strcpy(text.GetBuffer(10), "hello");
    EXPECT_EQ(text.GetLength(), 0) << "the length is unknown until the release";
    text.ReleaseBuffer();
    EXPECT_EQ(text, "hello");
    std::strcpy(text.GetBuffer(20), "hello world");
    text.ReleaseBuffer(5);
    EXPECT_EQ(text.GetLength(), 5);
    EXPECT_STREQ(text, "hello");
    text.GetBuffer()[0] = '\0';
    text.ReleaseBuffer();
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, ReleaseBufferStaysInsideAnUnendedBlock)
{
    CString text;
    char* buffer = text.GetBuffer(10);
    std::memset(buffer, 'x', static_cast<std::size_t>(text.GetAllocLength()) + 1);
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), text.GetAllocLength());
    EXPECT_EQ(std::strlen(text), static_cast<std::size_t>(text.GetLength()));
}

TEST(CString, GetBufferSetLengthSetsTheLengthAtOnce)
{
    CString text("abcdef");
    std::memcpy(text.GetBufferSetLength(3), "xyz", 3);
    EXPECT_EQ(text, "xyz");
    text.ReleaseBufferSetLength(2);
    EXPECT_EQ(text, "xy");
    EXPECT_EQ(text.GetBufferSetLength(0)[0], '\0');
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, AnEmptyStringsBufferIsItsOwn)
{
    CString first;
    char* buffer = first.GetBuffer();
    const CString second;
    EXPECT_NE(static_cast<const char*>(buffer), second.GetString());
    first.ReleaseBuffer();
    EXPECT_TRUE(first.IsEmpty());
}

TEST(CString, ALockedBufferIsNeverShared)
{
    CString text("locked");
    char* buffer = text.LockBuffer();
    const CString copy = text;
    EXPECT_NE(copy.GetString(), text.GetString());
    EXPECT_EQ(copy, "locked");
    buffer[0] = 'L';
    EXPECT_EQ(copy, "locked");
    const CString other("other");
    text = other;
    EXPECT_NE(text.GetString(), other.GetString());
    EXPECT_EQ(text.GetString(), buffer) << "a shorter text is copied into the locked block";
    text = CString("moved");
    EXPECT_EQ(text, "moved");
    text.Empty();
    EXPECT_EQ(text.GetString(), buffer);
    text = CString('x', 500);
    const CString again = text;
    EXPECT_NE(again.GetString(), text.GetString()) << "a longer text leaves the string locked";
    text.UnlockBuffer();
    const CString shared = text;
    EXPECT_EQ(shared.GetString(), text.GetString());
    text.UnlockBuffer();
    EXPECT_EQ(shared, text);
}

TEST(CString, FreeExtraKeepsTheText)
{
    CString text("abc");
    text.Preallocate(10000);
    EXPECT_GE(text.GetAllocLength(), 10000);
    EXPECT_EQ(text, "abc");
    text.FreeExtra();
    EXPECT_LT(text.GetAllocLength(), 10000);
    EXPECT_EQ(text, "abc");
    text.Empty();
    text.FreeExtra();
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CString, PieceByPieceGrowthStaysLinear)
{
    CString text;
    int moves = 0;
    for (int i = 0; i < 100000; ++i)
    {
        const int room = text.GetAllocLength();
        text += 'x';
        moves += text.GetAllocLength() != room ? 1 : 0;
    }
    EXPECT_EQ(text.GetLength(), 100000);
    EXPECT_LT(moves, 60);
}

// --- Joining ---

TEST(CString, JoinsTextsAndCharacters)
{
    const CString a("a");
    const CString b("b");
    EXPECT_EQ(a + b, "ab");
    EXPECT_EQ(a + "b", "ab");
    EXPECT_EQ("a" + b, "ab");
    EXPECT_EQ(a + 'b', "ab");
    EXPECT_EQ('a' + b, "ab");
    CString text("x");
    text += a;
    text += "bc";
    text += 'd';
    EXPECT_EQ(text, "xabcd");
    text.Append("efg", 2);
    text.Append(CString("!"));
    text.AppendChar('?');
    EXPECT_EQ(text, "xabcdef!?");
    text.Append("none", 0);
    EXPECT_EQ(text, "xabcdef!?");
}

TEST(CString, StaticHelpersWork)
{
    EXPECT_EQ(CString::StringLength(nullptr), 0);
    EXPECT_EQ(CString::StringLength("abc"), 3);
    char target[4] = "xyz";
    CString::CopyChars(target, "ab", 2);
    EXPECT_STREQ(target, "abz");
}
