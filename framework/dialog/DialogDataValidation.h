#pragma once

/// @file
/// Checks of exchanged values: called after the DDX_ function of the same variable. While saving, a value that breaks
/// the rule shows a message that names it, puts the focus on the control and throws CUserException. While loading
/// nothing is refused.
#include "framework/core/CString.h"
#include "framework/dialog/CDataExchange.h"

/// @name The value is at least `lowest` and at most `highest`
/// @{
HOSTFRAMEWORK_API void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE lowest, BYTE highest);
HOSTFRAMEWORK_API void DDV_MinMaxShort(CDataExchange* exchange, short value, short lowest, short highest);
HOSTFRAMEWORK_API void DDV_MinMaxInt(CDataExchange* exchange, int value, int lowest, int highest);
HOSTFRAMEWORK_API void DDV_MinMaxLong(CDataExchange* exchange, long value, long lowest, long highest);
HOSTFRAMEWORK_API void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT lowest, UINT highest);
HOSTFRAMEWORK_API void DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD lowest, DWORD highest);
HOSTFRAMEWORK_API void DDV_MinMaxLongLong(CDataExchange* exchange, LONGLONG value, LONGLONG lowest, LONGLONG highest);
HOSTFRAMEWORK_API void DDV_MinMaxULongLong(CDataExchange* exchange, ULONGLONG value, ULONGLONG lowest,
                                           ULONGLONG highest);
/// Not-a-number breaks the rule. The message shows at most `precision` significant digits.
HOSTFRAMEWORK_API void DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float lowest, float highest,
                                       int precision = 6);
HOSTFRAMEWORK_API void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double lowest, double highest,
                                        int precision = 15);
/// @}

/// Also gives the slider that range, while loading.
HOSTFRAMEWORK_API void DDV_MinMaxSlider(CDataExchange* exchange, DWORD value, DWORD lowest, DWORD highest);

/// The text has at most `count` characters. While loading, the edit box (or the combo box's) is told not to take more.
HOSTFRAMEWORK_API void DDV_MaxChars(CDataExchange* exchange, const CString& value, int count);
