#include "framework/bars/CStatusBar.h"
#include "framework/bars/BarUpdate.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/include/afxres.h"
#include "framework/window/CCmdUI.h"
#include "framework/window/ModuleState.h"
#include <algorithm>

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
ON_WM_PAINT()
ON_WM_SIZE()
ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
ON_MESSAGE(WM_GETTEXT, &CStatusBar::OnGetText)
ON_MESSAGE(WM_GETTEXTLENGTH, &CStatusBar::OnGetTextLength)
ON_MESSAGE(WM_SETFONT, &CStatusBar::OnSetFont)
END_MESSAGE_MAP()

namespace
{

/// One pane's answer to a command-UI update.
class StatusCmdUI : public CCmdUI
{
public:
    void Enable(BOOL on) override
    {
        m_bEnableChanged = TRUE;
        ChangeStyle(SBPS_DISABLED, !on);
    }

    /// A checked pane is raised.
    void SetCheck(int check) override
    {
        ChangeStyle(SBPS_POPOUT, check != 0);
    }

    void SetText(LPCTSTR text) override
    {
        Bar().SetPaneText(static_cast<int>(m_nIndex), text);
    }

private:
    CStatusBar& Bar()
    {
        return *static_cast<CStatusBar*>(m_pOther);
    }

    void ChangeStyle(UINT bit, bool on)
    {
        const int index = static_cast<int>(m_nIndex);
        const UINT style = Bar().GetPaneStyle(index) & ~bit;
        Bar().SetPaneStyle(index, on ? style | bit : style);
    }
};

} // namespace

CStatusBar::CStatusBar() = default;

CStatusBar::~CStatusBar()
{
    m_bAutoDelete = FALSE; // the end of the window must not end the object once more
    CControlBar::DestroyWindow();
}

BOOL CStatusBar::Create(CWnd* parent, DWORD style, UINT id)
{
    return CreateEx(parent, 0, style, id);
}

BOOL CStatusBar::CreateEx(CWnd* parent, DWORD controlStyle, DWORD style, UINT id)
{
    const INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    SetBarStyle(style & CBRS_ALL);
    // The frame, not the control, decides about place and size.
    controlStyle |= (style & ~CBRS_ALL) | CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    if (parent && parent->GetStyle() & WS_THICKFRAME)
        controlStyle |= SBARS_SIZEGRIP;
    return CWnd::Create(STATUSCLASSNAME, nullptr, controlStyle, CRect(0, 0, 0, 0), parent, id);
}

BOOL CStatusBar::SetIndicators(const UINT* ids, int count)
{
    if (count < 1)
        return FALSE;
    m_panes.assign(static_cast<std::size_t>(count), Pane{});
    m_nCount = count;
    for (int i = 0; ids && i < count; ++i)
        LoadIndicator(m_panes[static_cast<std::size_t>(i)], ids[i]);
    if (ids && ids[0] == ID_SEPARATOR)
    {
        m_panes[0].style = SBPS_STRETCH | SBPS_NOBORDERS;
        m_panes[0].width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
    }
    UpdateEdges();
    for (int i = 0; i < count; ++i)
        ShowPaneText(i);
    return TRUE;
}

void CStatusBar::LoadIndicator(Pane& pane, UINT id)
{
    pane.id = id;
    if (id == ID_SEPARATOR)
        return;
    AfxLoadString(id, pane.text);
    pane.width = TextWidth(pane.text);
}

bool CStatusBar::IsPane(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < m_panes.size();
}

int CStatusBar::CommandToIndex(UINT id) const
{
    const auto found = std::find_if(m_panes.begin(), m_panes.end(),
                                    [id](const Pane& pane)
                                    {
                                        return pane.id == id;
                                    });
    return found == m_panes.end() ? -1 : static_cast<int>(found - m_panes.begin());
}

UINT CStatusBar::GetItemID(int index) const
{
    return IsPane(index) ? m_panes[static_cast<std::size_t>(index)].id : 0;
}

void CStatusBar::GetItemRect(int index, LPRECT rect) const
{
    *rect = RECT{};
    if (IsPane(index))
        ::SendMessage(m_hWnd, SB_GETRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect));
}

CString CStatusBar::GetPaneText(int index) const
{
    return IsPane(index) ? m_panes[static_cast<std::size_t>(index)].text : CString();
}

void CStatusBar::GetPaneText(int index, CString& text) const
{
    text = GetPaneText(index);
}

BOOL CStatusBar::SetPaneText(int index, LPCTSTR text, BOOL update)
{
    if (!IsPane(index))
        return FALSE;
    CString& present = m_panes[static_cast<std::size_t>(index)].text;
    const CString wanted(text ? text : "");
    if (present == wanted)
        return TRUE;
    present = wanted;
    if (update)
        ShowPaneText(index);
    return TRUE;
}

void CStatusBar::GetPaneInfo(int index, UINT& id, UINT& style, int& width) const
{
    const Pane pane = IsPane(index) ? m_panes[static_cast<std::size_t>(index)] : Pane{};
    id = pane.id;
    style = pane.style;
    width = pane.width;
}

void CStatusBar::SetPaneInfo(int index, UINT id, UINT style, int width)
{
    if (!IsPane(index))
        return;
    Pane& pane = m_panes[static_cast<std::size_t>(index)];
    const bool edgesMove = pane.width != width || ((pane.style ^ style) & SBPS_STRETCH);
    pane.id = id;
    pane.width = width;
    SetPaneStyle(index, style);
    if (edgesMove)
        UpdateEdges();
}

UINT CStatusBar::GetPaneStyle(int index) const
{
    return IsPane(index) ? m_panes[static_cast<std::size_t>(index)].style : 0;
}

void CStatusBar::SetPaneStyle(int index, UINT style)
{
    if (!IsPane(index) || GetPaneStyle(index) == style)
        return;
    m_panes[static_cast<std::size_t>(index)].style = style;
    ShowPaneText(index);
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd* target, BOOL)
{
    StatusCmdUI state;
    // Panes nobody answers for stay as they are.
    vorn::UpdateItems(*this, state, m_nCount, target, FALSE);
    UpdateDialogControls(target, FALSE);
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
