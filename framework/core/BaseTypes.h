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
using SHORT = std::int16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using UINT = unsigned int;
using BOOL = int;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using COLORREF = DWORD;
using HRESULT = LONG;
using SCODE = LONG;
using HANDLE = void*;
using LPVOID = void*;
using LPCVOID = const void*;
using CHAR = char;
using TCHAR = char;
using LPCSTR = const char*;
using LPSTR = char*;
using LPCTSTR = const char*;
using LPTSTR = char*;

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

using LPPOINT = POINT*;
using LPSIZE = SIZE*;
using LPRECT = RECT*;
using LPCRECT = const RECT*;

/// 100-nanosecond steps since 1601-01-01 00:00 UTC, in two halves.
struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};

/// A broken-down moment; month 1 to 12, weekday 0 is Sunday.
struct SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};

/// One entry of a bitmap's colour table.
struct RGBQUAD
{
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};

/// The head of a device-independent bitmap; a negative height means that the first row is the top one.
struct BITMAPINFOHEADER
{
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};

inline constexpr DWORD BI_RGB = 0;
inline constexpr DWORD BI_RLE8 = 1;
inline constexpr DWORD BI_BITFIELDS = 3;
inline constexpr int DIB_RGB_COLORS = 0;
inline constexpr int DIB_PAL_COLORS = 1;

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);
#endif
