#pragma once

/// @file
/// The few Windows base types that the portable interface needs. On Windows they are the
/// system's own; elsewhere they are spelled out with the same widths and layouts, so that
/// records read from files mean the same everywhere.
#ifdef _WIN32
#include <windows.h>
#else
#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using BOOL = int;
using COLORREF = DWORD;
using LPCSTR = const char*;
using LPSTR = char*;

struct POINT
{
    LONG x;
    LONG y;
};

struct SIZE
{
    LONG cx;
    LONG cy;
};

struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;
#endif
