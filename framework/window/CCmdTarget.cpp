#include "framework/window/CCmdTarget.h"

#include "framework/window/CCmdUI.h"
#include "framework/window/MessageLookup.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

// The root of all maps: no base, no entries.
const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static AfxMessageMapCache cache;
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries, &cache};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

namespace
{

/// Command codes carry the message they came with in their upper half: none for WM_COMMAND.
UINT MessageOfCode(int code)
{
    const UINT message = code == CN_UPDATE_COMMAND_UI ? 0 : HIWORD(code);
    return message ? message : WM_COMMAND;
}

/// An update comes plain, or reflected to a control with a low word of all ones.
bool IsUpdate(UINT message, int code)
{
    return code == CN_UPDATE_COMMAND_UI || (message == WM_REFLECT_BASE + WM_COMMAND && LOWORD(code) == 0xFFFF);
}

/// Handlers of updates count as handled unless they ask to go on.
BOOL CallUpdateHandler(const AFX_MSGMAP_ENTRY& entry, CCmdTarget* target, AfxMessageCall& call)
{
    auto* cmdUI = static_cast<CCmdUI*>(call.pExtra);
    cmdUI->m_bContinueRouting = FALSE;
    entry.pfn(target, call);
    const BOOL handled = !cmdUI->m_bContinueRouting;
    cmdUI->m_bContinueRouting = FALSE;
    return handled;
}

} // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const UINT message = MessageOfCode(nCode);
    const bool isUpdate = IsUpdate(message, nCode);
    const UINT code = isUpdate ? static_cast<UINT>(CN_UPDATE_COMMAND_UI) : LOWORD(nCode);
    const AFX_MSGMAP_ENTRY* entry = vorn::FindCommandEntry(GetMessageMap(), message, code, nID);
    if (!entry)
    {
        return FALSE;
    }
    if (pHandlerInfo)
    {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pmf = entry->pfn;
        return TRUE;
    }
    AfxMessageCall call;
    call.message = message;
    call.nID = nID;
    call.nCode = nCode;
    call.pExtra = pExtra;
    return isUpdate ? CallUpdateHandler(*entry, this, call) : entry->pfn(this, call);
}
