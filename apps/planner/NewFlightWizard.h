#pragma once

#include "apps/planner/PlannerPage.h"

namespace vorn::planner
{

/// Where the new flight begins and ends.
class NewRoutePage : public PlannerPage
{
public:
    NewRoutePage(Plan& plan, const std::vector<Place>& places);
    BOOL OnSetActive() override;
    LRESULT OnWizardNext() override;

protected:
    void Fill() override;
    void Arrange(Form& form) override;

private:
    Plan& m_plan;
    const std::vector<Place>& m_places;
};

/// Persons, baggage and fuel.
class NewAircraftPage : public PlannerPage
{
public:
    explicit NewAircraftPage(Plan& plan);
    BOOL OnSetActive() override;
    LRESULT OnWizardNext() override;

protected:
    void Fill() override;
    void Arrange(Form& form) override;

private:
    Plan& m_plan;
    FloatEdit m_persons;
    FloatEdit m_baggage;
    FloatEdit m_fuel;
};

/// What came of it.
class NewSummaryPage : public PlannerPage
{
public:
    NewSummaryPage(const Plan& plan, const std::vector<Place>& places);
    BOOL OnSetActive() override;

protected:
    void Fill() override;
    void Arrange(Form& form) override;

private:
    const Plan& m_plan;
    const std::vector<Place>& m_places;
};

/// Begins a flight step by step. The plan changes when the last step is finished, and not before.
class NewFlightWizard : public LayoutManagement::LayoutPropertySheet
{
public:
    NewFlightWizard(PlannerData& data, CWnd* parent);

    /// Runs the wizard. True when the plan was taken over.
    bool Run();
    BOOL OnInitDialog() override;

private:
    PlannerData& m_data;
    Plan m_plan;
    NewRoutePage m_route;
    NewAircraftPage m_aircraft;
    NewSummaryPage m_summary;
};

} // namespace vorn::planner
