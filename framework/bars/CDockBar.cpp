#include "framework/bars/CDockBar.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/include/afxres.h"
#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CDockBar, CControlBar)

BEGIN_MESSAGE_MAP(CDockBar, CControlBar)
ON_WM_DESTROY()
ON_MESSAGE(WM_SIZEPARENT, &CDockBar::OnSizeParent)
END_MESSAGE_MAP()

CDockBar::CDockBar() = default;

CDockBar::~CDockBar()
{
    for (const Row& row : m_rows)
        for (const Entry& entry : row.entries)
            entry.bar->m_pDockBar = nullptr;
}

BOOL CDockBar::Create(CWnd* parent, DWORD style, UINT id)
{
    m_dwStyle = style & CBRS_ALL;
    m_floatAlign = CBRS_ALIGN_TOP;
    const DWORD windowStyle = (style & ~CBRS_ALL) | WS_CHILD | WS_CLIPCHILDREN;
    return CWnd::Create(nullptr, nullptr, windowStyle, CRect(0, 0, 0, 0), parent, id);
}

BOOL CDockBar::IsDockBar() const
{
    return TRUE;
}

BOOL CDockBar::IsFloating() const
{
    return GetDlgCtrlID() == AFX_IDW_DOCKBAR_FLOAT;
}

void CDockBar::OnUpdateCmdUI(CFrameWnd*, BOOL)
{
    // The bars in it are brought up to date themselves.
}

void CDockBar::OnDestroy()
{
    // The windows of the bars go after this one; they find themselves free.
    for (const Row& row : std::exchange(m_rows, {}))
        for (const Entry& entry : row.entries)
            entry.bar->m_pDockBar = nullptr;
    CControlBar::OnDestroy();
}

int CDockBar::GetRowCount() const
{
    return static_cast<int>(m_rows.size());
}

int CDockBar::GetDockedCount() const
{
    int count = 0;
    for (const Row& row : m_rows)
        count += static_cast<int>(row.entries.size());
    return count;
}

int CDockBar::GetDockedVisibleCount() const
{
    int count = 0;
    for (const Row& row : m_rows)
        for (const Entry& entry : row.entries)
            count += entry.bar->IsVisible() ? 1 : 0;
    return count;
}

CControlBar* CDockBar::GetDockedControlBar(int index) const
{
    for (const Row& row : m_rows)
        for (const Entry& entry : row.entries)
            if (index-- == 0)
                return entry.bar;
    return nullptr;
}

vorn::DockPlace CDockBar::PlaceOf(const CControlBar& bar) const
{
    vorn::DockPlace place;
    place.dockBar = static_cast<UINT>(GetDlgCtrlID());
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        for (const Entry& entry : m_rows[i].entries)
            if (entry.bar == &bar)
            {
                place.row = static_cast<int>(i);
                place.position = entry.wanted;
                place.alone = m_rows[i].entries.size() == 1;
            }
    return place;
}

void CDockBar::DockControlBar(CControlBar* bar, LPCRECT rect)
{
    if (!bar || !bar->m_hWnd || !m_hWnd || bar->IsDockBar())
        return;
    if (!rect)
    {
        PutIn(*bar, {m_rows.size(), true}, 0);
        return;
    }
    CRect place(*rect);
    ScreenToClient(&place);
    const CPoint middle = place.CenterPoint();
    std::vector<vorn::DockBand> bands;
    for (const Row& row : m_rows)
        bands.push_back(row.band);
    PutIn(*bar, vorn::ChooseDockRow(bands, IsHorizontal() ? middle.y : middle.x),
          IsHorizontal() ? place.left : place.top);
}

void CDockBar::DockControlBar(CControlBar* bar, const vorn::DockPlace& place)
{
    if (!bar || !bar->m_hWnd || !m_hWnd || bar->IsDockBar())
        return;
    const auto row = static_cast<std::size_t>(std::max(place.row, 0));
    const bool isNew = place.alone || row >= m_rows.size();
    PutIn(*bar, {std::min(row, m_rows.size()), isNew}, place.position);
}

void CDockBar::PutIn(CControlBar& bar, vorn::DockRowChoice choice, int wanted)
{
    CDockBar* former = bar.m_pDockBar;
    if (former == this)
    {
        choice = TakeOut(bar, choice);
    }
    else if (former)
    {
        former->RemoveControlBar(&bar);
    }
    if (::GetParent(bar.m_hWnd) != m_hWnd)
    {
        // The focus must not go along into a window that is not the active one.
        if (bar.m_pDockSite && ::IsChild(bar.m_hWnd, ::GetFocus()))
            bar.m_pDockSite->SetFocus();
        ::SetParent(bar.m_hWnd, m_hWnd);
    }
    InsertEntry(bar, choice, wanted);
    bar.m_pDockBar = this;
    bar.SetBarStyle(StyleFor(bar));
    // A gripper may come, go or lie at another edge now.
    bar.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void CDockBar::InsertEntry(CControlBar& bar, vorn::DockRowChoice choice, int wanted)
{
    const auto place = m_rows.begin() + static_cast<std::ptrdiff_t>(choice.row);
    if (choice.isNew)
    {
        m_rows.insert(place, Row{{{&bar, wanted}}, {}});
        return;
    }
    auto& entries = place->entries;
    const auto behind = std::find_if(entries.begin(), entries.end(),
                                     [wanted](const Entry& entry)
                                     {
                                         return entry.wanted > wanted;
                                     });
    entries.insert(behind, {&bar, wanted});
}

vorn::DockRowChoice CDockBar::TakeOut(const CControlBar& bar, vorn::DockRowChoice choice)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i)
    {
        auto& entries = m_rows[i].entries;
        const auto taken = std::erase_if(entries,
                                         [&bar](const Entry& entry)
                                         {
                                             return entry.bar == &bar;
                                         });
        if (taken == 0 || !entries.empty())
            continue;
        m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(i));
        // What was its own row is a new one now.
        if (choice.row == i)
            choice.isNew = true;
        else if (choice.row > i)
            --choice.row;
        break;
    }
    return choice;
}

void CDockBar::RemoveControlBar(CControlBar* bar)
{
    if (!bar || bar->m_pDockBar != this)
        return;
    if (IsFloating())
    {
        CRect place;
        bar->GetWindowRect(&place);
        bar->m_lastFloat = place.TopLeft();
        bar->m_hasFloated = true;
    }
    else
    {
        bar->m_lastDock = PlaceOf(*bar);
    }
    TakeOut(*bar, {});
    bar->m_pDockBar = nullptr;
    RetireIfEmpty();
}

void CDockBar::RetireIfEmpty()
{
    if (!IsFloating() || GetDockedCount() > 0)
        return;
    // Not at once: the frame's own handler may be on its way out still.
    CWnd* frame = GetParent();
    frame->ShowWindow(SW_HIDE);
    frame->PostMessage(WM_CLOSE);
}
