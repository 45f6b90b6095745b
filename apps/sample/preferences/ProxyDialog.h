#pragma once

#include <VornCommon.h>

namespace vorn::preferences
{

/// The library's dialog of the proxies, with tips at its controls.
class ProxyDialog : public ProxyConfigDlg
{
public:
    ProxyDialog(ProxySet* proxies, CWnd* parent);

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

    const ToolTipCtrlEx& Tips() const;

protected:
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    ToolTipCtrlEx m_tips;
};

} // namespace vorn::preferences
