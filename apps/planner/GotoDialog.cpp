#include "apps/planner/GotoDialog.h"

#include "apps/planner/resource.h"

#include <algorithm>

namespace vorn::planner
{

namespace
{

constexpr std::array kTips = {
    Tip{IDC_GOTO_BY_POSITION, 735}, Tip{IDC_GOTO_BY_PLACE, 739}, Tip{IDC_GOTO_LATITUDE, 735},
    Tip{IDC_GOTO_LONGITUDE, 736},   Tip{IDC_GOTO_PLACE, 739},
};

/// A text within which no line ends: with the blank of code page 1252 that holds together.
std::string Unbroken(std::string text)
{
    std::replace(text.begin(), text.end(), ' ', '\xA0');
    return text;
}

} // namespace

BEGIN_MESSAGE_MAP(GotoDialog, PlannerDialog)
ON_EN_CHANGE(IDC_GOTO_LATITUDE, &GotoDialog::OnPositionTyped)
ON_EN_CHANGE(IDC_GOTO_LONGITUDE, &GotoDialog::OnPositionTyped)
ON_CBN_SELCHANGE(IDC_GOTO_PLACE, &GotoDialog::OnPlaceTyped)
ON_CBN_EDITCHANGE(IDC_GOTO_PLACE, &GotoDialog::OnPlaceTyped)
ON_WM_SIZE()
END_MESSAGE_MAP()

GotoDialog::GotoDialog(PlannerData& data, CWnd* parent) : PlannerDialog(IDD_GOTO, data, parent, "GotoDialog")
{
}

std::span<const Tip> GotoDialog::Tips() const
{
    return kTips;
}

void GotoDialog::Fill()
{
    m_latitude.SubclassDlgItem(IDC_GOTO_LATITUDE, this);
    m_longitude.SubclassDlgItem(IDC_GOTO_LONGITUDE, this);
    m_place.SubclassDlgItem(IDC_GOTO_PLACE, this);
    for (const Place& place : m_data.places)
        m_place.AddString(place.ident.c_str());
    if (const Place* const place = FindPlace(m_data.places, m_data.plan.departure))
    {
        m_place.SelectString(-1, place->ident.c_str());
        m_latitude.SetWindowText(LatToString(place->position.Lat()));
        m_longitude.SetWindowText(LonToString(place->position.Lon()));
    }
    CheckRadioButton(IDC_GOTO_BY_POSITION, IDC_GOTO_BY_PLACE, IDC_GOTO_BY_PLACE);
    m_filled = true;
}

void GotoDialog::Arrange(Form& form)
{
    form.Align({IDC_GOTO_LATITUDE_LABEL, IDC_GOTO_LONGITUDE_LABEL});
    CPane position = form.Stack(FixedHeight);
    position << form.Field(IDC_GOTO_LATITUDE_LABEL, IDC_GOTO_LATITUDE, 70)
             << form.Field(IDC_GOTO_LONGITUDE_LABEL, IDC_GOTO_LONGITUDE, 70);
    CPane indented = pane(Horizontal, FixedHeight, 0);
    indented << itemSpaceFixed(Horizontal, form.X(12)) << position;
    CPane list = pane(Horizontal, Greedy, 0);
    list << itemSpaceFixed(Horizontal, form.X(12)) << form.Large(IDC_GOTO_PLACE, 80, 60);
    CreateRoot(Vertical, form.Y(5)) << form.Fixed(IDC_GOTO_BY_POSITION) << indented << form.Fixed(IDC_GOTO_BY_PLACE)
                                    << list << form.Buttons({IDOK, IDCANCEL});
}

void GotoDialog::OnSize(UINT type, int cx, int cy)
{
    PlannerDialog::OnSize(type, cx, cy);
    ShowChosen();
}

/// The list does not keep its choice in sight when it becomes lower.
void GotoDialog::ShowChosen()
{
    const HWND list = ::FindWindowEx(m_place.m_hWnd, nullptr, "ComboLBox", nullptr);
    if (m_place.m_hWnd == nullptr || list == nullptr)
        return;
    CRect client;
    ::GetClientRect(list, &client);
    const int visible = client.Height() / std::max(1, static_cast<int>(::SendMessage(list, LB_GETITEMHEIGHT, 0, 0)));
    const int chosen = m_place.GetCurSel();
    const int top = static_cast<int>(::SendMessage(list, LB_GETTOPINDEX, 0, 0));
    if (chosen >= top + visible && visible > 0)
        ::SendMessage(list, LB_SETTOPINDEX, static_cast<WPARAM>(chosen - visible + 1), 0);
}

void GotoDialog::OnPositionTyped()
{
    if (m_filled)
        CheckRadioButton(IDC_GOTO_BY_POSITION, IDC_GOTO_BY_PLACE, IDC_GOTO_BY_POSITION);
}

void GotoDialog::OnPlaceTyped()
{
    if (m_filled)
        CheckRadioButton(IDC_GOTO_BY_POSITION, IDC_GOTO_BY_PLACE, IDC_GOTO_BY_PLACE);
}

bool GotoDialog::Take()
{
    return IsChecked(IDC_GOTO_BY_POSITION) ? ByPosition() : ByPlace();
}

/// The plan stays as it is.
void GotoDialog::Keep()
{
}

bool GotoDialog::ByPosition()
{
    double lat = 0;
    double lon = 0;
    if (!ParseCoordinate(TextAt(IDC_GOTO_LATITUDE).GetString(), true, lat))
    {
        Refuse(IDC_GOTO_LATITUDE,
               "A latitude is written like " + Unbroken("N 47 26.9") + ", " + Unbroken("47 26 56 S") + " or -47.449.");
        return false;
    }
    if (!ParseCoordinate(TextAt(IDC_GOTO_LONGITUDE).GetString(), false, lon))
    {
        Refuse(IDC_GOTO_LONGITUDE, "A longitude is written like " + Unbroken("W 122 18.6") + ", " +
                                       Unbroken("122 18 33 E") + " or -122.309.");
        return false;
    }
    if (m_data.showOnChart)
        m_data.showOnChart(LatLon(lat, lon));
    return true;
}

bool GotoDialog::ByPlace()
{
    const CString ident = TextAt(IDC_GOTO_PLACE);
    const Place* const place = FindPlace(m_data.places, ident.GetString());
    if (place == nullptr)
    {
        Refuse(IDC_GOTO_PLACE, "There is no navaid or airport of this name.");
        return false;
    }
    if (m_data.showOnChart)
        m_data.showOnChart(place->position);
    return true;
}

void GotoDialog::Refuse(UINT id, const std::string& why)
{
    m_refusal.Show(*this, id, "Not understood", why.c_str());
}

} // namespace vorn::planner
