#pragma once

#include <VornCommon.h>

/// Names the sample, the libraries that it stands on, and their versions.
class AboutDialog : public CDialog
{
public:
    explicit AboutDialog(CWnd* parent);

protected:
    BOOL OnInitDialog() override;
};
