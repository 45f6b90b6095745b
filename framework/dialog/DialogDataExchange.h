#pragma once

/// @file
/// Dialog data exchange: one call for each control and variable, in DoDataExchange.
///
/// Each function prepares its control and moves one value, from the control when `exchange->m_bSaveAndValidate`, into
/// it otherwise. A text that is no value of the wanted kind shows a message, puts the focus on the control and throws
/// CUserException.
#include "framework/core/CString.h"
#include "framework/dialog/CDataExchange.h"

class CWnd;

/// @name Edit boxes and other texts. Whole numbers are decimal, with blanks around them allowed; numbers with
/// fractions use a point and may have an exponent. Out-of-range numbers are refused like other wrong texts.
/// @{
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, BYTE& value);
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, short& value);
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, int& value);
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, UINT& value);
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, long& value);
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, DWORD& value);
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, LONGLONG& value);
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value);
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, CString& value);
/// A text buffer of `maxLength` characters, terminator included; longer texts are cut.
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, LPTSTR value, int maxLength);
/// Shown with at most 6 significant digits.
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, float& value);
/// Shown with at most 15 significant digits.
HOSTFRAMEWORK_API void DDX_Text(CDataExchange* exchange, int id, double& value);
/// @}

/// A check box: BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE. Other values are set to BST_UNCHECKED.
HOSTFRAMEWORK_API void DDX_Check(CDataExchange* exchange, int id, int& value);
/// A group of radio buttons, which begins with the control `id` (style WS_GROUP) and ends before the next WS_GROUP:
/// 0 for the first button, -1 for none.
HOSTFRAMEWORK_API void DDX_Radio(CDataExchange* exchange, int id, int& value);

/// @name Lists
/// @{
/// The selected item's text (empty for none). Selecting looks for the first item that begins with the text; an empty
/// text selects nothing.
HOSTFRAMEWORK_API void DDX_LBString(CDataExchange* exchange, int id, CString& value);
/// The same; selecting looks for the whole text, without regard to case.
HOSTFRAMEWORK_API void DDX_LBStringExact(CDataExchange* exchange, int id, CString& value);
/// The selected item's number, -1 for none.
HOSTFRAMEWORK_API void DDX_LBIndex(CDataExchange* exchange, int id, int& value);
/// The text in the field. Setting selects the first item that begins with the text; with none, the text is put into the
/// field's edit box.
HOSTFRAMEWORK_API void DDX_CBString(CDataExchange* exchange, int id, CString& value);
/// The same; setting looks for the whole text, without regard to case.
HOSTFRAMEWORK_API void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value);
/// The selected item's number, -1 for none.
HOSTFRAMEWORK_API void DDX_CBIndex(CDataExchange* exchange, int id, int& value);
/// @}

/// Position of a scroll bar control.
HOSTFRAMEWORK_API void DDX_Scroll(CDataExchange* exchange, int id, int& value);
/// Position of a slider.
HOSTFRAMEWORK_API void DDX_Slider(CDataExchange* exchange, int id, int& value);

/// Subclasses the control and attaches it to `control`, the first time; later calls do nothing. Throws
/// CNotSupportedException when it cannot.
HOSTFRAMEWORK_API void DDX_Control(CDataExchange* exchange, int id, CWnd& control);
