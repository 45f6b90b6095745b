#pragma once

#include "toolkit/tooltips/ToolTipCtrlEx.h"

namespace vorn
{

/// The tips of a window with controls: a dialog, a bar, a page.
class DialogTips
{
public:
    explicit DialogTips(CWnd& host);
    ~DialogTips();
    DialogTips(const DialogTips&) = delete;
    DialogTips& operator=(const DialogTips&) = delete;

    /// Creates the tooltip window, unless it is there. @return whether it is there
    bool Init();
    /// Gives each control that exists its text. Null lists and counts below 1: nothing.
    void Add(const UINT* controls, const UINT* texts, int count);
    /// The same with the ids of control and text side by side.
    void Add(const UINT* pairs, int count);
    void BreakLines(bool breakLines);
    void Relay(MSG* message);
    void UpdateRects();
    /// Ends the tooltip window, and its tools with it.
    void End();
    ToolTipCtrlEx& Control();

private:
    void AddOne(UINT control, UINT text);

    CWnd& m_host;
    ToolTipCtrlEx m_control;
};

} // namespace vorn
