#pragma once

#include "frame/core/Export.h"
#include "framework/core/Array.h"
#include "framework/core/CString.h"

/// @file
/// Splitting, tidying and comparing texts. White space means the six characters of ASCII. Null texts are empty ones.

/// Cuts `text` at every character that occurs in `separators` (a plain set) and appends the pieces to `parts`: n
/// separators make n + 1 pieces. With `trim` pieces lose the white space at their ends, then with `skipEmpty` empty
/// ones are dropped. Without separators the whole text is one piece, as it is; an empty text is none.
/// @return the number of pieces appended.
VORNCOMMON_API int SplitString(const char* text, const char* separators, CStringArray& parts, bool trim,
                               bool skipEmpty);

/// Removes white space at both ends.
VORNCOMMON_API void TrimBoth(CString& text);

/// Compares a whole text with a pattern: "?" stands for one character, "*" for any number, unless `exact`. White space
/// at the ends of both does not count. An empty pattern matches nothing, "*" everything. What follows a star is taken
/// where it first occurs, without going back: "*.txt" does not match "a.txt.txt". A text that is used up at a star
/// matches.
VORNCOMMON_API bool MatchStrings(CString pattern, CString text, bool caseSensitive, bool exact);

/// Trims both ends, then keeps only what stands before the first blank.
VORNCOMMON_API void RemoveAfterFirstSpace(CString& text);

/// The text with its words capitalised, as the family's FixCase(char*) does it.
VORNCOMMON_API CString FixCase(const char* text);

/// The same in place. Other strings that share the characters keep theirs.
VORNCOMMON_API CString& FixCase(CString& text);

/// A playful respelling in lower case. The C library's rand() chooses which letters are replaced.
VORNCOMMON_API CString ConvertTehString(const char* text);

/// Releases the memory of every element, without destructors, and empties the array. The elements were made by
/// `operator new`.
VORNCOMMON_API void FreeObjects(CPtrArray* objects);

/// Splits a command line at blanks and tabs into newly made arguments. An argument in double quotes may hold them;
/// there is no way to write a quote inside. With `includeProgram` the first argument is the running program's file
/// name, in an array of 261 characters. Release with CleanupCommandLine(); `argv` has no null at its end.
VORNCOMMON_API void ProcessCommandLine(const char* commandLine, int& argc, char**& argv, bool includeProgram);

/// Releases every argument and the array; null is ignored.
VORNCOMMON_API void CleanupCommandLine(int argc, char** argv);
