#pragma once

#include "apps/sample/preferences/Category.h"

namespace vorn::preferences
{

/// How often the program was used.
class StatisticsCategory : public Category
{
public:
    explicit StatisticsCategory(const Context& context);

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;

private:
    void ShowState() const;

    const Context& m_context;
    bool m_clears = false; ///< with the next OK or Apply
};

} // namespace vorn::preferences
