#pragma once

#include "apps/sample/preferences/Category.h"
#include "apps/sample/preferences/ColorPreview.h"

namespace vorn::preferences
{

/// How much of red, green and blue is left by night.
class NightCategory : public Category
{
public:
    NightCategory();

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    std::optional<Fault> Check() const override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;

private:
    void ShowPreview();

    ColorPreview m_preview;
};

} // namespace vorn::preferences
