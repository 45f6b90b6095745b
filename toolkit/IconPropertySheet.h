#pragma once

#include "frame/core/Export.h"
#include "framework/include/afxdlgs.h"
#include "toolkit/WindowIcons.h"

/// A property sheet with an icon in its caption, the application's when nothing else is said.
class VORNCOMMON_API IconPropertySheet : public CPropertySheet
{
    DECLARE_DYNAMIC(IconPropertySheet)
public:
    /// @param selectPage index of the page shown first
    explicit IconPropertySheet(UINT captionId, CWnd* parent = nullptr, UINT selectPage = 0);
    explicit IconPropertySheet(LPCSTR caption, CWnd* parent = nullptr, UINT selectPage = 0);
    /// With the bitmaps of newer wizards, which stay the caller's.
    IconPropertySheet(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                      HPALETTE watermarkPalette = nullptr, HBITMAP header = nullptr);
    IconPropertySheet(LPCSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                      HPALETTE watermarkPalette = nullptr, HBITMAP header = nullptr);
    ~IconPropertySheet() override;

    BOOL OnInitDialog() override;

protected:
    /// Resource id of the icon, 128 here; it is looked for in the host first. Without such an icon nothing changes.
    virtual UINT GetIconID();

private:
    vorn::WindowIcons m_icons;
};
