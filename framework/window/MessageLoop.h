#pragma once

/// @file
/// Pieces of message loops, for threads with and without a CWinThread object; not public interface.
#include <windows.h>

namespace vorn
{

/// Takes one message and handles it, through the thread's object if it has one. False on WM_QUIT.
bool PumpMessage();

/// The message that PumpMessage took last on this thread.
const MSG& LastPumpedMessage();

/// Whether idle work is due again after this message.
bool IsIdleMessage(const MSG& message);

/// Whether the queue holds a message.
bool HasMessage();

} // namespace vorn
