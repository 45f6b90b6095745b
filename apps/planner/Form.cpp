#include "apps/planner/Form.h"

#include "apps/planner/TextFit.h"

#include <algorithm>

namespace vorn::planner
{

namespace
{

// Dialog units.
constexpr int kGap = 4;
constexpr int kGroupBorder = 5;
constexpr int kCaption = 6; // of a group box, beyond its border

CSize SizeOf(CWnd& control)
{
    CRect rect;
    control.GetWindowRect(&rect);
    return rect.Size();
}

} // namespace

Form::Form(Layout& layout, CWnd& window) : m_layout(layout), m_window(window)
{
    FitTexts(window);
    m_layout.SetRootBorders(X(5), Y(5));
}

int Form::X(int units) const
{
    RECT rect = {0, 0, units, 0};
    MapDialogRect(m_window, &rect);
    return rect.right;
}

int Form::Y(int units) const
{
    RECT rect = {0, 0, 0, units};
    MapDialogRect(m_window, &rect);
    return rect.bottom;
}

void Form::Align(std::initializer_list<UINT> ids)
{
    LONG width = 0;
    for (const UINT id : ids)
        width = std::max<LONG>(width, SizeOf(*m_window.GetDlgItem(static_cast<int>(id))).cx);
    for (const UINT id : ids)
    {
        CWnd& control = *m_window.GetDlgItem(static_cast<int>(id));
        control.SetWindowPos(nullptr, 0, 0, width, SizeOf(control).cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

Form::Pane Form::Line()
{
    return m_layout.pane(Layout::Horizontal, Layout::FixedHeight, X(kGap));
}

Form::Pane Form::Joined()
{
    return m_layout.pane(Layout::Horizontal, Layout::FixedBoth, 0);
}

Form::Pane Form::Column()
{
    return m_layout.pane(Layout::Vertical, Layout::FixedWidth, Y(kGap));
}

Form::Pane Form::Stack(Layout::ResizeMode mode, int percent)
{
    return m_layout.pane(Layout::Vertical, mode, Y(kGap), 0, percent);
}

Form::Pane Form::Group(UINT frame, Layout::Orientation orientation, Layout::ResizeMode mode, int percent)
{
    const int gap = orientation == Layout::Horizontal ? X(kGap) : Y(kGap);
    return m_layout.paneCtrl(frame, orientation, mode, gap, X(kGroupBorder), Y(kCaption), percent);
}

Form::Item Form::Fixed(UINT id)
{
    return m_layout.item(id, Layout::FixedBoth | Layout::AlignVCenter);
}

Form::Item Form::Whole(UINT id)
{
    return m_layout.item(id, Layout::FixedHeight, 0, 0, -1);
}

Form::Item Form::Wide(UINT id, int least)
{
    return m_layout.item(id, Layout::FixedHeight | Layout::AlignVCenter, 0, 0, X(least));
}

Form::Item Form::Share(UINT id, int percent, int least)
{
    return m_layout.item(id, Layout::PercentWidth | Layout::FixedHeight | Layout::AlignVCenter, percent, 0, X(least));
}

Form::Item Form::Large(UINT id, int leastWidth, int leastHeight)
{
    return m_layout.item(id, Layout::Greedy, 0, 0, X(leastWidth), Y(leastHeight));
}

Form::Pane Form::Field(UINT label, UINT field, int least)
{
    return Line() << Fixed(label) << Wide(field, least);
}

Form::Pane Form::Buttons(std::initializer_list<UINT> ids)
{
    Pane line = Line() << m_layout.itemSpace(Layout::Horizontal);
    for (const UINT id : ids)
        line << Fixed(id);
    return line;
}

} // namespace vorn::planner
