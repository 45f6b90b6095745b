#pragma once

/// @file
/// The frame in which a control bar floats.
#include "framework/bars/CDockBar.h"
#include "framework/frames/CMiniFrameWnd.h"

/// A mini frame around one bar. It fits its bar, is shown while its bar and the frame to which the bar belongs are, and
/// ends when the bar has left it. Its close box hides the bar; its caption drags the bar as the bar's free area does.
class HOSTFRAMEWORK_API CFloatingBarFrame : public CMiniFrameWnd
{
    DECLARE_DYNAMIC(CFloatingBarFrame)

public:
    CFloatingBarFrame();
    ~CFloatingBarFrame() override;

    /// @return FALSE on failure; the object is gone then
    BOOL CreateFor(CFrameWnd* frame);
    /// @param align CBRS_ALIGN_TOP for a lying bar, _LEFT for a standing one
    void TakeBar(CControlBar& bar, DWORD align);
    /// Moves the frame so that its bar's upper left corner stands there on the screen.
    void PutBarAt(POINT corner);
    /// Lays the bar out, and shows or hides the frame.
    void FitBar();
    CDockBar& GetDock();
    /// The frame to which the bar belongs.
    CFrameWnd* GetDockingFrame() const;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

protected:
    afx_msg void OnClose();
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint point);

private:
    CControlBar* CaptionBar(UINT hit) const;

    CDockBar m_dock;

    DECLARE_MESSAGE_MAP()
};
