#pragma once

#include "framework/window/CWnd.h"

/// A text, picture or frame. Pictures set here stay the caller's; each setter returns the picture shown before.
class HOSTFRAMEWORK_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic();

    /// Creates the control; `style` holds SS_ and window styles. An id of 0xffff means "none".
    virtual BOOL Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xffff);

    HBITMAP SetBitmap(HBITMAP bitmap);
    HBITMAP GetBitmap() const;
    HICON SetIcon(HICON icon);
    HICON GetIcon() const;
    HCURSOR SetCursor(HCURSOR cursor);
    HCURSOR GetCursor();
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE file);
    HENHMETAFILE GetEnhMetaFile() const;

    /// Paints a control of style SS_OWNERDRAW. To be overridden; does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
