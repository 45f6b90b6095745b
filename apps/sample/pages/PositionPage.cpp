#include "apps/sample/pages/PositionPage.h"

#include "apps/sample/model/TypedNumber.h"
#include "apps/sample/ui/TableCard.h"

#include <algorithm>
#include <array>

namespace
{

enum ControlId : UINT
{
    kLatitude = 2000,
    kLongitude,
    kSeconds,
    kDecimals,
    kTypedTime,
    kDuration,
    kAltitude,
};

// Pixels at 96 dpi.
constexpr int kGap = 14;
constexpr int kMapWidth = 420;
constexpr int kMapMargin = 12;

constexpr double kSeattleLatitude = 47.449; // Seattle-Tacoma, aerodrome reference point, rounded
constexpr double kSeattleLongitude = -122.3093;

constexpr std::array kSpecialAltitudes = {-5000, -4999, -4998, -4997, -4996, -4995};

VornCommonApp& Settings()
{
    return *VornCommonApp::Inst();
}

bool ShowsSeconds()
{
    return Settings().GetSettingInt("General", "Show seconds", 0) != 0;
}

const char* DecimalsKey(bool seconds)
{
    return seconds ? "LatLonPrecSeconds" : "LatLonPrecMinutes";
}

std::string Fixed(double value)
{
    CString text;
    text.Format("%.5f", value);
    return text.GetString();
}

std::string DateAndTime(const CTime& time)
{
    return time.FormatGmt("%Y-%m-%d %H:%M").GetString();
}

} // namespace

PositionPage::PositionPage() : m_latitude(kSeattleLatitude), m_longitude(kSeattleLongitude)
{
    m_rows.AddEdit(kLatitude, "Latitude, degrees", Fixed(m_latitude));
    m_rows.AddEdit(kLongitude, "Longitude, degrees", Fixed(m_longitude));
    m_rows.AddCheck(kSeconds, "Show &seconds", false);
    m_rows.AddEdit(kDecimals, "Decimals", "1");
    m_rows.AddEdit(kTypedTime, "Time today, HHMM", "0745");
    m_rows.AddEdit(kDuration, "Duration, hours", "1.51");
    m_rows.AddEdit(kAltitude, "Altitude, feet", "18000");
}

const char* PositionPage::Name() const
{
    return "Position and time";
}

void PositionPage::Refresh()
{
    const bool seconds = ShowsSeconds();
    m_rows.SetChecked(kSeconds, seconds);
    m_rows.SetText(kDecimals, std::to_string(Settings().GetSettingInt("General", DecimalsKey(seconds), 1)));
    FillTable();
}

void PositionPage::Activate(CWnd& view, bool active)
{
    m_rows.Show(view, active);
}

bool PositionPage::OnControl(UINT id, UINT code)
{
    if (id == kSeconds && code == BN_CLICKED)
    {
        Settings().WriteSettingInt("General", "Show seconds", m_rows.IsChecked(kSeconds) ? 1 : 0);
        Refresh(); // the other form has decimals of its own
        return true;
    }
    if (code != EN_CHANGE || id < kLatitude || id > kAltitude)
        return false;
    if (id == kDecimals)
        StoreChoices();
    m_latitude = TypedNumber(m_rows.Text(kLatitude)).value_or(m_latitude);
    m_longitude = TypedNumber(m_rows.Text(kLongitude)).value_or(m_longitude);
    FillTable();
    return true;
}

void PositionPage::StoreChoices() const
{
    constexpr double kMostDecimals = 9;
    const std::optional<double> decimals = TypedNumber(m_rows.Text(kDecimals));
    if (decimals && *decimals >= 0 && *decimals <= kMostDecimals)
        Settings().WriteSettingInt("General", DecimalsKey(ShowsSeconds()), static_cast<int>(*decimals));
}

void PositionPage::FillTable()
{
    m_values = {"As the pilot reads it", "", {{"Value"}, {"Text"}}, {}};
    AddPositions();
    AddTimes();
    AddAltitudes();
}

void PositionPage::AddPositions()
{
    m_values.AddHeading("Position");
    m_values.AddRow({"Typed latitude", LatToString(m_latitude).GetString()}, vorn::Tone::Accent);
    m_values.AddRow({"Typed longitude", LonToString(m_longitude).GetString()}, vorn::Tone::Accent);
    const bool on = m_pointerOnMap;
    m_values.AddRow({"Latitude under the pointer", on ? LatToString(m_pointerLatitude).GetString() : "off the map"},
                    on ? vorn::Tone::Plain : vorn::Tone::Muted);
    m_values.AddRow({"Longitude under the pointer", on ? LonToString(m_pointerLongitude).GetString() : "off the map"},
                    on ? vorn::Tone::Plain : vorn::Tone::Muted);
    m_values.AddRow({"Longitude as a variation", CourseToString(m_longitude, true).GetString()});
}

void PositionPage::AddTimes()
{
    m_values.AddHeading("Time");
    const CTime now = CTime::GetCurrentTime();
    CTime local = now;
    ConvertToLocal(local);
    m_values.AddRow({"Now, Zulu", DateAndTime(now) + "Z"});
    m_values.AddRow({"Now, local", DateAndTime(local) + (IsDaylightTime(local) ? " daylight time" : "")});

    CString typed = m_rows.Text(kTypedTime).c_str();
    ValidateTime(typed);
    CTime chosen(ParseHHMM(static_cast<int>(now.GetTime()), typed));
    SetTimeWithin24Hours(chosen);
    m_values.AddRow({"Typed time, next due, Zulu", DateAndTime(chosen) + "Z"});

    const double hours = TypedNumber(m_rows.Text(kDuration)).value_or(0.0);
    m_values.AddRow({"Duration", TimeToString(hours, false, false).GetString()});
    m_values.AddRow({"Duration to the second", TimeToString(hours, false, true).GetString()});
    m_values.AddRow({"Duration in words", TimeToString(hours, true, false).GetString()});
}

void PositionPage::AddAltitudes()
{
    m_values.AddHeading("Altitude");
    const double typed = TypedNumber(m_rows.Text(kAltitude)).value_or(0.0);
    const int feet = static_cast<int>(std::clamp(typed, -1e6, 1e6));
    m_values.AddRow({"Altitude", AltToString(feet).GetString()});
    m_values.AddRow({"Altitude or flight level", FLAltToString(feet).GetString()}, vorn::Tone::Accent);
    for (const int code : kSpecialAltitudes)
        m_values.AddRow({"Code " + std::to_string(code), AltToString(code).GetString()}, vorn::Tone::Muted);
}

PositionPage::Places PositionPage::PlacesIn(const CRect& area, const Theme& theme) const
{
    const int gap = theme.Px(kGap);
    Places places;
    const int width = std::min(theme.Px(kMapWidth), area.Width() / 2 - gap);
    places.map.SetRect(area.left + gap, area.top + gap, area.left + gap + width, area.top + gap + width / 2);
    places.controls.SetRect(places.map.left, places.map.bottom + gap, places.map.right,
                            places.map.bottom + gap + m_rows.Height(theme));
    places.values.SetRect(places.map.right + gap, area.top + gap, area.right - gap,
                          area.top + gap + TableCard(m_values, theme).Height());
    return places;
}

int PositionPage::HeightFor(int width, const Theme& theme) const
{
    const Places places = PlacesIn(CRect(0, 0, width, 0), theme);
    return std::max(places.controls.bottom, places.values.bottom) + theme.Px(kGap);
}

void PositionPage::PlaceControls(const CRect& area, const Theme& theme)
{
    m_rows.Place(PlacesIn(area, theme).controls, theme);
}

void PositionPage::Paint(CDC& dc, const CRect& area, const Theme& theme) const
{
    const Places places = PlacesIn(area, theme);
    PaintMap(dc, places.map, theme);
    m_rows.PaintLabels(dc, places.controls, theme);
    TableCard(m_values, theme).Draw(dc, places.values);
}

// The world with its meridians and parallels every 30 degrees, 180 W to 180 E across, and the typed place as a cross.
void PositionPage::PaintMap(CDC& dc, const CRect& map, const Theme& theme) const
{
    dc.FillSolidRect(map, theme.border);
    CRect inside(map);
    inside.DeflateRect(1, 1);
    dc.FillSolidRect(inside, theme.card);
    for (int meridian = -150; meridian <= 150; meridian += 30)
    {
        const int x = map.left + MulDiv(meridian + 180, map.Width(), 360);
        dc.FillSolidRect(CRect(x, map.top, x + 1, map.bottom), meridian == 0 ? theme.muted : theme.border);
    }
    for (int parallel = -60; parallel <= 60; parallel += 30)
    {
        const int y = map.top + MulDiv(90 - parallel, map.Height(), 180);
        dc.FillSolidRect(CRect(map.left, y, map.right, y + 1), parallel == 0 ? theme.muted : theme.border);
    }
    if (m_latitude < -90 || m_latitude > 90 || m_longitude < -180 || m_longitude > 180)
        return;
    const int x = map.left + static_cast<int>((m_longitude + 180) / 360 * map.Width());
    const int y = map.top + static_cast<int>((90 - m_latitude) / 180 * map.Height());
    const int arm = theme.Px(7);
    dc.FillSolidRect(CRect(x - arm, y - 1, x + arm + 1, y + 1), theme.accent);
    dc.FillSolidRect(CRect(x - 1, y - arm, x + 1, y + arm + 1), theme.accent);
}

bool PositionPage::OnPointer(const CRect& area, CPoint point, const Theme& theme)
{
    const CRect map = PlacesIn(area, theme).map;
    const bool before = m_pointerOnMap;
    m_pointerOnMap = map.PtInRect(point) != FALSE;
    if (m_pointerOnMap)
    {
        m_pointerLongitude = -180 + 360.0 * (point.x - map.left) / map.Width();
        m_pointerLatitude = 90 - 180.0 * (point.y - map.top) / map.Height();
    }
    if (!m_pointerOnMap && !before)
        return false;
    FillTable();
    return true;
}

std::string PositionPage::Summary() const
{
    return vorn::ToText(m_values);
}
