#include "framework/bars/BarUpdate.h"
#include "framework/bars/CToolBar.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CDC.h"
#include "framework/include/afxres.h"
#include "framework/window/CCmdUI.h"
#include <algorithm>
#include <vector>

namespace
{
/// State byte of the system for TBBS_ bits and back: only the enabled bit is the other way round.
BYTE StateOf(UINT style)
{
    return static_cast<BYTE>((style >> 16) ^ TBSTATE_ENABLED);
}

UINT StyleOf(const TBBUTTON& button)
{
    return static_cast<UINT>(button.fsStyle) | static_cast<UINT>(button.fsState ^ TBSTATE_ENABLED) << 16;
}

/// One button's answer to a command-UI update.
class ToolCmdUI : public CCmdUI
{
public:
    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        ChangeStyle(TBBS_DISABLED | (on ? 0U : TBBS_PRESSED), on ? 0U : TBBS_DISABLED);
    }

    void SetCheck(int check) override
    {
        const UINT state = check == 1 ? TBBS_CHECKED : check == 2 ? TBBS_INDETERMINATE : 0U;
        ChangeStyle(TBBS_CHECKED | TBBS_INDETERMINATE, state | TBBS_CHECKBOX);
    }

    /// Pictures stay; a button's text is its own affair.
    void SetText(LPCTSTR) override
    {
    }

private:
    void ChangeStyle(UINT off, UINT on)
    {
        auto& bar = *static_cast<CToolBar*>(m_pOther);
        const int index = static_cast<int>(m_nIndex);
        const UINT style = bar.GetButtonStyle(index);
        if (!(style & TBBS_SEPARATOR))
            bar.SetButtonStyle(index, (style & ~off) | on);
    }
};
} // namespace

bool CToolBar::GetButton(int index, TBBUTTON& button) const
{
    button = TBBUTTON{};
    return index >= 0 && index < m_nCount &&
           ::SendMessage(m_hWnd, TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button));
}

void CToolBar::ReplaceButton(int index, const TBBUTTON& button)
{
    const auto position = static_cast<WPARAM>(index);
    SendMessage(TB_DELETEBUTTON, position);
    SendMessage(TB_INSERTBUTTON, position, reinterpret_cast<LPARAM>(&button));
}

int CToolBar::CommandToIndex(UINT id) const
{
    for (int i = 0; i < m_nCount; ++i)
        if (GetItemID(i) == id)
            return i;
    return -1;
}

UINT CToolBar::GetItemID(int index) const
{
    TBBUTTON button;
    return GetButton(index, button) ? static_cast<UINT>(button.idCommand) : 0;
}

void CToolBar::GetItemRect(int index, LPRECT rect) const
{
    *rect = RECT{};
    ::SendMessage(m_hWnd, TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect));
}

UINT CToolBar::GetButtonStyle(int index) const
{
    TBBUTTON button;
    return GetButton(index, button) ? StyleOf(button) : 0;
}

void CToolBar::SetButtonStyle(int index, UINT style)
{
    TBBUTTON button;
    if (!GetButton(index, button) || StyleOf(button) == style)
        return;
    if (button.fsStyle == static_cast<BYTE>(style))
    {
        SendMessage(TB_SETSTATE, static_cast<WPARAM>(button.idCommand), StateOf(style));
        return;
    }
    button.fsStyle = static_cast<BYTE>(style);
    button.fsState = StateOf(style);
    ReplaceButton(index, button);
}

void CToolBar::GetButtonInfo(int index, UINT& id, UINT& style, int& image) const
{
    TBBUTTON button;
    GetButton(index, button);
    id = static_cast<UINT>(button.idCommand);
    style = StyleOf(button);
    image = button.iBitmap;
}

void CToolBar::SetButtonInfo(int index, UINT id, UINT style, int image)
{
    TBBUTTON button;
    if (!GetButton(index, button))
        return;
    button.idCommand = static_cast<int>(id);
    button.iBitmap = image;
    button.fsStyle = static_cast<BYTE>(style);
    button.fsState = StateOf(style);
    ReplaceButton(index, button);
}

BOOL CToolBar::SetButtonText(int index, LPCTSTR text)
{
    TBBUTTON button;
    if (!GetButton(index, button) || !text)
        return FALSE;
    // The control takes a list of texts, each ended by a zero, the list by one more.
    std::vector<char> list(text, text + ::lstrlen(text) + 1);
    list.push_back('\0');
    const LRESULT number = SendMessage(TB_ADDSTRING, 0, reinterpret_cast<LPARAM>(list.data()));
    if (number < 0)
        return FALSE;
    button.iString = number;
    ReplaceButton(index, button);
    return TRUE;
}

CString CToolBar::GetButtonText(int index) const
{
    TBBUTTON button;
    if (!GetButton(index, button))
        return CString();
    const auto command = static_cast<WPARAM>(button.idCommand);
    const LRESULT length = ::SendMessage(m_hWnd, TB_GETBUTTONTEXT, command, 0);
    if (length <= 0)
        return CString();
    std::vector<char> text(static_cast<std::size_t>(length) + 1);
    ::SendMessage(m_hWnd, TB_GETBUTTONTEXT, command, reinterpret_cast<LPARAM>(text.data()));
    return CString(text.data());
}

void CToolBar::GetButtonText(int index, CString& text) const
{
    text = GetButtonText(index);
}

void CToolBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler)
{
    ToolCmdUI state;
    vorn::UpdateItems(*this, state, m_nCount, target, disableIfNoHandler);
    UpdateDialogControls(target, disableIfNoHandler);
}

void CToolBar::OnPaint()
{
    Default();
}

BOOL CToolBar::OnEraseBkgnd(CDC* dc)
{
    // Some versions of the control leave this to the frame, which leaves it to its view.
    CRect all;
    GetClientRect(&all);
    dc->FillSolidRect(&all, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}
