#include "apps/sample/preferences/StatisticsCategory.h"

#include "apps/sample/preferences/resource.h"

#include <array>

namespace vorn::preferences
{

namespace
{

constexpr std::array kTips = {
    Tip{IDC_OPT_STATISTICS, 1803},
    Tip{IDC_OPT_STATISTICS_CLEAR, 1804},
};

} // namespace

StatisticsCategory::StatisticsCategory(const Context& context)
    : Category("General|Statistics", IDC_OPT_STATISTICS_FIRST, kTips), m_context(context)
{
}

void StatisticsCategory::Fill()
{
    SetText(IDC_OPT_STATISTICS, m_context.statistics ? m_context.statistics() : std::string());
    ShowState();
}

void StatisticsCategory::Arrange(Form& form, Form::Pane& area)
{
    area << form.Large(IDC_OPT_STATISTICS, 120, 60)
         << (form.Line() << form.Fixed(IDC_OPT_STATISTICS_CLEAR) << form.Wide(IDC_OPT_STATISTICS_NOTE, 60));
}

bool StatisticsCategory::Store()
{
    if (!m_clears)
        return false;
    m_clears = false;
    if (m_context.clearStatistics)
        m_context.clearStatistics();
    Fill();
    return true;
}

bool StatisticsCategory::OnControl(UINT id, UINT code)
{
    if (id != IDC_OPT_STATISTICS_CLEAR || code != BN_CLICKED)
        return false;
    m_clears = true;
    ShowState();
    return true;
}

void StatisticsCategory::ShowState() const
{
    SetText(IDC_OPT_STATISTICS_NOTE, m_clears ? "All counters begin anew with OK or Apply." : "");
}

} // namespace vorn::preferences
