#pragma once

#include "apps/planner/PlannerData.h"

#include <functional>
#include <string>
#include <vector>

namespace vorn::planner
{

/// Opens the planner's windows one after the other, takes pictures of each at its smallest, its first and a large
/// size, and looks for what is cut, overlaps or is too narrow for its text.
class ShotRun
{
public:
    /// @param folder where the pictures go; made when it is not there
    ShotRun(CWnd& frame, PlannerData& data, std::string folder);

    using Look = std::function<void(HWND window)>;

    /// Pictures of a program's own, taken after the planner's.
    using Scene = std::function<void(ShotRun& run)>;

    /// False when a picture could not be written.
    bool TakeAll(const Scene& more = {});

    /// Opens a window that stays until it is closed, and looks at it while it is open.
    void Open(const std::function<void()>& open, const Look& look);
    /// At its smallest, its first and a large size.
    void Sizes(HWND window, const std::string& name);
    /// As it is. The later windows lie on top.
    void Shot(const std::vector<HWND>& windows, const std::string& name, bool isChecked);

    /// Rests the mouse on a control until its tip is there, and takes both. False when none comes.
    /// @param isChecked whether the window itself is looked at, too
    bool ShotTip(HWND window, HWND control, ToolTipCtrlEx& tip, const std::string& name, bool isChecked);

    /// What was found wrong: a line for each, with the picture's name.
    const std::vector<std::string>& Faults() const;
    int Pictures() const;

private:
    void TakeDialogs();
    void TakeSheets();
    void TakePages(HWND sheet, const std::vector<std::string>& names);
    void TakeFlightLog();
    void TakeLegBar();
    void TakeTips();
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD);

    CWnd& m_frame;
    PlannerData& m_data;
    std::string m_folder;
    std::string m_prefix; ///< of the names: the screen's dots per inch
    std::vector<std::string> m_faults;
    int m_pictures = 0;
    bool m_failed = false;
    Look m_look;
    bool m_seen = false;
};

} // namespace vorn::planner
