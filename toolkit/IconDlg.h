#pragma once

#include "frame/core/Export.h"
#include "framework/include/afxwin.h"
#include "toolkit/WindowIcons.h"

/// A dialog with an icon in its caption, the application's when nothing else is said.
class VORNCOMMON_API IconDlg : public CDialog
{
    DECLARE_DYNAMIC(IconDlg)
public:
    IconDlg();
    explicit IconDlg(UINT id, CWnd* parent = nullptr);
    explicit IconDlg(LPCSTR name, CWnd* parent = nullptr);
    ~IconDlg() override;

    BOOL OnInitDialog() override;

protected:
    /// Resource id of the icon, 128 here; it is looked for in the host first. Without such an icon nothing changes.
    virtual UINT GetIconID();

private:
    vorn::WindowIcons m_icons;
};
