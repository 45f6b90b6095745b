#include "framework/controls/CCheckListBox.h"

#include "framework/controls/ControlMessage.h"

#include <algorithm>

// The items of a check list and what is done to them by mouse and keys.

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_KEYDOWN()
ON_WM_ENABLE()
ON_MESSAGE(WM_SETFONT, &CCheckListBox::OnSetFont)
END_MESSAGE_MAP()

CCheckListBox::CCheckListBox() = default;

CCheckListBox::~CCheckListBox() = default;

BOOL CCheckListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    const DWORD drawing = style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE);
    return CListBox::Create(style | LBS_HASSTRINGS | (drawing != 0 ? 0UL : LBS_OWNERDRAWFIXED), rect, parent, id);
}

void CCheckListBox::SetCheckStyle(UINT style)
{
    m_checkStyle = style;
}

UINT CCheckListBox::GetCheckStyle() const
{
    return m_checkStyle;
}

bool CCheckListBox::HasItem(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < m_states.size();
}

void CCheckListBox::SetCheck(int index, int check)
{
    if (!HasItem(index) || m_states[static_cast<std::size_t>(index)].check == check)
        return;
    m_states[static_cast<std::size_t>(index)].check = check;
    InvalidateItem(index);
}

int CCheckListBox::GetCheck(int index) const
{
    return HasItem(index) ? m_states[static_cast<std::size_t>(index)].check : BST_UNCHECKED;
}

void CCheckListBox::Enable(int index, BOOL enabled)
{
    if (!HasItem(index) || m_states[static_cast<std::size_t>(index)].enabled == (enabled != FALSE))
        return;
    m_states[static_cast<std::size_t>(index)].enabled = enabled != FALSE;
    InvalidateItem(index);
}

BOOL CCheckListBox::IsEnabled(int index) const
{
    return HasItem(index) && m_states[static_cast<std::size_t>(index)].enabled;
}

void CCheckListBox::InvalidateItem(int index)
{
    CRect rect;
    if (GetItemRect(index, &rect) != LB_ERR)
        InvalidateRect(&rect);
}

// --- States come and go with their items ---------------------------------------------------

LRESULT CCheckListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT answer = CListBox::WindowProc(message, wParam, lParam);
    if (message >= LB_ADDSTRING && message <= LB_SETCOUNT)
        KeepInStep(message, wParam, answer);
    return answer;
}

void CCheckListBox::KeepInStep(UINT message, WPARAM wParam, LRESULT answer)
{
    const auto begin = m_states.begin();
    switch (message)
    {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_ADDFILE:
        if (answer >= 0)
            m_states.insert(begin + std::min<std::ptrdiff_t>(answer, std::ssize(m_states)), ItemState());
        break;
    case LB_DELETESTRING:
        if (answer != LB_ERR && HasItem(static_cast<int>(wParam)))
            m_states.erase(begin + static_cast<std::ptrdiff_t>(wParam));
        break;
    case LB_RESETCONTENT:
        m_states.clear();
        break;
    case LB_DIR:
    case LB_SETCOUNT:
        m_states.resize(static_cast<std::size_t>(std::max(GetCount(), 0)));
        break;
    default:
        break;
    }
}

void CCheckListBox::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    // A list of a dialog has its size, and perhaps items, before it has its object.
    m_states.assign(static_cast<std::size_t>(std::max(GetCount(), 0)), ItemState());
    TakeItemHeight();
}

LRESULT CCheckListBox::OnSetFont(WPARAM, LPARAM)
{
    const LRESULT answer = Default();
    TakeItemHeight();
    return answer;
}

void CCheckListBox::TakeItemHeight()
{
    if (GetStyle() & LBS_OWNERDRAWVARIABLE)
        for (int i = 0; i < GetCount(); ++i)
            SetItemHeight(i, static_cast<UINT>(ItemHeight()));
    else
        SetItemHeight(0, static_cast<UINT>(ItemHeight()));
}

void CCheckListBox::OnEnable(BOOL enable)
{
    CListBox::OnEnable(enable);
    Invalidate(FALSE); // texts turn grey or black
}

// --- Mouse and keys -------------------------------------------------------------------------

int CCheckListBox::ItemWhoseBoxIsAt(CPoint point)
{
    BOOL outside = TRUE;
    const int index = static_cast<int>(ItemFromPoint(point, outside));
    CRect rect;
    if (outside || !HasItem(index) || GetItemRect(index, &rect) == LB_ERR)
        return -1;
    return CheckRect(rect).PtInRect(point) ? index : -1;
}

bool CCheckListBox::TakesSeveral() const
{
    return (GetStyle() & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0;
}

/// What the user's next click or key makes of a state; the state itself where the program decides.
int CCheckListBox::NextCheck(int check) const
{
    switch (m_checkStyle)
    {
    case BS_AUTOCHECKBOX:
        return check == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED;
    case BS_AUTO3STATE:
        return (check + 1) % 3;
    default:
        return check;
    }
}

/// Gives an item its next state, and the other selected items the same when it is one of them.
void CCheckListBox::Toggle(int index)
{
    const int check = NextCheck(GetCheck(index));
    if (!IsEnabled(index) || check == GetCheck(index))
        return;
    SetCheck(index, check);
    if (TakesSeveral() && GetSel(index) > 0)
        for (int i = 0; i < GetCount(); ++i)
            if (IsEnabled(i) && GetSel(i) > 0)
                SetCheck(i, check);
    NotifyCheckChange();
}

void CCheckListBox::NotifyCheckChange()
{
    ::SendMessageA(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE),
                   reinterpret_cast<LPARAM>(m_hWnd));
}

void CCheckListBox::OnLButtonDown(UINT flags, CPoint point)
{
    const HWND window = m_hWnd;
    if (::GetFocus() != window)
        SetFocus(); // what an edit field does on losing the focus still concerns the former selection
    if (!::IsWindow(window))
        return;
    const int index = ItemWhoseBoxIsAt(point);
    // A click on the box of one of several selected items leaves the selection as it is.
    if (index < 0 || !TakesSeveral() || GetSel(index) <= 0)
        CListBox::OnLButtonDown(flags, point);
    if (index >= 0 && ::IsWindow(window))
        Toggle(index);
}

void CCheckListBox::OnLButtonDblClk(UINT flags, CPoint point)
{
    const int index = ItemWhoseBoxIsAt(point);
    if (index >= 0)
        Toggle(index); // the second of two quick clicks
    else
        CListBox::OnLButtonDblClk(flags, point);
}

void CCheckListBox::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    const int index = TakesSeveral() ? GetCaretIndex() : GetCurSel();
    if (key == VK_SPACE && index >= 0 && NextCheck(BST_UNCHECKED) != BST_UNCHECKED)
        Toggle(index);
    else
        CListBox::OnKeyDown(key, repeats, flags);
}
