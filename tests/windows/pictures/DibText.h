#pragma once

#include "files/DIB.h"
#include "tests/support/PictureBytes.h"

#include <string>

namespace vorn::test
{
/// Rows of pixel values in hexadecimal, a digit each up to 8 bits (values above 15 are '?'), divided by bars.
std::string Values(const DIB& image);

/// Rows of colours as letters, divided by bars: '.' white, '#' black, 'R', 'G', 'B', 'Y' yellow, 'g' grey of 128, '?'.
std::string Colors(const DIB& image);

/// What GetRGB gives, as 0xRRGGBB.
unsigned ColorOf(const DIB& image, int x, int y);

/// An image of 24 bits whose colours are the letters of Colors(), bottom-up.
DIB FromLetters(const std::string& rows, int depth = 24, bool isTopDown = false);

/// A bitmap file of two pixels, a red and a black one, of 8 bits with the entries black and red.
BmpParts RedBmp();

/// No block, no size, nothing.
bool IsWithoutImage(const DIB& image);

/// Sets a colour of the table: 0xRRGGBB.
void SetEntry(DIB& image, int index, unsigned color);

/// GDI objects that this process has.
int CountGdiObjects();
} // namespace vorn::test
