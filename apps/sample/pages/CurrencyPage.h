#pragma once

#include "apps/sample/core/ReportTable.h"
#include "apps/sample/pages/Page.h"
#include "apps/sample/ui/ControlRows.h"

/// How current navigation data is: cycles that are valid, late and expired, with the texts and colours in which the
/// family's applications show them, and one whose dates are typed in.
class CurrencyPage : public Page
{
public:
    CurrencyPage();

    const char* Name() const override;
    void Refresh() override;
    int HeightFor(int width, const Theme& theme) const override;
    void Paint(CDC& dc, const CRect& area, const Theme& theme) const override;
    std::string Summary() const override;
    void Activate(CWnd& view, bool active) override;
    void PlaceControls(const CRect& area, const Theme& theme) override;
    bool OnControl(UINT id, UINT code) override;

private:
    struct Places
    {
        CRect controls;
        std::vector<CRect> cards;
    };

    Places PlacesIn(const CRect& area, const Theme& theme) const;

    ControlRows m_rows;
    std::vector<vorn::ReportTable> m_cycles;
};
