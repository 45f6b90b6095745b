#pragma once

#include "apps/sample/preferences/Category.h"
#include "apps/sample/preferences/ColorPreview.h"

namespace vorn::preferences
{

/// The light that the chart's colours are made for.
class ChartCategory : public Category
{
public:
    ChartCategory();

    void Fill() override;
    void Arrange(Form& form, Form::Pane& area) override;
    bool Store() override;
    bool OnControl(UINT id, UINT code) override;

private:
    void ShowPreview();

    ColorPreview m_preview;
};

} // namespace vorn::preferences
