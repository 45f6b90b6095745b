#pragma once

/// @file
/// Small frames, such as those in which bars float.
#include "framework/frames/CFrameWnd.h"

/// Styles of a mini frame beside those of the system. They live in unused bits of the window style.
inline constexpr DWORD MFS_SYNCACTIVE = 0x0100;   ///< its caption is active whenever its owner's is
inline constexpr DWORD MFS_4THICKFRAME = 0x0200;  ///< its thick frame does not size it
inline constexpr DWORD MFS_THICKFRAME = 0x0400;   ///< it can be made as small as its frame
inline constexpr DWORD MFS_MOVEFRAME = 0x0800;    ///< it is moved by any of its edges
inline constexpr DWORD MFS_BLOCKSYSMENU = 0x1000; ///< no system menu: its box is a part of the caption

/// A frame with a low caption, without menu, minimise box and icon, that stays before its owner.
class HOSTFRAMEWORK_API CMiniFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMiniFrameWnd)

public:
    CMiniFrameWnd();
    ~CMiniFrameWnd() override;

    /// @param parent owner; also of a frame that is a child, its parent
    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent = nullptr,
                        UINT id = 0);
    virtual BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect,
                          CWnd* parent = nullptr, UINT id = 0);

protected:
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);

    DECLARE_MESSAGE_MAP()
};
