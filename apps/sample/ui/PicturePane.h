#pragma once

#include "apps/sample/core/PictureZoom.h"

#include <VornCommon.h>

#include <string>

/// A window that shows a picture, fitted, at its actual size or at any other, to be dragged about; a chequered ground
/// shows through where the picture lets it. Files can be dropped on it.
///
/// The parent gets WM_COMMAND with one of these codes and the pane's number.
class PicturePane : public CWnd
{
public:
    /// The picture stands otherwise than before.
    static constexpr UINT kMoved = 1;
    /// A file was dropped: DroppedFile().
    static constexpr UINT kDropped = 2;

    BOOL Create(CWnd& view, UINT id);

    /// Shows a picture of 24 or 32 bits as a whole; null for none. It must outlive its use here.
    void Show(const DIB* picture);

    void Fit();
    void ShowActualSize();
    void ZoomIn();
    void ZoomOut();
    /// A key that pans or zooms. False for another.
    bool TakeKey(UINT key);

    const vorn::PictureZoom& Zoom() const;
    const std::string& DroppedFile() const;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* to);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);
    afx_msg void OnSetFocus(CWnd* before);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnDropFiles(HDROP files);
    DECLARE_MESSAGE_MAP()

private:
    void Changed();
    void Tell(UINT code);
    const DIB& Scaled();
    void Compose(DIB& target);

    const DIB* m_picture = nullptr;
    vorn::PictureZoom m_zoom;
    DIB m_scaled; // the picture at its size on the screen, where that is smaller
    bool m_isScaled = false;
    bool m_isDragging = false;
    CPoint m_from;
    std::string m_dropped;
};
