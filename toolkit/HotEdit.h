#pragma once

#include "frame/core/Export.h"
#include "framework/include/afxwin.h"

/// An edit field whose border lights up while the mouse is over it.
class VORNCOMMON_API HotEdit : public CEdit
{
    DECLARE_DYNAMIC(HotEdit)
public:
    /// @param hot whether it lights up at all.
    explicit HotEdit(bool hot = true);
    ~HotEdit() override;

    /// Lights the border up, or takes the light away.
    void HotActivate(bool active);
    bool IsHot() const;
    /// Reads the system's colours anew.
    void UpdateColors();

protected:
    /// Draws the border in its present colour: that of a selection while it is hot, else that of a button's shadow.
    virtual void DrawBorder();
    void PreSubclassWindow() override;

    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnNcMouseMove(UINT hitTest, CPoint point);
    afx_msg void OnNcPaint();
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnSysColorChange();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void StopTimer();

    bool m_reacts;
    bool m_active = false;
    UINT m_timer = 0;
    COLORREF m_hotColor = 0;
    COLORREF m_plainColor = 0;
    COLORREF m_innerColor = 0;
};
