#pragma once

/// @file
/// The application's names; not public interface. They are kept as C strings that hosts may
/// replace: free() the old one, assign one from the C library's strdup().
#include "framework/core/CString.h"

#include <windows.h>

namespace vorn
{

/// A copy of a name in the C library's heap; null for null.
LPCTSTR CopyName(LPCTSTR name);
void FreeName(LPCTSTR name);
/// Frees the old name and takes a copy of the new one, which may be the old one.
void ReplaceName(LPCTSTR& name, LPCTSTR value);

/// A module's full path.
CString ModulePath(HMODULE module);
/// A path's file name without folder and extension.
CString BaseName(const CString& path);
/// Name of the running program: its file name without folder and extension.
LPCTSTR ProgramName();

} // namespace vorn
