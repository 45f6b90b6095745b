#pragma once

/// @file
/// Styles of control bars, toolbar buttons and status bar panes. Bar styles are kept beside the window style.
#include <windows.h>

#include <commctrl.h>

inline constexpr DWORD CBRS_ALIGN_LEFT = 0x1000;
inline constexpr DWORD CBRS_ALIGN_TOP = 0x2000;
inline constexpr DWORD CBRS_ALIGN_RIGHT = 0x4000;
inline constexpr DWORD CBRS_ALIGN_BOTTOM = 0x8000;
inline constexpr DWORD CBRS_ALIGN_ANY = 0xF000;

inline constexpr DWORD CBRS_BORDER_LEFT = 0x0100;
inline constexpr DWORD CBRS_BORDER_TOP = 0x0200;
inline constexpr DWORD CBRS_BORDER_RIGHT = 0x0400;
inline constexpr DWORD CBRS_BORDER_BOTTOM = 0x0800;
inline constexpr DWORD CBRS_BORDER_ANY = 0x0F00;

inline constexpr DWORD CBRS_FLOATING = 0x0001;
inline constexpr DWORD CBRS_SIZE_FIXED = 0x0002;
inline constexpr DWORD CBRS_SIZE_DYNAMIC = 0x0004;
inline constexpr DWORD CBRS_HIDE_INPLACE = 0x0008;
inline constexpr DWORD CBRS_TOOLTIPS = 0x0010;
inline constexpr DWORD CBRS_FLYBY = 0x0020;
inline constexpr DWORD CBRS_FLOAT_MULTI = 0x0040;
inline constexpr DWORD CBRS_BORDER_3D = 0x0080;
inline constexpr DWORD CBRS_GRIPPER = 0x00400000;
inline constexpr DWORD CBRS_ALL = 0x0040FFFF; ///< every bit that means something to a bar

inline constexpr DWORD CBRS_ORIENT_HORZ = CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM;
inline constexpr DWORD CBRS_ORIENT_VERT = CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT;
inline constexpr DWORD CBRS_ORIENT_ANY = CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT;

inline constexpr DWORD CBRS_NOALIGN = 0;
inline constexpr DWORD CBRS_LEFT = CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT;
inline constexpr DWORD CBRS_TOP = CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM;
inline constexpr DWORD CBRS_RIGHT = CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT;
inline constexpr DWORD CBRS_BOTTOM = CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP;

/// Modes of CControlBar::CalcDynamicLayout.
inline constexpr DWORD LM_STRETCH = 0x01;  ///< as long as the frame
inline constexpr DWORD LM_HORZ = 0x02;     ///< lies horizontally
inline constexpr DWORD LM_MRUWIDTH = 0x04; ///< of the width used last
inline constexpr DWORD LM_HORZDOCK = 0x08;
inline constexpr DWORD LM_VERTDOCK = 0x10;
inline constexpr DWORD LM_LENGTHY = 0x20; ///< the length given is a height
inline constexpr DWORD LM_COMMIT = 0x40;  ///< remember the result

/// Status bar panes.
inline constexpr UINT SBPS_NORMAL = 0x0000;
inline constexpr UINT SBPS_NOBORDERS = SBT_NOBORDERS;
inline constexpr UINT SBPS_POPOUT = SBT_POPOUT;
inline constexpr UINT SBPS_OWNERDRAW = SBT_OWNERDRAW;
inline constexpr UINT SBPS_DISABLED = 0x04000000; ///< shows no text
inline constexpr UINT SBPS_STRETCH = 0x08000000;  ///< takes the room that is left; one pane only

/// Toolbar buttons: low half the kind, high half the state.
inline constexpr UINT TBBS_BUTTON = TBSTYLE_BUTTON;
inline constexpr UINT TBBS_SEPARATOR = TBSTYLE_SEP;
inline constexpr UINT TBBS_CHECKBOX = TBSTYLE_CHECK;
inline constexpr UINT TBBS_GROUP = TBSTYLE_GROUP;
inline constexpr UINT TBBS_CHECKGROUP = TBSTYLE_GROUP | TBSTYLE_CHECK;
inline constexpr UINT TBBS_DROPDOWN = TBSTYLE_DROPDOWN;
inline constexpr UINT TBBS_CHECKED = TBSTATE_CHECKED << 16;
inline constexpr UINT TBBS_PRESSED = TBSTATE_PRESSED << 16;
inline constexpr UINT TBBS_DISABLED = TBSTATE_ENABLED << 16; ///< the opposite of the system's bit
inline constexpr UINT TBBS_HIDDEN = TBSTATE_HIDDEN << 16;
inline constexpr UINT TBBS_INDETERMINATE = TBSTATE_INDETERMINATE << 16;
inline constexpr UINT TBBS_WRAPPED = TBSTATE_WRAP << 16;
