#pragma once

#include "tests/windows/pictures/DibText.h"

namespace vorn::test
{
/// A white picture of 32 bits that is drawn on through a memory context.
class DrawnOn
{
public:
    DrawnOn(int width, int height);
    ~DrawnOn();
    DrawnOn(const DrawnOn&) = delete;
    DrawnOn& operator=(const DrawnOn&) = delete;

    HDC Dc() const
    {
        return m_dc;
    }
    /// The bitmap, taken out of the context.
    HBITMAP Unselected();
    /// What is there, as Colors() tells.
    std::string Text() const;

private:
    DIB m_section;
    HDC m_dc;
    HGDIOBJ m_former;
};

/// A palette of black, red, green, blue and `count` - 4 greys (from 8 upwards in steps of 4).
class TestPalette
{
public:
    explicit TestPalette(int count = 8);
    ~TestPalette();
    TestPalette(const TestPalette&) = delete;
    TestPalette& operator=(const TestPalette&) = delete;

    operator HPALETTE() const
    {
        return m_palette;
    }

private:
    HPALETTE m_palette;
};
} // namespace vorn::test
