#include "frame/core/TextUtilities.h"

#include "family/TarnUtil/core/FixCase.h"
#include "frame/core/ArgumentArray.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

namespace
{

Texts TextsOf(const CStringArray& array)
{
    Texts texts;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        texts.emplace_back(array[i].GetString(), static_cast<std::size_t>(array[i].GetLength()));
    return texts;
}

Texts Split(const char* text, const char* separators, bool trim = false, bool skipEmpty = false)
{
    CStringArray parts;
    const int count = SplitString(text, separators, parts, trim, skipEmpty);
    EXPECT_EQ(count, parts.GetSize());
    return TextsOf(parts);
}

Texts ArgumentsOf(const char* line, const char* program = nullptr)
{
    int argc = -1;
    char** argv = nullptr;
    vorn::MakeArguments(line, program, argc, argv);
    Texts arguments(argv, argv + argc);
    CleanupCommandLine(argc, argv);
    return arguments;
}

template <class Change>
std::string Changed(const char* text, Change&& change)
{
    CString copy(text);
    change(copy);
    return copy.GetString();
}

} // namespace

TEST(SplitString, AppendsThePieces)
{
    EXPECT_EQ(Split("a,,b", ",", false, true), (Texts{"a", "b"}));
    EXPECT_EQ(Split("a,,b", ","), (Texts{"a", "", "b"}));
    EXPECT_EQ(Split(" a ; b ", ";", true), (Texts{"a", "b"}));
    CStringArray parts;
    parts.Add("kept");
    EXPECT_EQ(SplitString("a,b", ",", parts, false, false), 2);
    EXPECT_EQ(TextsOf(parts), (Texts{"kept", "a", "b"}));
}

TEST(SplitString, OfNoTextAddsNothing)
{
    EXPECT_EQ(Split(nullptr, ","), Texts{});
    EXPECT_EQ(Split("", ","), Texts{});
    EXPECT_EQ(Split(nullptr, nullptr), Texts{});
}

TEST(SplitString, WithoutSeparatorsIsOnePiece)
{
    EXPECT_EQ(Split(" a,b ", nullptr, true, true), (Texts{" a,b "}));
    EXPECT_EQ(Split(" a,b ", "", true, true), (Texts{" a,b "}));
}

TEST(TrimBoth, RemovesWhiteSpaceAtTheEnds)
{
    EXPECT_EQ(Changed(" \t a b \r\n", TrimBoth), "a b");
    EXPECT_EQ(Changed("   ", TrimBoth), "");
    EXPECT_EQ(Changed("", TrimBoth), "");
    EXPECT_EQ(Changed("\xA0 a", TrimBoth), "\xA0 a");
    EXPECT_EQ(Changed("untouched", TrimBoth), "untouched");
}

TEST(RemoveAfterFirstSpace, KeepsTheFirstWord)
{
    EXPECT_EQ(Changed("  alpha bravo  ", RemoveAfterFirstSpace), "alpha");
    EXPECT_EQ(Changed("alpha", RemoveAfterFirstSpace), "alpha");
    EXPECT_EQ(Changed("", RemoveAfterFirstSpace), "");
}

TEST(MatchStrings, ComparesAsTheCoreDoes)
{
    EXPECT_TRUE(MatchStrings("KB*.dat", "kbos.DAT", false, false));
    EXPECT_FALSE(MatchStrings("KB*.dat", "kbos.DAT", true, false));
    EXPECT_TRUE(MatchStrings("a*c", "A*C", false, true));
    EXPECT_TRUE(MatchStrings("*", "", true, true));
    EXPECT_FALSE(MatchStrings("", "", true, false));
    EXPECT_FALSE(MatchStrings("*a?c", "abxac", true, false));
}

TEST(FixCaseOfTexts, GivesTheFamilysResultInBothForms)
{
    for (const char* text : {"O'HARE intl", "", "north-east 4TH STREET", "\xC9LAN vital"})
    {
        std::string expected = text;
        ::FixCase(expected.data());
        EXPECT_EQ(std::string(FixCase(text)), expected);
        EXPECT_EQ(Changed(text,
                          [](CString& copy)
                          {
                              EXPECT_EQ(&FixCase(copy), &copy);
                          }),
                  expected);
    }
    EXPECT_EQ(FixCase(static_cast<const char*>(nullptr)), "");
}

TEST(FixCaseOfTexts, LeavesStringsThatShareTheCharacters)
{
    const CString kept = "alpha bravo";
    CString text = kept;
    FixCase(text);
    EXPECT_EQ(text, "Alpha Bravo");
    EXPECT_EQ(kept, "alpha bravo");
}

TEST(FixCaseOfTexts, KeepsTheLengthOfATextWithAZero)
{
    CString text("ab\0cd", 5);
    FixCase(text);
    EXPECT_EQ(text.GetLength(), 5);
    EXPECT_EQ(text[0], 'A');
}

TEST(ConvertTehString, RespellsWithinItsBounds)
{
    std::srand(1);
    for (int i = 0; i < 50; ++i)
    {
        const CString result = ConvertTehString("The Quick BROWN Fox");
        EXPECT_GE(result.GetLength(), 19);
        EXPECT_LE(result.GetLength(), 57);
        for (int at = 0; at < result.GetLength(); ++at)
            EXPECT_FALSE(result[at] >= 'A' && result[at] <= 'Z');
    }
    EXPECT_EQ(ConvertTehString(nullptr), "");
    EXPECT_EQ(ConvertTehString("1 2-3"), "1 2-3");
}

TEST(ConvertTehString, FollowsTheRuntimesGenerator)
{
    std::srand(7);
    const CString first = ConvertTehString("a playful respelling of a text");
    std::srand(7);
    EXPECT_EQ(ConvertTehString("a playful respelling of a text"), first);
    bool differs = false;
    for (unsigned seed = 0; seed < 20; ++seed)
    {
        std::srand(seed);
        differs = differs || ConvertTehString("a playful respelling of a text") != first;
    }
    EXPECT_TRUE(differs);
}

TEST(FreeObjects, ReleasesEveryElementOnce)
{
    CPtrArray objects;
    for (int i = 0; i < 1000; ++i)
        objects.Add(::operator new(16));
    objects.Add(nullptr);
    FreeObjects(&objects);
    EXPECT_EQ(objects.GetSize(), 0);
    FreeObjects(&objects);
    FreeObjects(nullptr);
}

TEST(MakeArguments, CopiesEachArgument)
{
    EXPECT_EQ(ArgumentsOf("a \"b c\" d"), (Texts{"a", "b c", "d"}));
    EXPECT_EQ(ArgumentsOf("\""), (Texts{""}));
    EXPECT_EQ(ArgumentsOf("b", "C:\\a b.exe"), (Texts{"C:\\a b.exe", "b"}));
    EXPECT_EQ(ArgumentsOf("", "p"), (Texts{"p"}));
}

TEST(MakeArguments, TheProgramsNameHasRoomForTheLongestPath)
{
    int argc = 0;
    char** argv = nullptr;
    vorn::MakeArguments("a", "p", argc, argv);
    ASSERT_EQ(argc, 2);
    EXPECT_EQ(std::count(argv[0] + 1, argv[0] + 261, '\0'), 260) << "zeros behind the name";
    CleanupCommandLine(argc, argv);
}

TEST(MakeArguments, OfNothingStillMakesAnArray)
{
    int argc = 5;
    char** argv = nullptr;
    vorn::MakeArguments("", nullptr, argc, argv);
    EXPECT_EQ(argc, 0);
    EXPECT_NE(argv, nullptr);
    CleanupCommandLine(argc, argv);
}

TEST(MakeArguments, GrowsByEight)
{
    for (int count = 1; count <= 40; ++count)
    {
        std::string line;
        Texts expected;
        for (int i = 0; i < count; ++i)
        {
            expected.push_back("argument" + std::to_string(i));
            line += expected.back() + " ";
        }
        EXPECT_EQ(ArgumentsOf(line.c_str()), expected) << count;
    }
}

TEST(CleanupCommandLine, IgnoresNulls)
{
    CleanupCommandLine(3, nullptr);
    CleanupCommandLine(
        2, new char* [2] {}); // null arguments
}
