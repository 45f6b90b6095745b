#include "apps/sample/pages/OverviewPage.h"

#include "apps/sample/model/FamilyPrograms.h"
#include "apps/sample/model/SampleValues.h"
#include "apps/sample/model/SettingsInForce.h"
#include "apps/sample/model/Usage.h"
#include "apps/sample/ui/TableCard.h"

#include <algorithm>

namespace
{

constexpr int kGap = 14;         // between cards, in pixels at 96 dpi
constexpr int kTwoColumns = 860; // below this width the cards stand under one another
constexpr int kValuesShare = 52; // percent of the width for the left column

} // namespace

const char* OverviewPage::Name() const
{
    return "Overview";
}

void OverviewPage::Refresh()
{
    m_values = SampleValuesTable();
    m_settings = SettingsInForceTable();
    m_programs = FamilyProgramsTable();
    m_usage = UsageTable();
}

OverviewPage::Places OverviewPage::PlacesIn(const CRect& area, const Theme& theme) const
{
    const int gap = theme.Px(kGap);
    const bool twoColumns = area.Width() >= theme.Px(kTwoColumns);
    const int left = area.left + gap;
    const int leftWidth = twoColumns ? MulDiv(area.Width() - 3 * gap, kValuesShare, 100) : area.Width() - 2 * gap;
    const int right = twoColumns ? left + leftWidth + gap : left;
    const int rightEdge = area.right - gap;

    Places places;
    places.values.SetRect(left, area.top + gap, left + leftWidth, area.top + gap + TableCard(m_values, theme).Height());
    const int settingsTop = twoColumns ? places.values.top : places.values.bottom + gap;
    places.settings.SetRect(right, settingsTop, rightEdge, settingsTop + TableCard(m_settings, theme).Height());
    const int programsTop = places.settings.bottom + gap;
    places.programs.SetRect(right, programsTop, rightEdge, programsTop + TableCard(m_programs, theme).Height());
    const int usageTop = places.programs.bottom + gap;
    places.usage.SetRect(right, usageTop, rightEdge, usageTop + TableCard(m_usage, theme).Height());
    return places;
}

int OverviewPage::HeightFor(int width, const Theme& theme) const
{
    const Places places = PlacesIn(CRect(0, 0, width, 0), theme);
    return std::max(places.values.bottom, places.usage.bottom) + theme.Px(kGap);
}

void OverviewPage::Paint(CDC& dc, const CRect& area, const Theme& theme) const
{
    const Places places = PlacesIn(area, theme);
    TableCard(m_values, theme).Draw(dc, places.values);
    TableCard(m_settings, theme).Draw(dc, places.settings);
    TableCard(m_programs, theme).Draw(dc, places.programs);
    TableCard(m_usage, theme).Draw(dc, places.usage);
}

std::string OverviewPage::Summary() const
{
    return vorn::ToText(m_values) + '\n' + vorn::ToText(m_settings) + '\n' + vorn::ToText(m_programs) + '\n' +
           vorn::ToText(m_usage);
}
