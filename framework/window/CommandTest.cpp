#include "framework/window/CommandTest.h"

#include "framework/window/CCmdUI.h"

namespace vorn
{

namespace
{

/// Listens to what update handlers say, without an item to change.
class ListeningCmdUI : public CCmdUI
{
public:
    void Enable(BOOL bOn = TRUE) override
    {
        m_bEnableChanged = TRUE;
        m_enabled = bOn != FALSE;
    }
    void SetCheck(int) override
    {
    }
    void SetRadio(BOOL) override
    {
    }
    void SetText(LPCTSTR) override
    {
    }

    bool m_enabled = true;
};

} // namespace

bool IsCommandEnabled(CCmdTarget& target, UINT id)
{
    ListeningCmdUI state;
    state.m_nID = id;
    target.OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &state, nullptr);
    return state.m_enabled;
}

} // namespace vorn
