#pragma once

#include <span>

/// @file
/// Tokens that the family's symbol font can draw.
namespace vorn
{
/// Buckets of the map that the table is entered into.
inline constexpr unsigned kGlyphBuckets = 101;

/// Longest token of the table, in characters.
inline constexpr int kLongestGlyphToken = 5;

/// One token in upper case and the one-character text that draws it.
struct Glyph
{
    const char* token;
    const char* text;
};

/// The whole table; every token stands once.
std::span<const Glyph> GlyphTable();
} // namespace vorn
