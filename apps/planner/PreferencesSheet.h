#pragma once

#include "apps/planner/PlannerPage.h"
#include "apps/planner/Refusal.h"

#include <array>

namespace vorn::planner
{

/// Tips, warnings and the form of positions.
class GeneralPage : public PlannerPage
{
public:
    GeneralPage();
    BOOL OnApply() override;

protected:
    void Fill() override;
    void Arrange(Form& form) override;

private:
    FloatEdit m_decimals;
    Refusal m_refusal;
};

/// The user's units.
class UnitsPage : public PlannerPage
{
public:
    UnitsPage();
    BOOL OnApply() override;

protected:
    void Fill() override;
    void Arrange(Form& form) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    void ShowExample();
};

/// How the chart looks.
class ChartPrefPage : public PlannerPage
{
public:
    ChartPrefPage();
    BOOL OnApply() override;

protected:
    void Fill() override;
    void Arrange(Form& form) override;
};

/// The planner's preferences, which take effect at once.
class PreferencesSheet : public LayoutManagement::LayoutPropertySheet
{
public:
    /// @param changed called after each OK and Apply
    PreferencesSheet(CWnd* parent, std::function<void()> changed);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    std::function<void()> m_changed;
    GeneralPage m_general;
    UnitsPage m_units;
    ChartPrefPage m_chart;
};

} // namespace vorn::planner
