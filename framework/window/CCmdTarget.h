#pragma once

/// @file
/// Base of every object that takes part in message maps and command routing.
#include "framework/core/Export.h"
#include "framework/core/Object.h"
#include "framework/window/MessageMap.h"

/// Filled in by CCmdTarget::OnCmdMsg when a caller asks who would handle a command.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget; ///< object that would be called
    AFX_PMSG pmf;        ///< its handler's entry point
};

/// Object with a message map. Commands (menu items, control notifications, command-UI
/// updates) are routed to targets through OnCmdMsg, which derived classes override to pass
/// on to further targets what they do not handle.
class HOSTFRAMEWORK_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    /// Looks the command up in the message map and calls its handler.
    /// @param nID command or control id
    /// @param nCode CN_COMMAND, CN_UPDATE_COMMAND_UI, a control notification code, or
    ///        MAKELONG(code, WM_NOTIFY) for a WM_NOTIFY notification
    /// @param pExtra CCmdUI* for updates, AFX_NOTIFY* for WM_NOTIFY, else null
    /// @param pHandlerInfo when not null, the handler is reported there and not called
    /// @return TRUE when a handler was found (and, for handlers that answer, answered TRUE)
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// Shows the hourglass; calls nest, each needs its EndWaitCursor.
    void BeginWaitCursor();
    /// Ends the innermost BeginWaitCursor; the last one restores the previous cursor.
    void EndWaitCursor();
    /// Shows the hourglass again after something (a message box) changed the cursor.
    void RestoreWaitCursor();

    DECLARE_MESSAGE_MAP()
};

/// Hourglass for the length of a scope.
class HOSTFRAMEWORK_API CWaitCursor
{
public:
    CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    ~CWaitCursor();
    void Restore();
};
