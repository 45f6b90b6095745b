#pragma once

#include "frame/core/Export.h"
#include "framework/core/CString.h"

/// @file
/// Numbers and bytes in bases from 2 to 64, with the digits "0-9a-zA-Z-!" (their values being 0 to 63; case matters).

/// The value of a number's digits, modulo 2^64. A digit may exceed its base, and a character that is no digit counts as
/// 255. A null text or a base outside 2 to 64 gives 0.
VORNCOMMON_API unsigned long long FromBaseN(const char* digits, int base);

/// The digits of a number, the most significant first; empty for a base outside 2 to 64.
VORNCOMMON_API CString ToBaseN(unsigned long long value, int base);

/// Bytes as digits of a base that is a power of two, the lowest bits of the first byte first: 0x01 in base 16 is "10".
/// Left-over bits make a last digit. Empty for any other base, null, a count below 1, and more than 2^31 - 1
/// digits.
VORNCOMMON_API CString ToBaseN(unsigned char* bytes, int count, int base);

/// Takes base-64 digits apart again, least significant bits first, into at most `size` bytes; ends at the first
/// character that is no digit. Bits that make no whole byte are dropped.
/// @return the number of bytes; 0 for null texts or buffers and sizes below 1.
VORNCOMMON_API int FromBaseN(const char* digits, unsigned char* bytes, int size);
