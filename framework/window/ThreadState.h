#pragma once

/// @file
/// What the framework keeps for each thread; not public interface.
#include "framework/core/Export.h"
#include "framework/window/HandleMap.h"

#include <windows.h>

#include <array>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class CWinThread;
class CWnd;

namespace vorn
{

/// A running modal loop. The object of its window may end inside the loop; then window is null.
struct ModalFrame
{
    CWnd* window;
    ModalFrame* outer;
};

/// An object that waits for its window, and the window once it has come.
struct Creation
{
    CWnd* waiting;
    HWND window;
};

struct ThreadState
{
    ThreadState() = default;
    ThreadState(const ThreadState&) = delete;
    ThreadState& operator=(const ThreadState&) = delete;

    std::array<std::unique_ptr<HandleMapBase>, static_cast<std::size_t>(HandleKind::Count)> maps;
    /// Procedures of windows that were detached while the framework's procedure stands before theirs.
    std::unordered_map<HWND, WNDPROC> orphans;
    CWinThread* thread = nullptr;
    MSG currentMessage = {};
    int loopDepth = 0;
    bool startedUp =
        false; ///< the program or thread is under the framework's start-up: the end of its main window ends it
    ModalFrame* modal = nullptr;

    std::vector<Creation> creations; ///< windows on their way, innermost last
    HWND lastCreated = nullptr;      ///< what the last finished creation was bound to
    HHOOK creationHook = nullptr;

    HMENU trackedMenu = nullptr; ///< popup menu shown by TrackPopupMenu
    int waitCursors = 0;
    HCURSOR cursorBefore = nullptr;
    HWND toolTip = nullptr;      ///< tooltip window shared by the thread's windows
    HWND toolTipOwner = nullptr; ///< window whose tool it shows
    INT_PTR toolTipHit = -1;     ///< which tool
    std::string className;       ///< what AfxRegisterWndClass returned last
};

/// The calling thread's state, made on first use.
ThreadState& CurrentThreadState();

/// Frees the calling thread's state; called when the thread ends.
void ReleaseThreadState();

/// Gives the slot back; called when the library goes and the process stays.
void ReleaseThreadSlot();

/// Raises the loop depth for a scope, and frees what temporary objects the loop leaves.
class HOSTFRAMEWORK_API LoopScope
{
public:
    LoopScope();
    LoopScope(const LoopScope&) = delete;
    LoopScope& operator=(const LoopScope&) = delete;
    ~LoopScope();
};

} // namespace vorn
