#include "apps/sample/pages/CurrencyPage.h"

#include "apps/sample/model/TypedNumber.h"
#include "apps/sample/ui/TableCard.h"

#include <array>

namespace
{

enum ControlId : UINT
{
    kDaysToExpiry = 2100,
};

constexpr int kGap = 14; // pixels at 96 dpi
constexpr double kSecondsPerDay = 86400.0;
constexpr int kCycleDays = 28; // an AIRAC cycle
constexpr double kMostDays = 36500.0;

struct Cycle
{
    const char* title;
    double daysToExpiry;
};

constexpr std::array kCycles = {
    Cycle{"In force", 12.5},
    Cycle{"Late: ran out three days ago", -3.0},
    Cycle{"Expired: ran out ten days ago", -10.0},
};

CTime InDays(double days)
{
    return CTime(CTime::GetCurrentTime().GetTime() + static_cast<__time64_t>(days * kSecondsPerDay));
}

const char* StateOf(Date& expiry)
{
    if (!expiry.isExpired())
        return "valid";
    return expiry.isLate() ? "late" : "expired";
}

vorn::ReportTable CycleTable(std::string title, double daysToExpiry)
{
    Date expiry(InDays(daysToExpiry));
    Date effective(InDays(daysToExpiry - kCycleDays));
    vorn::ReportTable table{std::move(title), "", {{"What"}, {"Text"}}, {}};
    table.AddRow({"State", StateOf(expiry)});
    table.AddRow({"Effective", effective.GetNavEffDate().GetString()});
    table.AddColored({"Enroute data expires", expiry.GetNavExpDate().GetString()}, expiry.GetNavTextColor());
    table.AddColored({"Terminal data expires", expiry.GetTermExpDate().GetString()}, expiry.GetTCTextColor());
    CString julian;
    julian.Format("%.2f", expiry.getJDate());
    table.AddRow({"Julian day, to a quarter day", julian.GetString()});
    return table;
}

} // namespace

CurrencyPage::CurrencyPage()
{
    m_rows.AddEdit(kDaysToExpiry, "Days to expiry", "2.5");
}

const char* CurrencyPage::Name() const
{
    return "Data currency";
}

void CurrencyPage::Refresh()
{
    m_cycles.clear();
    const double typed = TypedNumber(m_rows.Text(kDaysToExpiry)).value_or(0.0);
    m_cycles.push_back(CycleTable("As typed", std::clamp(typed, -kMostDays, kMostDays)));
    for (const Cycle& cycle : kCycles)
        m_cycles.push_back(CycleTable(cycle.title, cycle.daysToExpiry));
}

void CurrencyPage::Activate(CWnd& view, bool active)
{
    m_rows.Show(view, active);
}

bool CurrencyPage::OnControl(UINT id, UINT code)
{
    if (id != kDaysToExpiry || code != EN_CHANGE)
        return false;
    Refresh();
    return true;
}

CurrencyPage::Places CurrencyPage::PlacesIn(const CRect& area, const Theme& theme) const
{
    const int gap = theme.Px(kGap);
    Places places;
    int top = area.top + gap;
    places.controls.SetRect(area.left + gap, top, area.right - gap, top + m_rows.Height(theme));
    top = places.controls.bottom;
    for (const vorn::ReportTable& cycle : m_cycles)
    {
        const int height = TableCard(cycle, theme).Height();
        places.cards.emplace_back(area.left + gap, top, area.right - gap, top + height);
        top += height + gap;
    }
    return places;
}

int CurrencyPage::HeightFor(int width, const Theme& theme) const
{
    return PlacesIn(CRect(0, 0, width, 0), theme).cards.back().bottom + theme.Px(kGap);
}

void CurrencyPage::PlaceControls(const CRect& area, const Theme& theme)
{
    m_rows.Place(PlacesIn(area, theme).controls, theme);
}

void CurrencyPage::Paint(CDC& dc, const CRect& area, const Theme& theme) const
{
    const Places places = PlacesIn(area, theme);
    m_rows.PaintLabels(dc, places.controls, theme);
    for (std::size_t index = 0; index < m_cycles.size(); ++index)
        TableCard(m_cycles[index], theme).Draw(dc, places.cards[index]);
}

std::string CurrencyPage::Summary() const
{
    std::string text;
    for (const vorn::ReportTable& cycle : m_cycles)
        text.append(vorn::ToText(cycle)).push_back('\n');
    return text;
}
