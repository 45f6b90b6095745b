#include "framework/core/CString.h"

#include <cstring>
#include <gtest/gtest.h>
#include <vector>

// The pool of short blocks, and how texts are copied into its blocks.

TEST(CString, CopiesOfShortTextsAreIndependentWhetherBlocksLieReadyOrNot)
{
    for (int length = 1; length <= 101; ++length)
    {
        const CString text('t', length);
        std::vector<CString> copies(600, text); // more than the blocks that are kept
        for (CString& copy : copies)
        {
            ASSERT_EQ(copy, text);
            copy.SetAt(length - 1, 'T');
        }
        ASSERT_EQ(text, CString('t', length));
        ASSERT_EQ(copies.front(), CString('t', length - 1) + 'T');
        ASSERT_EQ(copies.back(), copies.front());
    }
}

TEST(CString, BlocksOfAllSizesComeAndGo)
{
    std::vector<CString> texts;
    for (int round = 0; round < 3; ++round)
    {
        for (int length = 0; length < 600; ++length)
        {
            texts.emplace_back('a', length);
        }
        for (int length = 0; length < 600; ++length)
        {
            ASSERT_EQ(texts[static_cast<std::size_t>(length)].GetLength(), length);
        }
        texts.clear();
    }
}

TEST(CString, TextsOfAnyPlaceAndLengthAreCopiedWhole)
{
    char buffer[400];
    for (int offset = 0; offset < 17; ++offset)
    {
        for (int length = 0; length < 300; ++length)
        {
            std::memset(buffer, '#', sizeof(buffer));
            for (int i = 0; i < length; ++i)
            {
                buffer[offset + i] = static_cast<char>(1 + (offset + i) % 255);
            }
            buffer[offset + length] = '\0';
            const CString text(buffer + offset);
            ASSERT_EQ(text.GetLength(), length);
            ASSERT_EQ(std::memcmp(text, buffer + offset, static_cast<std::size_t>(length) + 1), 0);
        }
    }
}
