#include "framework/dialog/SharedCommands.h"

#include "framework/window/CWinThread.h"
#include "framework/window/CWnd.h"

namespace vorn
{
namespace
{
constexpr UINT kFirstSharedCommand = 0x8000;
constexpr UINT kLastSharedCommand = 0xefff;

bool IsSharedCommand(UINT id, int code)
{
    return (code == CN_COMMAND || code == CN_UPDATE_COMMAND_UI) && id >= kFirstSharedCommand &&
           id <= kLastSharedCommand;
}
} // namespace

BOOL OfferSharedCommand(CWnd& window, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    if (!IsSharedCommand(id, code))
        return FALSE;
    CWnd* const owner = window.GetParent();
    if (owner && owner->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    CWinThread* const thread = AfxGetThread();
    return thread && thread->OnCmdMsg(id, code, extra, handlerInfo);
}
} // namespace vorn
