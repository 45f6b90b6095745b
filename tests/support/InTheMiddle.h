#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace vorn::test
{

/// A window without a place of its own is expected in the middle of what the screen has room for.
inline void ExpectInTheMiddle(HWND window)
{
    RECT place{};
    RECT area{};
    ::GetWindowRect(window, &place);
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
    EXPECT_LE(std::abs(place.left + place.right - area.left - area.right), 2);
    EXPECT_LE(std::abs(place.top + place.bottom - area.top - area.bottom), 2);
}

} // namespace vorn::test
