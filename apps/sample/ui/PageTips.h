#pragma once

#include <VornCommon.h>

/// What explains the controls of the pages while the mouse rests on them. A control's text is the string of the
/// control's own number; one without a string has no tip.
class PageTips
{
public:
    /// Takes the controls that have come to the view since the last time.
    void TakeControlsOf(CWnd& view);

    /// Takes a message on its way to the view or to one of its controls.
    void Relay(MSG& message);

    /// The page's controls have moved.
    void Moved();

    ToolTipCtrlEx& Window();

private:
    ToolTipCtrlEx m_tips;
};
