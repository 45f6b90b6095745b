// What a sheet lays out: its pages' area and its buttons.
#include "toolkit/layout/LayoutPropertyPage.h"
#include "toolkit/layout/LayoutPropertySheet.h"

#include "framework/controls/CTabCtrl.h"

#include <algorithm>

namespace LayoutManagement
{
namespace
{

constexpr DWORD kWizardFlags = 0x1000020; ///< PSH_WIZARD and PSH_WIZARD97
constexpr UINT kWizardLine = 0x3026;      ///< between a wizard's pages and its buttons
constexpr int kSpacing = 5;
constexpr int kButtonGap = 12;    ///< between a wizard's buttons, of which Next touches Back
constexpr int kWizardTopEdge = 5; ///< of the pages' area

/// The system's buttons in the order in which they stand.
constexpr UINT kButtons[] = {ID_WIZBACK, ID_WIZNEXT, ID_WIZFINISH, IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP};

/// A control that keeps its place while it is hidden.
class StandingItem : public LayoutMgr::PaneItem
{
public:
    using PaneItem::PaneItem;

    bool isShown(bool) override
    {
        return ::IsWindow(m_hWnd) != FALSE;
    }
};

CRect PlaceIn(HWND parent, HWND control)
{
    CRect rect;
    ::GetWindowRect(control, &rect);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(static_cast<RECT*>(&rect)), 2);
    return rect;
}

} // namespace

bool LayoutPropertySheet::HasFlag(DWORD flags) const
{
    return (m_psh.dwFlags & flags) != 0;
}

bool LayoutPropertySheet::IsLayoutWizard() const
{
    return HasFlag(kWizardFlags);
}

/// A wizard without a Finish button of its own shows Finish in place of Next on its last page.
bool LayoutPropertySheet::FinishLiesOnNext() const
{
    return IsLayoutWizard() && !HasFlag(PSH_WIZARDHASFINISH);
}

void LayoutPropertySheet::DeclarePanes()
{
    CPane root = CreateRoot(Vertical, kSpacing, 0);
    root << ItemOfTabs();
    if (IsLayoutWizard())
    {
        GetTabControl()->ShowWindow(SW_HIDE);
        if (::GetDlgItem(m_hWnd, kWizardLine) != nullptr)
        {
            root << item(kWizardLine, FixedHeight);
        }
    }
    const int around = IsLayoutWizard() ? 0 : kSpacing;
    CPane buttonPane = pane(Horizontal, FixedHeight, around, around);
    AddButtons(buttonPane);
    if (buttonPane->count() > 0)
    {
        root << buttonPane;
    }
    AddMainArea(root);
}

/// The tab control stands for the pages. It must hold the page as large as the system made it; a wizard's, which is
/// hidden, need not be that large at first.
LayoutMgr::CPaneBase LayoutPropertySheet::ItemOfTabs()
{
    CTabCtrl* const tabs = GetTabControl();
    CRect least;
    tabs->GetWindowRect(&least);
    if (IsLayoutWizard())
    {
        CRect page;
        GetActivePage()->GetWindowRect(&page);
        page.top -= kWizardTopEdge;
        tabs->AdjustRect(TRUE, &page);
        least.right = least.left + std::max(least.Width(), page.Width());
        least.bottom = least.top + std::max(least.Height(), page.Height());
    }
    // The handle of a pane counts its references and deletes it with the last.
    return CPaneBase(new StandingItem(this, tabs->m_hWnd, Greedy, 0, 0, least.Width(), least.Height()));
}

void LayoutPropertySheet::AddButtons(CPane buttonPane)
{
    buttonPane << itemSpace(Horizontal);
    bool isFirst = true;
    for (const UINT button : kButtons)
    {
        if (::GetDlgItem(m_hWnd, static_cast<int>(button)) == nullptr || IsLeftOut(button))
        {
            continue;
        }
        if (IsLayoutWizard() && !isFirst && button != ID_WIZNEXT)
        {
            buttonPane << itemSpaceFixed(Horizontal, kButtonGap);
        }
        buttonPane << ItemOfButton(button);
        isFirst = false;
    }
    if (!IsLayoutWizard())
    {
        buttonPane << itemSpace(Horizontal);
    }
}

void LayoutPropertySheet::AddMainArea(CPane)
{
}

/// By the sheet's flags: buttons that it does not show exist all the same.
bool LayoutPropertySheet::IsLeftOut(UINT button) const
{
    switch (button)
    {
    case ID_WIZFINISH:
        return FinishLiesOnNext();
    case IDHELP:
        return !HasFlag(PSH_HASHELP);
    case ID_APPLY_NOW:
        return HasFlag(PSH_NOAPPLYNOW);
    default:
        return false;
    }
}

LayoutMgr::CPaneBase LayoutPropertySheet::ItemOfButton(UINT button)
{
    const HWND control = ::GetDlgItem(m_hWnd, static_cast<int>(button));
    if (IsLayoutWizard())
    {
        ::ShowWindow(control, SW_SHOW);
    }
    if (button == ID_WIZNEXT && FinishLiesOnNext())
    {
        return CPaneBase(new StandingItem(this, control, FixedBoth, 0, 0, 0, 0)); // also while Finish is shown
    }
    return item(button, FixedBoth);
}

bool LayoutPropertySheet::GetPageArea(CRect& area)
{
    CTabCtrl* const tabs = m_paneRoot.IsValid() ? GetTabControl() : nullptr;
    if (tabs == nullptr)
    {
        return false;
    }
    area = PlaceIn(m_hWnd, tabs->m_hWnd);
    tabs->AdjustRect(FALSE, &area);
    if (IsLayoutWizard())
    {
        area.top += kWizardTopEdge;
    }
    return true;
}

void LayoutPropertySheet::PlaceActivePage()
{
    CPropertyPage* const page = GetActivePage();
    CRect area;
    if (page == nullptr || page->m_hWnd == nullptr || !GetPageArea(area))
    {
        return;
    }
    m_hWndPlaced = page->m_hWnd;
    auto* const laidOut = dynamic_cast<LayoutPropertyPage*>(page);
    if (laidOut != nullptr && IsLayoutWizard())
    {
        laidOut->SetWindowPos(nullptr, static_cast<int>(area.left), static_cast<int>(area.top), area.Width(),
                              area.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
        laidOut->UpdateLayout(false);
    }
    else
    {
        page->MoveWindow(&area);
    }
}

void LayoutPropertySheet::PlaceNewPage()
{
    const CPropertyPage* const page = m_paneRoot.IsValid() ? GetActivePage() : nullptr;
    if (page != nullptr && page->m_hWnd != m_hWndPlaced)
    {
        PlaceActivePage();
    }
}

void LayoutPropertySheet::MoveFinishOntoNext()
{
    const HWND next = ::GetDlgItem(m_hWnd, ID_WIZNEXT);
    const HWND finish = ::GetDlgItem(m_hWnd, ID_WIZFINISH);
    if (next != nullptr && finish != nullptr)
    {
        const CRect place = PlaceIn(m_hWnd, next);
        if (place != PlaceIn(m_hWnd, finish))
        {
            ::MoveWindow(finish, place.left, place.top, place.Width(), place.Height(), TRUE);
        }
    }
}

} // namespace LayoutManagement
