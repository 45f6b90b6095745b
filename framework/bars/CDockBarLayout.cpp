#include "framework/bars/CDockBar.h"
#include <utility>

// Layout of a dock and of the bars in it.

namespace
{
constexpr int kAsLongAsPossible = 32767;

/// The border toward the view of a bar at a side.
DWORD BorderAt(DWORD side)
{
    switch (side & CBRS_ALIGN_ANY)
    {
    case CBRS_ALIGN_LEFT:
        return CBRS_BORDER_RIGHT;
    case CBRS_ALIGN_TOP:
        return CBRS_BORDER_BOTTOM;
    case CBRS_ALIGN_RIGHT:
        return CBRS_BORDER_LEFT;
    default:
        return CBRS_BORDER_TOP;
    }
}
} // namespace

DWORD CDockBar::StyleFor(CControlBar& bar) const
{
    const DWORD kept = bar.m_dwStyle & ~(CBRS_ALIGN_ANY | CBRS_BORDER_ANY | CBRS_FLOATING);
    bar.m_hasBorders = bar.m_hasBorders || (bar.m_dwStyle & CBRS_BORDER_ANY) != 0;
    if (IsFloating())
        return kept | m_floatAlign | CBRS_FLOATING; // the frame has borders of its own
    const DWORD side = m_dwStyle & CBRS_ALIGN_ANY;
    return kept | side | (bar.m_hasBorders ? BorderAt(side) : 0U);
}

DWORD CDockBar::LayoutMode(const CControlBar& bar) const
{
    if (IsFloating())
        return LM_MRUWIDTH | LM_COMMIT | (bar.IsHorizontal() ? LM_HORZ : 0U);
    return IsHorizontal() ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK;
}

vorn::DockArrangement CDockBar::Arrange() const
{
    std::vector<std::vector<vorn::DockItem>> rows;
    for (const Row& row : m_rows)
    {
        auto& items = rows.emplace_back();
        for (const Entry& entry : row.entries)
        {
            if (!entry.bar->IsVisible())
                continue;
            const CSize size = entry.bar->CalcDynamicLayout(-1, LayoutMode(*entry.bar));
            items.push_back({entry.wanted, static_cast<int>(IsHorizontal() ? size.cx : size.cy),
                             static_cast<int>(IsHorizontal() ? size.cy : size.cx)});
        }
    }
    return vorn::ArrangeDockRows(rows, m_available);
}

CSize CDockBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    m_arranged = Arrange();
    const int along = stretch ? kAsLongAsPossible : m_arranged.length;
    return horizontal ? CSize(along, m_arranged.thickness) : CSize(m_arranged.thickness, along);
}

LRESULT CDockBar::OnSizeParent(WPARAM wParam, LPARAM lParam)
{
    const auto& layout = *reinterpret_cast<const AFX_SIZEPARENTPARAMS*>(lParam);
    m_available =
        static_cast<int>(IsHorizontal() ? layout.rect.right - layout.rect.left : layout.rect.bottom - layout.rect.top);
    const LRESULT result = CControlBar::OnSizeParent(wParam, lParam);
    if (layout.hDWP)
        PlaceBars(std::exchange(m_arranged, {}));
    return result;
}

void CDockBar::PlaceBars(const vorn::DockArrangement& arrangement)
{
    for (std::size_t i = 0; i < m_rows.size() && i < arrangement.boxes.size(); ++i)
    {
        m_rows[i].band = arrangement.bands[i];
        std::size_t shown = 0;
        for (const Entry& entry : m_rows[i].entries)
        {
            CControlBar& bar = *entry.bar;
            const bool visible = bar.IsVisible() && shown < arrangement.boxes[i].size();
            const UINT flags = bar.RecalcDelayShow(nullptr) | SWP_NOZORDER | SWP_NOACTIVATE;
            if (!visible)
            {
                bar.SetWindowPos(nullptr, 0, 0, 0, 0, flags | SWP_NOMOVE | SWP_NOSIZE);
                continue;
            }
            const vorn::DockBox& box = arrangement.boxes[i][shown++];
            const int x = IsHorizontal() ? box.along : box.across;
            const int y = IsHorizontal() ? box.across : box.along;
            const int width = IsHorizontal() ? box.length : box.thickness;
            const int height = IsHorizontal() ? box.thickness : box.length;
            bar.SetWindowPos(nullptr, x, y, width, height, flags);
        }
    }
}
