#pragma once

/// @file
/// A form view that lays out its controls.
#include "framework/frames/CFormView.h"
#include "toolkit/layout/LayoutMgr.h"

namespace LayoutManagement
{

/// A form view whose OnInitialUpdate() declares its panes, after that of this class, and calls UpdateLayout(false). It
/// is as large as its window and never scrolls. A view that is smaller than its panes' minimum grows to it.
///
/// A view that is a window of its own keeps its placement in a section of the application's profile; one that stands in
/// a frame has its place from there and keeps none.
class VORNCOMMON_API LayoutFormView : public CFormView, protected LayoutMgr
{
    DECLARE_DYNAMIC(LayoutFormView)

public:
    /// @param section null or empty for no placement
    LayoutFormView(UINT nIDTemplate, LPCSTR section);
    ~LayoutFormView() override;

    void OnInitialUpdate() override;

    /// @name Questions of screen readers, answered as by the form view
    /// @{
    HRESULT accHitTest(long left, long top, VARIANT* child) override;
    HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT get_accChild(VARIANT child, IDispatch** dispatch) override;
    HRESULT get_accChildCount(long* count) override;
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    /// @}

    /// The client rectangle.
    CRect GetRect() override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnDestroy();

    CString m_strSection;

    DECLARE_MESSAGE_MAP()

private:
    bool KeepsPlacement() const;
};

} // namespace LayoutManagement
