#pragma once

#include "framework/dialog/CDialog.h"

/// Base of the system's common dialogs. Their window is bound to the object while it is open, so that derived classes
/// have OnInitDialog, message maps and the dialog's controls.
class HOSTFRAMEWORK_API CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* parent);

protected:
    /// Exchanges data, then lets the system's dialog close itself.
    void OnOK() override;
    void OnCancel() override;
};
