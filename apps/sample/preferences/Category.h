#pragma once

#include "apps/planner/Form.h"
#include "apps/planner/PlannerDialog.h"
#include "apps/planner/StoredValue.h"

#include <functional>
#include <optional>
#include <span>
#include <string>

namespace vorn::preferences
{

using planner::App;
using planner::Forget;
using planner::Form;
using planner::StoreNumber;
using planner::Tip;

/// What the dialog asks of the program that it stands in. Functions may be empty.
struct Context
{
    /// Called after each OK and Apply that changed something.
    std::function<void()> changed;
    /// Where the chart is centred, for the example of a position.
    std::function<LatLon()> chartCenter;
    /// How often the program was used, in lines.
    std::function<std::string()> statistics;
    std::function<void()> clearStatistics;
};

/// What is wrong with an entry, for the user to read.
struct Fault
{
    UINT control;
    std::string why;
};

/// A category of preferences: its controls stand in the dialog beside those of the others and are told apart by their
/// ids. Nothing is stored before Store().
class Category
{
public:
    /// @param path in the tree @param firstId of twenty ids that its controls have
    /// @param tips of its controls, to live as long as the program
    Category(const char* path, UINT firstId, std::span<const Tip> tips);
    virtual ~Category() = default;
    Category(const Category&) = delete;
    Category& operator=(const Category&) = delete;

    const char* Path() const;
    std::span<const Tip> Tips() const;
    bool Owns(UINT id) const;
    void Attach(CWnd& dialog);

    /// Puts what is in force into the controls.
    virtual void Fill() = 0;
    /// Declares the panes within the area of all categories. No spacers: they take room while the controls are hidden.
    virtual void Arrange(Form& form, Form::Pane& area) = 0;
    /// The first entry that cannot be taken.
    virtual std::optional<Fault> Check() const;
    /// Stores what differs from what is in force and puts it into force.
    /// @return whether there was anything
    virtual bool Store() = 0;
    /// A control says something. @return whether OK might now store something else
    virtual bool OnControl(UINT id, UINT code);

protected:
    CWnd& Dialog() const;
    CWnd& Control(UINT id) const;
    CComboBox& Box(UINT id) const;
    std::string TextAt(UINT id) const;
    void SetText(UINT id, const std::string& text) const;
    bool IsChecked(UINT id) const;
    void SetCheck(UINT id, bool checked) const;
    /// The value of the chosen item; nothing while none is.
    std::optional<int> Chosen(UINT id) const;
    /// Adds an item with a value, chosen when the value is `inForce`.
    void AddChoice(UINT id, const char* text, int value, int inForce) const;
    void Choose(UINT id, int value) const;

private:
    const char* m_path;
    UINT m_firstId;
    std::span<const Tip> m_tips;
    CWnd* m_dialog = nullptr;
};

} // namespace vorn::preferences
