#pragma once

#include "apps/sample/preferences/Category.h"

namespace vorn::preferences
{

/// The unit of each kind of quantity.
class UnitsCategory : public Category
{
public:
    UnitsCategory();

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;

private:
    void ShowExample() const;
};

} // namespace vorn::preferences
