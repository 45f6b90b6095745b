#pragma once

#include "apps/planner/Form.h"
#include "apps/planner/PlannerData.h"

#include <span>

namespace vorn::planner
{

/// A control and the help text that explains it.
struct Tip
{
    UINT control;
    UINT text; ///< of the library's string table
};

/// A dialog of the planner: it fills its controls from the plan, lays them out, and takes the plan back at OK. It
/// remembers its place.
class PlannerDialog : public LayoutManagement::LayoutDialog
{
public:
    /// @param section of the profile, where the dialog's place is kept
    PlannerDialog(UINT id, PlannerData& data, CWnd* parent, LPCSTR section);

    BOOL OnInitDialog() override;

protected:
    /// Puts the plan into the controls.
    virtual void Fill() = 0;
    /// Declares the panes, from the root on.
    virtual void Arrange(Form& form) = 0;
    /// Takes the controls' values. False keeps the dialog open.
    virtual bool Take() = 0;
    /// Stores what has been taken: the plan, unless a dialog changes none of it.
    virtual void Keep();
    virtual std::span<const Tip> Tips() const;
    void OnOK() override;

    CString TextAt(UINT id) const;
    bool IsChecked(UINT id) const;
    void Check(UINT id, bool checked);
    /// Fills a combo box with the places' idents, with `chosen` in its field.
    void FillWithPlaces(CComboBox& box, const std::string& chosen) const;

    PlannerData& m_data;
};

/// Takes a dialog's edit field over as a number field.
void TakeNumber(FloatEdit& field, CWnd& dialog, UINT id, short decimals, double value, const char* suffix,
                const char* prefix = "");

} // namespace vorn::planner
