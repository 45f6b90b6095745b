#pragma once

#include "frame/core/Export.h"
#include "framework/core/CString.h"
#include "framework/core/List.h"

/// @file
/// Texts in the family's record buffers. A serialised text is its length, a signed 32-bit number in the machine's byte
/// order, and that many characters (zeros among them are kept) without an end; a serialised list is its count in the
/// same form and that many texts.
///
/// `cursor` and `remaining` move past every field that was transferred, also when a later one fails. The buffer need
/// not be aligned.

/// Reads `text` from the record or writes it there. A length of zero or below reads as an empty text.
/// @return false when the buffer is too short: a text being read is then empty, and memory is never asked for by a
/// damaged length.
VORNCOMMON_API bool ReadWriteCString(char*& cursor, unsigned long& remaining, CString& text, bool read);

/// Writes the list from head to tail, or adds the texts of the record to its tail; it is not emptied first. A count
/// below 1 adds nothing.
/// @return false at the first text that fails; the texts read before it stay.
VORNCOMMON_API bool ReadWriteCStringList(char*& cursor, unsigned long& remaining, CStringList& list, bool read);
