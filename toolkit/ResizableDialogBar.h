#pragma once

/// @file
/// A control bar that the user sizes by its edge.
#include "toolkit/layout/LayoutDialogBar.h"
#include "toolkit/layout/core/BarSizing.h"

class CDC;

/// A dialog bar with one size for when it is docked and one for when it floats. The user drags its edge: the one away
/// from the side where the bar is docked, any while it floats. A double click on the edge brings the first size back. A
/// gripper, if asked for, drags the bar, and sends it floating or back by a double click.
///
/// Sizes are of the whole bar in pixels. They are kept in the settings of the host application, section "Dialog Bar
/// Sizes", as "Docked" and "Floating" followed by the bar's id: "223,234".
class VORNCOMMON_API ResizableDialogBar : public LayoutManagement::LayoutDialogBar
{
    DECLARE_DYNAMIC(ResizableDialogBar)

public:
    ResizableDialogBar();
    ~ResizableDialogBar() override;

    /// @param style side and other CBRS_ bits
    /// @param gripper whether the bar has one
    /// @param extraStyle more CBRS_ bits
    /// @return FALSE without such a template, or when the window cannot be created
    BOOL Create(CWnd* parent, UINT nIDTemplate, UINT style, UINT id, BOOL gripper, UINT extraStyle);
    BOOL Create(CWnd* parent, LPCSTR templateName, UINT style, UINT id, BOOL gripper, UINT extraStyle);

    /// Without a gripper.
    BOOL Create(CWnd* parent, LPCTSTR templateName, UINT style, UINT id) override;
    using CDialogBar::Create;

    /// Takes a size, from 1 to 32767; what the layout asks for is added when the bar is laid out.
    void SetDockedSize(CSize size);
    void SetFloatingSize(CSize size);
    CSize GetDockedSize() const;
    CSize GetFloatingSize() const;
    /// Whether the bar is docked at the upper or lower side.
    BOOL IsHorz() const;
    /// Brings a size within the track sizes of @p limits; where they contradict each other the smallest counts.
    void ValidateSize(CSize* size, MINMAXINFO limits) const;
    /// Scales the first size, which is the template's, to a font. To be called before Create().
    /// @param dc with the font selected
    /// @param width average width of its characters for which the template was made, @param height likewise
    void SetFontSize(CDC* dc, double width, double height);

    /// Sets both sizes to the first one: that of the template.
    virtual void SetDefaultSize();
    /// Writes both sizes into the settings.
    virtual void WriteSizes();

    /// Begins a drag of the edge that was pressed; by itself the one away from the dock, from where the pointer is.
    void StartTracking();
    /// Ends the drag. @param accept whether the bar takes the size
    void StopTracking(BOOL accept);
    BOOL IsTracking() const;

    CSize CalcDynamicLayout(int length, DWORD mode) override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// Draws the line of a drag, or takes it away by drawing it again. @param rect on the screen
    virtual void OnInvertTracker(const CRect& rect);
    /// Draws the gripper; the context is that of the whole window.
    virtual void DrawGripper(CDC& dc);
    int GripperExtent() const override;

    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint point);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnWindowPosChanged(WINDOWPOS* place);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg void OnCancelMode();
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    vorn::BarSide Side() const;
    BOOL FinishCreation();
    void ReadSizes();
    bool ReadSize(const char* state, CSize& size) const;
    void WriteSize(const char* state, CSize size) const;
    CSize Least(vorn::BarSide side);
    MINMAXINFO Limits();
    MINMAXINFO DragLimits();
    CSize SizeAt(CPoint pointer);
    void ShowTracker(CSize size);
    void HideTracker();
    void TakeSize(CSize size);
    void SetSizeInForce(CSize size);
    void LayOutFrame();
    void ResetSize();

    CSize m_docked{0, 0};
    CSize m_floating{0, 0};
    double m_scaleX = 1;
    double m_scaleY = 1;
    bool m_gripper = false;
    bool m_created = false;

    bool m_tracking = false;
    vorn::BarPart m_edge = vorn::BarPart::Inside; ///< by which it is sized
    CPoint m_pressed{0, 0};                       ///< on the screen
    CRect m_start{0, 0, 0, 0};                    ///< the bar on the screen when the drag began
    CSize m_wanted{0, 0};
    CRect m_tracker{0, 0, 0, 0}; ///< shown now; empty: none
    HWND m_focusBefore = nullptr;
};
