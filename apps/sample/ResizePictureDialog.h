#pragma once

#include <VornCommon.h>

/// Asks for a picture's new size and how it is to be made.
class ResizePictureDialog : public ToolTipDlg
{
public:
    ResizePictureDialog(CWnd* parent, int width, int height);

    int Width() const;
    int Height() const;
    bool IsByArea() const;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnWidth();
    afx_msg void OnHeight();
    DECLARE_MESSAGE_MAP()

private:
    int Typed(int id) const;
    void Follow(int typedId, int otherId, int typedBefore, int otherBefore);
    void LetPassWhatFits();

    int m_oldWidth;
    int m_oldHeight;
    int m_width;
    int m_height;
    bool m_isByArea = true;
    bool m_isFollowing = false;
};
