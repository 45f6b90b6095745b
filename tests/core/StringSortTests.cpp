#include "frame/core/StringSort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <numeric>
#include <string>

using namespace vorn;
using Texts = std::vector<std::string>;

namespace
{

Texts Sorted(const Texts& texts, bool caseSensitive)
{
    const std::vector<std::string_view> views(texts.begin(), texts.end());
    Texts sorted;
    for (const std::uint32_t index : SortedOrder(views, caseSensitive))
        sorted.push_back(texts[index]);
    return sorted;
}

} // namespace

TEST(SortedOrder, ComparesBytesAsUnsignedNumbers)
{
    EXPECT_EQ(Sorted({"b", "a", "\xE9", "B", "_", "Z"}, true), (Texts{"B", "Z", "_", "a", "b", "\xE9"}));
}

TEST(SortedOrder, WithoutCaseFoldsToLower)
{
    EXPECT_EQ(Sorted({"b", "_x", "A", "Zeta", "ALPHA2", "alpha1"}, false),
              (Texts{"_x", "A", "alpha1", "ALPHA2", "b", "Zeta"}));
    EXPECT_EQ(Sorted({"aaaaaaaaaB", "aaaaaaaaa_", "AAAAAAAAAa"}, false),
              (Texts{"aaaaaaaaa_", "AAAAAAAAAa", "aaaaaaaaaB"}));
}

TEST(SortedOrder, PutsATextBeforeItsContinuations)
{
    EXPECT_EQ(Sorted({"abc", "", "ab", "abcdefghi", "abcdefgh", "a"}, true),
              (Texts{"", "a", "ab", "abc", "abcdefgh", "abcdefghi"}));
    const std::string zero("a\0", 2);
    EXPECT_EQ(Sorted({zero, "a"}, true), (Texts{"a", zero}));
}

TEST(SortedOrder, HandlesNoneOneAndEqualTexts)
{
    EXPECT_EQ(Sorted({}, true), Texts{});
    EXPECT_EQ(Sorted({"x"}, false), Texts{"x"});
    const std::vector<std::string_view> equal = {"Ab", "aB", "ab", "AB"};
    EXPECT_EQ(SortedOrder(equal, false), (std::vector<std::uint32_t>{0, 1, 2, 3}));
}

TEST(SortedOrder, AgreesWithTheLibrarysSortOnRandomTexts)
{
    unsigned seed = 7;
    const auto next = [&seed]
    {
        return (seed = seed * 1103515245U + 12345U) >> 16;
    };
    Texts texts(3000);
    for (std::string& text : texts)
    {
        text.resize(next() % 14);
        for (char& c : text)
            c = static_cast<char>("aAbB_\xE9"[next() % 6]);
    }
    Texts expected = texts;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(Sorted(texts, true), expected);

    const auto lower = [](std::string& text)
    {
        std::replace(text.begin(), text.end(), 'A', 'a');
        std::replace(text.begin(), text.end(), 'B', 'b');
    };
    Texts folded = Sorted(texts, false);
    std::for_each(folded.begin(), folded.end(), lower);
    std::for_each(expected.begin(), expected.end(), lower);
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(folded, expected);
}

TEST(SortedOrder, IsNotQuadraticOnSortedEqualOrReversedTexts)
{
    constexpr std::size_t count = 100'000;
    Texts texts(count);
    for (std::size_t i = 0; i < count; ++i)
        texts[i] = std::to_string(1'000'000 + i);
    const Texts ascending = texts;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Sorted(ascending, true), ascending);
    std::reverse(texts.begin(), texts.end());
    EXPECT_EQ(Sorted(texts, false), ascending);
    const Texts equal(count, "same text everywhere");
    EXPECT_EQ(Sorted(equal, true), equal);
    // A quadratic sort needs 10^10 comparisons, minutes even without a sanitizer.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}
