#pragma once

#include "framework/frames/CFrameWnd.h"
#include "framework/include/afxres.h"
#include "framework/window/CCmdUI.h"

namespace vorn
{

/// Asks for the state of each item of a bar but its separators: first the bar itself, then the frame's route.
/// @tparam Bar has GetItemID() @param state how the bar shows it
template <class Bar>
void UpdateItems(Bar& bar, CCmdUI& state, int count, CFrameWnd* target, BOOL disableIfNoHandler)
{
    state.m_pOther = &bar;
    state.m_nIndexMax = static_cast<UINT>(count);
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        state.m_nID = bar.GetItemID(static_cast<int>(state.m_nIndex));
        if (state.m_nID == ID_SEPARATOR)
            continue;
        state.m_bContinueRouting = FALSE;
        if (!bar.CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr))
            state.DoUpdate(target, disableIfNoHandler);
    }
}

} // namespace vorn
