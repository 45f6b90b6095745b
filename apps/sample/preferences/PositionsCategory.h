#pragma once

#include "apps/sample/preferences/Category.h"

#include <array>

namespace vorn::preferences
{

/// How latitudes and longitudes are written.
class PositionsCategory : public Category
{
public:
    explicit PositionsCategory(const Context& context);

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    std::optional<Fault> Check() const override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;

private:
    void ShowState() const;
    void ShowExample() const;

    const Context& m_context;
    std::array<CSpinButtonCtrl, 2> m_spins;
};

} // namespace vorn::preferences
