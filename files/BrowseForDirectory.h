#pragma once

#include "frame/core/Export.h"
#include "framework/core/CString.h"

class CWnd;

/// @file
/// The system's dialog in which the user chooses a folder. OLE is initialised for the dialog's time where the thread
/// has not done so.

/// Lets the user choose a folder.
/// @param buffer at least 260 characters. The folder in it, if any, is where the dialog opens; the folder chosen is
/// written there, in spite of the declaration, without a backslash added. After 2 it is as it was, after 3 empty unless
/// it was too small.
/// @param bufferSize its characters
/// @param title the line above the tree; "Select a Directory" when null or empty
/// @param newFolderButton whether the dialog can make folders
/// @param owner window that waits for the dialog, or null
/// @return 1 chosen, 2 cancelled, 3 when the buffer is null or too small, the shell fails or what was chosen is no
/// folder
VORNCOMMON_API int BrowseForDirectory(const char* buffer, int bufferSize, const char* title, bool newFolderButton,
                                      CWnd* owner);

/// Lets the user choose a folder, with the button for new ones. Opens at @p path unless that is longer than 259
/// characters. The folder chosen comes with a backslash at its end.
/// @return false, with @p path unchanged, when nothing was chosen
VORNCOMMON_API bool BrowseForDirectory(CString& path, char* title, CWnd* owner);

/// Lets the user choose a folder, with the button for new ones, above the thread's active window. Opens at @p path (its
/// first 259 characters), or at the current folder when that is empty. The folder chosen comes without a backslash
/// added.
/// @return 1 chosen, 2 cancelled, 3 failed; @p path is unchanged unless 1
VORNCOMMON_API int BrowseForPath(CString& path, const char* title);
