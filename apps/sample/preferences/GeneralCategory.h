#pragma once

#include "apps/sample/preferences/Category.h"

namespace vorn::preferences
{

/// Tips, and what the program shows when it starts.
class GeneralCategory : public Category
{
public:
    GeneralCategory();

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    bool Store() override;
};

} // namespace vorn::preferences
