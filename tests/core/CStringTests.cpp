#include "framework/core/CString.h"

#include "framework/core/OleException.h"

#include <cstring>
#include <gtest/gtest.h>

TEST(CString, IsOnePointerToItsCharacters)
{
    const CString text("Runway");
    const char* pointer = nullptr;
    static_assert(sizeof(text) == sizeof(pointer));
    std::memcpy(&pointer, &text, sizeof(pointer));
    EXPECT_STREQ(pointer, "Runway");
}
