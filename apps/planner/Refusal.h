#pragma once

#include <VornCommon.h>

namespace vorn::planner
{

/// Says below a dialog's control why its entry cannot be taken.
class Refusal
{
public:
    /// The control gets the focus. The note goes by itself.
    void Show(CDialog& dialog, UINT control, const char* title, const char* why);

private:
    InfoTip m_tip;
};

} // namespace vorn::planner
