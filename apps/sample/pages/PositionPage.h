#pragma once

#include "apps/sample/core/ReportTable.h"
#include "apps/sample/pages/Page.h"
#include "apps/sample/ui/ControlRows.h"

/// A place, a time, a duration and an altitude as the pilot reads them: typed in, or the place under the pointer on a
/// small map of the world.
class PositionPage : public Page
{
public:
    PositionPage();

    const char* Name() const override;
    void Refresh() override;
    int HeightFor(int width, const Theme& theme) const override;
    void Paint(CDC& dc, const CRect& area, const Theme& theme) const override;
    std::string Summary() const override;
    void Activate(CWnd& view, bool active) override;
    void PlaceControls(const CRect& area, const Theme& theme) override;
    bool OnControl(UINT id, UINT code) override;
    bool OnPointer(const CRect& area, CPoint point, const Theme& theme) override;

private:
    struct Places
    {
        CRect map;
        CRect controls;
        CRect values;
    };

    Places PlacesIn(const CRect& area, const Theme& theme) const;
    void StoreChoices() const;
    void FillTable();
    void AddPositions();
    void AddTimes();
    void AddAltitudes();
    void PaintMap(CDC& dc, const CRect& map, const Theme& theme) const;

    ControlRows m_rows;
    vorn::ReportTable m_values;
    double m_latitude;
    double m_longitude;
    bool m_pointerOnMap = false;
    double m_pointerLatitude = 0.0;
    double m_pointerLongitude = 0.0;
};
