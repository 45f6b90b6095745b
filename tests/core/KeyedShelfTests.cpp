#include "toolkit/core/KeyedShelf.h"
#include "toolkit/core/WordHash.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <memory>
#include <random>
#include <set>
#include <vector>

namespace
{

struct Number
{
    int value;
};

using Shelf = vorn::KeyedShelf<Number>;

auto Is(int value)
{
    return [value](const Number& number)
    {
        return number.value == value;
    };
}

Number& Put(Shelf& shelf, Shelf::Hash hash, int value)
{
    return shelf.Add(hash, std::make_unique<Number>(value));
}

} // namespace

TEST(KeyedShelf, FindsWhatWasAddedAndNothingElse)
{
    Shelf shelf;
    EXPECT_EQ(shelf.Size(), 0U);
    EXPECT_EQ(shelf.Find(5, Is(1)), nullptr);
    const Number* const added = &Put(shelf, 5, 1);
    EXPECT_EQ(shelf.Size(), 1U);
    EXPECT_EQ(shelf.Find(5, Is(1)), added);
    EXPECT_EQ(shelf.Find(5, Is(2)), nullptr);
    EXPECT_EQ(shelf.Find(6, Is(1)), nullptr);
}

TEST(KeyedShelf, EntriesOfOneHashAreToldApart)
{
    Shelf shelf;
    for (int i = 0; i < 1000; ++i)
    {
        Put(shelf, 0xFFFFFFFF, i); // the last place, from which the search goes on at the first
    }
    for (int i = 0; i < 1000; ++i)
    {
        ASSERT_NE(shelf.Find(0xFFFFFFFF, Is(i)), nullptr) << i;
        EXPECT_EQ(shelf.Find(0xFFFFFFFF, Is(i))->value, i);
    }
    EXPECT_EQ(shelf.Find(0xFFFFFFFF, Is(1000)), nullptr);
}

TEST(KeyedShelf, EntriesStayWhereTheyAreAsItGrows)
{
    Shelf shelf;
    std::vector<const Number*> added;
    for (unsigned i = 0; i < 10'000; ++i)
    {
        added.push_back(&Put(shelf, i * 17, static_cast<int>(i)));
    }
    for (unsigned i = 0; i < 10'000; ++i)
    {
        EXPECT_EQ(shelf.Find(i * 17, Is(static_cast<int>(i))), added[i]);
    }
}

TEST(KeyedShelf, TheOldestGoesFirst)
{
    Shelf shelf;
    for (int i = 0; i < 5; ++i)
    {
        Put(shelf, static_cast<unsigned>(i), i);
    }
    shelf.RemoveOldest();
    EXPECT_EQ(shelf.Size(), 4U);
    EXPECT_EQ(shelf.Find(0, Is(0)), nullptr);
    EXPECT_NE(shelf.Find(1, Is(1)), nullptr);
    shelf.RemoveOldest();
    EXPECT_EQ(shelf.Find(1, Is(1)), nullptr);
}

TEST(KeyedShelf, TheNewestIsKnownAndGoesWhenTold)
{
    Shelf shelf;
    EXPECT_EQ(shelf.Newest(), nullptr);
    for (int i = 0; i < 3; ++i)
    {
        const Number* const added = &Put(shelf, static_cast<unsigned>(i), i);
        EXPECT_EQ(shelf.Newest(), added);
    }
    shelf.RemoveNewest();
    EXPECT_EQ(shelf.Size(), 2U);
    EXPECT_EQ(shelf.Newest()->value, 1);
    EXPECT_EQ(shelf.Find(2, Is(2)), nullptr);
    EXPECT_NE(shelf.Find(0, Is(0)), nullptr);
}

TEST(KeyedShelf, ClearingEmptiesItForUseAgain)
{
    Shelf shelf;
    for (unsigned i = 0; i < 500; ++i)
    {
        Put(shelf, i, 1);
    }
    shelf.Clear();
    EXPECT_EQ(shelf.Size(), 0U);
    EXPECT_EQ(shelf.Find(3, Is(1)), nullptr);
    Put(shelf, 3, 1);
    EXPECT_NE(shelf.Find(3, Is(1)), nullptr);
}

TEST(KeyedShelf, BehavesAsAPlainListDoes)
{
    std::mt19937 random(20240229);
    Shelf shelf;
    std::deque<int> list;
    for (int step = 0; step < 6'000; ++step)
    {
        const int value = static_cast<int>(random() % 400);
        const auto hash = static_cast<Shelf::Hash>(value % 50); // many of each
        const bool isListed = std::find(list.begin(), list.end(), value) != list.end();
        ASSERT_EQ(shelf.Find(hash, Is(value)) != nullptr, isListed) << step;
        if (!isListed)
        {
            Put(shelf, hash, value);
            list.push_back(value);
        }
        if (list.size() > 300 || random() % 5 == 0)
        {
            shelf.RemoveOldest();
            list.pop_front();
        }
        if (!list.empty() && random() % 50 == 0)
        {
            EXPECT_EQ(shelf.Newest()->value, list.back());
            shelf.RemoveNewest();
            list.pop_back();
        }
        ASSERT_EQ(shelf.Size(), list.size());
        if (list.empty())
        {
            Put(shelf, 0, 0);
            list.push_back(0);
        }
    }
}

TEST(WordHash, EveryBitOfEveryWordCounts)
{
    const std::uint32_t none = vorn::WordHash({0, 0, 0});
    std::set<std::uint32_t> hashes;
    for (int bit = 0; bit < 32; ++bit)
    {
        const std::uint32_t word = std::uint32_t{1} << bit;
        hashes.insert(vorn::WordHash({word, 0, 0}));
        hashes.insert(vorn::WordHash({0, word, 0}));
        hashes.insert(vorn::WordHash({0, 0, word}));
    }
    EXPECT_EQ(hashes.size(), 96U);
    EXPECT_FALSE(hashes.contains(none));
}

TEST(WordHash, SpreadsColoursOverThePlacesOfATable)
{
    // All greys, all widths of a pen: neighbours that a table's low bits must part.
    std::vector<int> places(1024);
    for (std::uint32_t grey = 0; grey < 256; ++grey)
    {
        for (std::uint32_t width = 0; width < 4; ++width)
        {
            ++places[vorn::WordHash({0, width, grey * 0x010101}) & 1023];
        }
    }
    EXPECT_LE(*std::max_element(places.begin(), places.end()), 8); // chance alone gives 5 or 6
}
