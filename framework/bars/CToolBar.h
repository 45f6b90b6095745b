#pragma once

/// @file
/// Toolbar of a frame: buttons with pictures.
#include "framework/bars/CControlBar.h"
#include "framework/gdi/CBitmap.h"

/// A toolbar with one row of buttons (one column at the left and right sides), each with the id of a command. The
/// pictures are strips in one bitmap, in the order of the buttons (separators have none). Buttons are switched by
/// command-UI updates; a button whose command nobody handles is disabled.
class HOSTFRAMEWORK_API CToolBar : public CControlBar
{
    DECLARE_DYNAMIC(CToolBar)

public:
    CToolBar();
    ~CToolBar() override;

    BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_TOP, UINT id = 0xE800);
    /// @param controlStyle TBSTYLE_ styles of the system's control
    BOOL CreateEx(CWnd* parent, DWORD controlStyle = TBSTYLE_FLAT, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP,
                  CRect borders = CRect(0, 0, 0, 0), UINT id = 0xE800);

    /// Sizes of a button and of its picture in pixels (at first 23 x 22 and 16 x 15).
    void SetSizes(SIZE button, SIZE image);
    /// Height of the bar, whatever its buttons' height is; 0: theirs.
    void SetHeight(int height);
    /// Buttons and bitmap from resources of the same id (types "toolbar", 241, and bitmap).
    BOOL LoadToolBar(UINT id);
    BOOL LoadToolBar(LPCTSTR name);
    BOOL LoadBitmap(UINT id);
    BOOL LoadBitmap(LPCTSTR name);
    /// Takes the bitmap over.
    BOOL SetBitmap(HBITMAP images);
    /// @param ids command ids, ID_SEPARATOR for gaps; null: buttons to be set by SetButtonInfo()
    BOOL SetButtons(const UINT* ids, int count);

    /// @return index of the first button of that id, -1 for none
    int CommandToIndex(UINT id) const;
    UINT GetItemID(int index) const;
    void GetItemRect(int index, LPRECT rect) const;
    /// TBBS_ bits.
    UINT GetButtonStyle(int index) const;
    void SetButtonStyle(int index, UINT style);
    /// @param image number of the picture; of a separator its width in pixels
    void GetButtonInfo(int index, UINT& id, UINT& style, int& image) const;
    void SetButtonInfo(int index, UINT id, UINT style, int image);
    BOOL SetButtonText(int index, LPCTSTR text);
    CString GetButtonText(int index) const;
    void GetButtonText(int index, CString& text) const;

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    bool GetButton(int index, TBBUTTON& button) const;
    void ReplaceButton(int index, const TBBUTTON& button);
    void OnBarStyleChange(DWORD oldStyle, DWORD newStyle) override;
    bool IsFreeArea(CPoint point) const override;
    /// Room of the buttons in one row or one column.
    CSize ButtonsSize(bool horizontal) const;
    /// One below the other while the bar stands, else side by side.
    void WrapButtons();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);

    CBitmap m_images;
    SIZE m_buttonSize{23, 22};
    SIZE m_imageSize{16, 15};
    int m_height = 0;

    DECLARE_MESSAGE_MAP()
};
