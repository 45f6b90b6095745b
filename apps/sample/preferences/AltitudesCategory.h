#pragma once

#include "apps/sample/preferences/Category.h"

namespace vorn::preferences
{

/// From where altitudes are written as flight levels.
class AltitudesCategory : public Category
{
public:
    AltitudesCategory();

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    std::optional<Fault> Check() const override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;

private:
    std::optional<int> Level() const;
    void ShowExample() const;
};

} // namespace vorn::preferences
