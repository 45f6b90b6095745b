#include "framework/dialog/CDialog.h"
#include "framework/frames/CView.h"
#include "toolkit/layout/LayoutDescription.h"
#include "toolkit/layout/Panes.h"

#include <algorithm>

namespace LayoutManagement
{
namespace
{

constexpr int kRootBorder = 5;

CSize SizeOf(const RECT& rect)
{
    return {static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

/// Only windows whose size is their own business: not what stands in another one, nor bars and sheets.
bool GrowsByItself(const CWnd& window)
{
    if (window.IsIconic())
    {
        return false;
    }
    const bool isDialog = window.IsKindOf(RUNTIME_CLASS(CDialog)) && (window.GetStyle() & WS_CHILD) == 0;
    return isDialog || window.IsKindOf(RUNTIME_CLASS(CView));
}

/// Sets a flag for a scope.
class Raised
{
public:
    explicit Raised(bool& flag) : m_flag(flag)
    {
        m_flag = true;
    }
    ~Raised()
    {
        m_flag = false;
    }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& m_flag;
};

} // namespace

LayoutMgr::LayoutMgr(CWnd* pWnd)
    : m_pWnd(pWnd), m_sizeRootBorderX(kRootBorder), m_sizeRootBorderY(kRootBorder), m_bLayoutLocked(false),
      m_bUpdating(false)
{
}

LayoutMgr::~LayoutMgr() = default;

void LayoutMgr::SetWnd(CWnd* pWnd)
{
    m_pWnd = pWnd;
}

void LayoutMgr::LockLayout(bool bLock)
{
    m_bLayoutLocked = bLock;
}

void LayoutMgr::UnlockLayout()
{
    m_bLayoutLocked = false;
}

bool LayoutMgr::LayoutLocked() const
{
    return m_bLayoutLocked;
}

void LayoutMgr::SetRootBorders(int cx, int cy)
{
    m_sizeRootBorderX = cx;
    m_sizeRootBorderY = cy;
}

bool LayoutMgr::HasWindow() const
{
    return IsWindow(m_pWnd->GetSafeHwnd()) != FALSE;
}

CRect LayoutMgr::GetRect()
{
    CRect rect(0, 0, 0, 0);
    if (HasWindow())
    {
        m_pWnd->GetClientRect(&rect);
    }
    return rect;
}

CSize LayoutMgr::SizeAroundRoot()
{
    CRect window;
    m_pWnd->GetWindowRect(&window);
    // Whatever the window keeps for itself inside its client area counts as frame here.
    const CSize around = SizeOf(window) - SizeOf(GetRect());
    return {static_cast<int>(around.cx) + 2 * m_sizeRootBorderX, static_cast<int>(around.cy) + 2 * m_sizeRootBorderY};
}

bool LayoutMgr::GetTrackSizes(CSize& sizeMin, CSize& sizeMax)
{
    if (!m_paneRoot || !HasWindow())
    {
        return false;
    }
    LayoutDescription description(m_pWnd->m_hWnd, LayoutPass::Measure);
    m_paneRoot.ConvertBase()->describe(description);
    vorn::PaneTree& tree = description.Tree();
    tree.Measure();
    const CSize around = SizeAroundRoot();
    const auto limit = [](int size, LONG more)
    {
        return size == vorn::kUnbounded ? size : vorn::SumOf(size, static_cast<int>(more));
    };
    sizeMin = {vorn::SumOf(tree.Least(0, vorn::PaneAxis::Width), static_cast<int>(around.cx)),
               vorn::SumOf(tree.Least(0, vorn::PaneAxis::Height), static_cast<int>(around.cy))};
    sizeMax = {limit(tree.Most(0, vorn::PaneAxis::Width), around.cx),
               limit(tree.Most(0, vorn::PaneAxis::Height), around.cy)};
    return true;
}

void LayoutMgr::LimitTrackSizes(MINMAXINFO* pInfo)
{
    CSize least;
    CSize most;
    CRect client(0, 0, 0, 0);
    if (HasWindow())
    {
        m_pWnd->GetClientRect(&client);
    }
    if (pInfo == nullptr || (client.Width() == 0 && client.Height() == 0) || m_pWnd->IsIconic() ||
        !GetTrackSizes(least, most))
    {
        return;
    }
    pInfo->ptMinTrackSize = {least.cx, least.cy};
    if (most.cx != vorn::kUnbounded)
    {
        pInfo->ptMaxTrackSize.x = pInfo->ptMaxSize.x = most.cx;
    }
    if (most.cy != vorn::kUnbounded)
    {
        pInfo->ptMaxTrackSize.y = pInfo->ptMaxSize.y = most.cy;
    }
}

void LayoutMgr::ReleaseRoot()
{
    m_paneRoot = CPane();
}

void LayoutMgr::GrowToMinimum()
{
    CSize least;
    CSize most;
    if (!GrowsByItself(*m_pWnd) || !GetTrackSizes(least, most))
    {
        return;
    }
    CRect window;
    m_pWnd->GetWindowRect(&window);
    const CSize present = SizeOf(window);
    if (present.cx < least.cx || present.cy < least.cy)
    {
        m_pWnd->SetWindowPos(nullptr, 0, 0, static_cast<int>(std::max(present.cx, least.cx)),
                             static_cast<int>(std::max(present.cy, least.cy)),
                             SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void LayoutMgr::UpdateLayout(bool bRedraw)
{
    if (!m_paneRoot || m_bLayoutLocked || m_bUpdating || !HasWindow())
    {
        return;
    }
    const Raised updating(m_bUpdating); // growing asks for a layout again
    GrowToMinimum();
    CRect rect = GetRect();
    rect.DeflateRect(m_sizeRootBorderX, m_sizeRootBorderY);
    Layout(rect);
    if (bRedraw)
    {
        m_pWnd->Invalidate(TRUE);
    }
}

void LayoutMgr::UpdateLayout(CPane paneRoot, bool bRedraw)
{
    m_paneRoot = paneRoot;
    UpdateLayout(bRedraw);
}

void LayoutMgr::Layout(CRect& rect)
{
    if (m_paneRoot.IsValid() && HasWindow())
    {
        m_paneRoot->placeAt(rect);
    }
}

} // namespace LayoutManagement
