#include "apps/sample/preferences/MessagesCategory.h"

#include "apps/sample/preferences/resource.h"

#include <algorithm>
#include <array>

namespace vorn::preferences
{

namespace
{

constexpr const char* kLog = "Log";
constexpr const char* kDetail = "Detail";

constexpr std::array kTips = {
    Tip{IDC_OPT_DETAIL, 1806},
    Tip{IDC_OPT_LOG_SHOW, 1805},
    Tip{IDC_OPT_LOG_CLEAR, 1807},
};

struct Detail
{
    LogStatus gravest;
    const char* text;
};

constexpr std::array kDetails = {
    Detail{LOG_FATAL, "Fatal errors"},          Detail{LOG_ERROR, "Errors"},
    Detail{LOG_WARNING, "Errors and warnings"}, Detail{LOG_INFO, "Information as well"},
    Detail{LOG_DEBUG, "All messages"},
};

int InForce()
{
    return App().GetSettingInt(kLog, kDetail, LOG_ERROR);
}

} // namespace

MessagesCategory::MessagesCategory() : Category("General|Messages", IDC_OPT_MESSAGES_FIRST, kTips)
{
}

void MessagesCategory::Fill()
{
    for (const Detail& detail : kDetails)
        AddChoice(IDC_OPT_DETAIL, detail.text, detail.gravest, InForce());
}

void MessagesCategory::Arrange(Form& form, Form::Pane& area)
{
    area << form.Field(IDC_OPT_DETAIL_LABEL, IDC_OPT_DETAIL, 80)
         << (form.Line() << form.Fixed(IDC_OPT_LOG_SHOW) << form.Fixed(IDC_OPT_LOG_CLEAR));
}

bool MessagesCategory::Store()
{
    const std::optional<int> detail = Chosen(IDC_OPT_DETAIL);
    const bool stored = detail && StoreNumber(kLog, kDetail, LOG_ERROR, *detail);
    if (stored)
        ApplyLogDetail();
    return stored;
}

bool MessagesCategory::OnControl(UINT id, UINT code)
{
    if (id == IDC_OPT_LOG_SHOW && code == BN_CLICKED)
        VornCommonLog::Instance()->DisplayLog(LOG_FATAL, false);
    if (id == IDC_OPT_LOG_CLEAR && code == BN_CLICKED)
        VornCommonLog::Instance()->ClearLog();
    return id == IDC_OPT_DETAIL && code == CBN_SELCHANGE;
}

void ApplyLogDetail()
{
    const auto detail = static_cast<LogStatus>(std::clamp<int>(InForce(), LOG_FATAL, LOG_DEBUG));
    VornCommonLog::Instance()->SetDisplayThresholds(detail, std::max(detail, LOG_WARNING));
}

} // namespace vorn::preferences
