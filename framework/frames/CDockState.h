#pragma once

/// @file
/// Saved state of a frame's control bars.
#include "framework/bars/DockPlace.h"
#include "framework/core/CString.h"
#include "framework/core/Export.h"
#include "framework/core/Geometry.h"
#include "framework/core/Object.h"
#include <vector>

/// State of one bar.
class HOSTFRAMEWORK_API CControlBarInfo
{
public:
    UINT m_nBarID = 0; ///< the bar's window id
    BOOL m_bVisible = FALSE;
    BOOL m_bFloating = FALSE;
    DWORD m_dwAlign = 0;      ///< side: one of CBRS_ALIGN_
    CRect m_rect{0, 0, 0, 0}; ///< place: frame's client coordinates, of a floating bar the screen's
    vorn::DockPlace m_dock;   ///< where it is or was docked last
    BOOL m_bHasFloated = FALSE;
    CPoint m_ptFloat{0, 0}; ///< where it floats or floated last, on the screen

    /// One line: id, visible, floating, side, left, top, right, bottom, and then dock, row, position, alone in the row,
    /// has floated, x, y; decimal numbers separated by commas.
    CString ToText() const;
    /// @return whether @p text holds the first eight numbers at least; nothing changes if not. The other seven count
    /// when all are there.
    bool FromText(LPCSTR text);
};

/// State of all bars of a frame. In the settings it is one section of the application's profile: "Bars" (their number),
/// "ScreenCX", "ScreenCY", and "Bar0", "Bar1", ... in the form of CControlBarInfo::ToText().
class HOSTFRAMEWORK_API CDockState : public CObject
{
    DECLARE_DYNAMIC(CDockState)

public:
    CDockState();
    ~CDockState() override;

    std::vector<CControlBarInfo> m_bars;

    /// Reads from a section of the application's profile. Bars whose text is damaged are left out. Without
    /// application object or section nothing is found.
    void LoadState(LPCTSTR profileName);
    /// Writes the section, and takes out the lines of bars that a larger former state left.
    void SaveState(LPCTSTR profileName) const;
    void Clear();
    /// Screen on which the state was saved; 0 x 0 if never.
    CSize GetScreenSize() const;
    void SetScreenSize(const CSize& size);

private:
    CSize m_screenSize{0, 0};
};
