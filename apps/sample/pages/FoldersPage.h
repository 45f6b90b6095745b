#pragma once

#include "apps/sample/core/ReportTable.h"
#include "apps/sample/pages/Page.h"

/// Where the running application's files live: all defined paths in both layouts, and the setting behind each.
class FoldersPage : public Page
{
public:
    const char* Name() const override;
    void Refresh() override;
    int HeightFor(int width, const Theme& theme) const override;
    void Paint(CDC& dc, const CRect& area, const Theme& theme) const override;
    std::string Summary() const override;

private:
    vorn::ReportTable m_folders;
};
