#pragma once

#include <VornCommon.h>

#include <initializer_list>

namespace vorn::planner
{

/// Declares the panes of a window as the planner's dialogs have them: sizes in dialog units, controls as large as their
/// texts.
class Form
{
public:
    using Layout = LayoutManagement::LayoutMgr;
    using Pane = Layout::CPane;
    using Item = Layout::CPaneBase;

    /// Fits the window's texts at once. Both must outlive the form.
    Form(Layout& layout, CWnd& window);

    /// Dialog units in pixels.
    int X(int units) const;
    int Y(int units) const;

    /// Gives controls one width: the largest.
    void Align(std::initializer_list<UINT> ids);

    /// Controls side by side, as high as the highest.
    Pane Line();
    /// Controls side by side that touch, such as a field and its arrows.
    Pane Joined();
    /// Controls one below the other, as wide as the widest.
    Pane Column();
    /// The same that takes its share of the room.
    Pane Stack(Layout::ResizeMode mode = Layout::Greedy, int percent = 0);
    /// Inside a group box.
    Pane Group(UINT frame, Layout::Orientation orientation, Layout::ResizeMode mode = Layout::Greedy, int percent = 0);

    /// A control of its present size, in the middle of its line.
    Item Fixed(UINT id);
    /// The same with its line to itself: it becomes wider with its pane.
    Item Whole(UINT id);
    /// A control that is as wide as its line lets it, at least `least` dialog units.
    Item Wide(UINT id, int least);
    /// The same, with a share of its line.
    Item Share(UINT id, int percent, int least);
    /// A control that grows both ways, at least so many dialog units.
    Item Large(UINT id, int leastWidth, int leastHeight);

    /// A label and its field.
    Pane Field(UINT label, UINT field, int least = 40);
    /// Buttons at the right.
    Pane Buttons(std::initializer_list<UINT> ids);

private:
    Layout& m_layout;
    CWnd& m_window;
};

} // namespace vorn::planner
