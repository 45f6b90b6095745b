#include "apps/planner/NewFlightWizard.h"

#include "apps/planner/Distances.h"
#include "apps/planner/PlannerDialog.h"
#include "apps/planner/resource.h"

#include <algorithm>

namespace vorn::planner
{

namespace
{

constexpr double kPersonWeight = 170; // pounds
constexpr int kSeatsInFront = 2;
constexpr int kSeats = 4;
constexpr LRESULT kStay = -1;

std::string Summary(const Plan& plan, const std::vector<Place>& places)
{
    const std::vector<Leg> legs = LegsOf(RouteOf(plan, places), plan.speed, plan.flow);
    const FuelSums fuel = FuelFor(plan, places);
    const LoadingSums loading = LoadingOf(plan, fuel.trip);
    const std::string fault = LoadingFault(loading);
    std::string text = plan.departure + " to " + plan.destination + ": " + SummaryText(legs) + "\r\n";
    text += "Fuel required: " + NumberText(fuel.required, 1) + " gal of " + NumberText(fuel.onBoard, 1) + " gal\r\n";
    text += "Takeoff: " + NumberText(loading.takeoff.weight, 0) + " lb at " + NumberText(loading.takeoff.Arm(), 1) +
            " in\r\n";
    return text + (fault.empty() ? "Weight and balance are within limits." : fault);
}

} // namespace

NewRoutePage::NewRoutePage(Plan& plan, const std::vector<Place>& places)
    : PlannerPage(IDD_NEW_ROUTE), m_plan(plan), m_places(places)
{
}

void NewRoutePage::Fill()
{
    for (const Place& place : m_places)
    {
        for (const int id : {IDC_NEW_FROM, IDC_NEW_TO})
            static_cast<CComboBox&>(*GetDlgItem(id)).AddString(place.ident.c_str());
    }
    SetDlgItemText(IDC_NEW_FROM, m_plan.departure.c_str());
    SetDlgItemText(IDC_NEW_TO, m_plan.destination.c_str());
}

void NewRoutePage::Arrange(Form& form)
{
    form.Align({IDC_NEW_FROM_LABEL, IDC_NEW_TO_LABEL});
    CreateRoot(Vertical, form.Y(5)) << item(IDC_NEW_INTRO, FixedHeight, 0, 0, -1)
                                    << form.Field(IDC_NEW_FROM_LABEL, IDC_NEW_FROM, 60)
                                    << form.Field(IDC_NEW_TO_LABEL, IDC_NEW_TO, 60) << itemSpace(Vertical);
}

BOOL NewRoutePage::OnSetActive()
{
    GetParentSheet()->SetWizardButtons(PSWIZB_NEXT);
    return PlannerPage::OnSetActive();
}

LRESULT NewRoutePage::OnWizardNext()
{
    for (const int id : {IDC_NEW_FROM, IDC_NEW_TO})
    {
        CString ident;
        GetDlgItemText(id, ident);
        if (FindPlace(m_places, ident.GetString()) == nullptr)
        {
            AfxMessageBox("There is no navaid or airport \"" + ident + "\".", MB_OK | MB_ICONEXCLAMATION);
            GotoDlgCtrl(GetDlgItem(id));
            return kStay;
        }
        (id == IDC_NEW_FROM ? m_plan.departure : m_plan.destination) = ident.GetString();
    }
    return PlannerPage::OnWizardNext();
}

NewAircraftPage::NewAircraftPage(Plan& plan) : PlannerPage(IDD_NEW_AIRCRAFT), m_plan(plan)
{
}

void NewAircraftPage::Fill()
{
    TakeNumber(m_persons, *this, IDC_NEW_PERSONS, 0, 2, "");
    TakeNumber(m_baggage, *this, IDC_NEW_BAGGAGE, 0, m_plan.weights[kBaggage], " lb");
    TakeNumber(m_fuel, *this, IDC_NEW_FUEL, 1, m_plan.onBoard, " gal");
}

void NewAircraftPage::Arrange(Form& form)
{
    form.Align({IDC_NEW_PERSONS_LABEL, IDC_NEW_BAGGAGE_LABEL, IDC_NEW_FUEL_LABEL});
    CreateRoot(Vertical, form.Y(5)) << item(IDC_NEW_INTRO, FixedHeight, 0, 0, -1)
                                    << form.Field(IDC_NEW_PERSONS_LABEL, IDC_NEW_PERSONS, 50)
                                    << form.Field(IDC_NEW_BAGGAGE_LABEL, IDC_NEW_BAGGAGE, 50)
                                    << form.Field(IDC_NEW_FUEL_LABEL, IDC_NEW_FUEL, 50) << itemSpace(Vertical);
}

BOOL NewAircraftPage::OnSetActive()
{
    GetParentSheet()->SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
    return PlannerPage::OnSetActive();
}

LRESULT NewAircraftPage::OnWizardNext()
{
    const int persons = std::clamp(static_cast<int>(m_persons.GetValue()), 1, kSeats);
    const int inFront = std::min(persons, kSeatsInFront);
    m_plan.weights[kFrontSeats] = kPersonWeight * inFront;
    m_plan.weights[kRearSeats] = kPersonWeight * (persons - inFront);
    m_plan.weights[kBaggage] = std::max(0.0, m_baggage.GetValue());
    m_plan.onBoard = std::clamp(m_fuel.GetValue(), 0.0, kTankCapacity);
    m_plan.weights[kFuel] = m_plan.onBoard * kAvgasWeight;
    return PlannerPage::OnWizardNext();
}

NewSummaryPage::NewSummaryPage(const Plan& plan, const std::vector<Place>& places)
    : PlannerPage(IDD_NEW_SUMMARY), m_plan(plan), m_places(places)
{
}

void NewSummaryPage::Fill()
{
}

void NewSummaryPage::Arrange(Form& form)
{
    CreateRoot(Vertical, form.Y(5)) << item(IDC_NEW_INTRO, FixedHeight, 0, 0, -1)
                                    << form.Large(IDC_NEW_SUMMARY, 100, 40);
}

BOOL NewSummaryPage::OnSetActive()
{
    GetParentSheet()->SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
    SetDlgItemText(IDC_NEW_SUMMARY, Summary(m_plan, m_places).c_str());
    return PlannerPage::OnSetActive();
}

NewFlightWizard::NewFlightWizard(PlannerData& data, CWnd* parent)
    : LayoutPropertySheet(IDS_NEW_FLIGHT, parent, 0, "NewFlight", false), m_data(data), m_plan(data.plan),
      m_route(m_plan, data.places), m_aircraft(m_plan), m_summary(m_plan, data.places)
{
    m_plan.via.clear();
    m_plan.remarks.clear();
    m_plan.notes.clear();
    AddPage(&m_route);
    AddPage(&m_aircraft);
    AddPage(&m_summary);
    SetWizardMode();
}

bool NewFlightWizard::Run()
{
    if (DoModal() != ID_WIZFINISH)
        return false;
    m_data.plan = m_plan;
    m_data.Store();
    return true;
}

/// The row of tabs is hidden but has its height above the pages: it is taken away.
BOOL NewFlightWizard::OnInitDialog()
{
    const BOOL result = LayoutPropertySheet::OnInitDialog();
    if (CTabCtrl* const tabs = GetTabControl())
    {
        tabs->SetItemSize(CSize(0, 1));
        const CRect client = GetRect();
        Resize(client.Width(), client.Height());
    }
    return result;
}

} // namespace vorn::planner
