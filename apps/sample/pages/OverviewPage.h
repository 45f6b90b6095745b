#pragma once

#include "apps/sample/core/ReportTable.h"
#include "apps/sample/pages/Page.h"

/// The first page: sample values in the user's units, the settings in force with their source, and the programs of
/// the family that were found, and how often this one was used.
class OverviewPage : public Page
{
public:
    const char* Name() const override;
    void Refresh() override;
    int HeightFor(int width, const Theme& theme) const override;
    void Paint(CDC& dc, const CRect& area, const Theme& theme) const override;
    std::string Summary() const override;

private:
    struct Places
    {
        CRect values;
        CRect settings;
        CRect programs;
        CRect usage;
    };

    Places PlacesIn(const CRect& area, const Theme& theme) const;

    vorn::ReportTable m_values;
    vorn::ReportTable m_settings;
    vorn::ReportTable m_programs;
    vorn::ReportTable m_usage;
};
