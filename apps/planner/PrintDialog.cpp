#include "apps/planner/PrintDialog.h"

#include "apps/planner/resource.h"

#include <algorithm>

namespace vorn::planner
{

namespace
{

constexpr int kMostCopies = 99;

constexpr std::array kTips = {
    Tip{IDC_PRINT_LOG, 1683},        Tip{IDC_PRINT_LOADING, 1693},    Tip{IDC_PRINT_CHECKLIST, 1691},
    Tip{IDC_PRINT_CHART, 1706},      Tip{IDC_PRINT_PORTRAIT, 1700},   Tip{IDC_PRINT_LANDSCAPE, 1682},
    Tip{IDC_PRINT_COPIES, 1701},     Tip{IDC_PRINT_GREY, 1710},       Tip{IDC_PRINT_MARGIN + 1, 1712},
    Tip{IDC_PRINT_MARGIN + 3, 1713}, Tip{IDC_PRINT_MARGIN + 5, 1714}, Tip{IDC_PRINT_MARGIN + 7, 1715},
    Tip{IDC_PRINT_HEADER, 1716},     Tip{IDC_PRINT_FOOTER, 1717},
};

UINT MarginLabel(std::size_t side)
{
    return IDC_PRINT_MARGIN + 2 * static_cast<UINT>(side);
}

UINT MarginField(std::size_t side)
{
    return MarginLabel(side) + 1;
}

} // namespace

PrintDialog::PrintDialog(PlannerData& data, CWnd* parent) : PlannerDialog(IDD_PRINT, data, parent, "PrintDialog")
{
}

std::span<const Tip> PrintDialog::Tips() const
{
    return kTips;
}

void PrintDialog::Fill()
{
    const Plan& plan = m_data.plan;
    Check(IDC_PRINT_LOG, plan.printsLog);
    Check(IDC_PRINT_LOADING, plan.printsLoading);
    Check(IDC_PRINT_CHART, plan.printsChart);
    Check(IDC_PRINT_CHECKLIST, plan.printsChecklist);
    Check(IDC_PRINT_GREY, plan.isBlackAndWhite);
    CheckRadioButton(IDC_PRINT_PORTRAIT, IDC_PRINT_LANDSCAPE,
                     plan.isLandscape ? IDC_PRINT_LANDSCAPE : IDC_PRINT_PORTRAIT);
    for (std::size_t side = 0; side < m_margins.size(); ++side)
        TakeNumber(m_margins[side], *this, MarginField(side), 1, plan.margins[side], " mm");
    m_copies.SubclassDlgItem(IDC_PRINT_COPIES_SPIN, this);
    m_copies.SetBuddy(GetDlgItem(IDC_PRINT_COPIES));
    m_copies.SetRange32(1, kMostCopies);
    m_copies.SetPos32(static_cast<int>(plan.copies));
    SetDlgItemText(IDC_PRINT_HEADER, plan.header.c_str());
    SetDlgItemText(IDC_PRINT_FOOTER, plan.footer.c_str());
}

void PrintDialog::Arrange(Form& form)
{
    form.Align({MarginLabel(0), MarginLabel(1), MarginLabel(2), MarginLabel(3)});
    form.Align({IDC_PRINT_HEADER_LABEL, IDC_PRINT_FOOTER_LABEL});

    CPane contents = form.Group(IDC_PRINT_CONTENTS_GROUP, Vertical);
    for (const UINT id : {IDC_PRINT_LOG, IDC_PRINT_LOADING, IDC_PRINT_CHART, IDC_PRINT_CHECKLIST})
        contents << form.Whole(id);
    contents << itemSpace(Vertical);

    CPane copies = pane(Horizontal, FixedHeight, 0);
    copies << form.Fixed(IDC_PRINT_COPIES_LABEL) << itemSpaceFixed(Horizontal, form.X(4))
           << form.Fixed(IDC_PRINT_COPIES) << form.Fixed(IDC_PRINT_COPIES_SPIN) << itemSpace(Horizontal);
    CPane paper = form.Group(IDC_PRINT_PAPER_GROUP, Vertical);
    paper << form.Whole(IDC_PRINT_PORTRAIT) << form.Whole(IDC_PRINT_LANDSCAPE) << form.Whole(IDC_PRINT_GREY) << copies
          << itemSpace(Vertical);

    CPane margins = form.Group(IDC_PRINT_MARGINS_GROUP, Vertical);
    for (std::size_t side = 0; side < m_margins.size(); ++side)
        margins << form.Field(MarginLabel(side), MarginField(side), 44);
    margins << itemSpace(Vertical);

    CPane groups = pane(Horizontal, Greedy, form.X(6));
    groups << contents << paper << margins;
    CreateRoot(Vertical, form.Y(5)) << groups << form.Field(IDC_PRINT_HEADER_LABEL, IDC_PRINT_HEADER)
                                    << form.Field(IDC_PRINT_FOOTER_LABEL, IDC_PRINT_FOOTER)
                                    << form.Buttons({IDOK, IDCANCEL});
}

bool PrintDialog::Take()
{
    Plan& plan = m_data.plan;
    plan.printsLog = IsChecked(IDC_PRINT_LOG);
    plan.printsLoading = IsChecked(IDC_PRINT_LOADING);
    plan.printsChart = IsChecked(IDC_PRINT_CHART);
    plan.printsChecklist = IsChecked(IDC_PRINT_CHECKLIST);
    plan.isBlackAndWhite = IsChecked(IDC_PRINT_GREY);
    plan.isLandscape = IsChecked(IDC_PRINT_LANDSCAPE);
    plan.copies = std::clamp(static_cast<int>(GetDlgItemInt(IDC_PRINT_COPIES, nullptr, FALSE)), 1, kMostCopies);
    for (std::size_t side = 0; side < m_margins.size(); ++side)
        plan.margins[side] = m_margins[side].GetValue();
    plan.header = TextAt(IDC_PRINT_HEADER);
    plan.footer = TextAt(IDC_PRINT_FOOTER);
    return true;
}

} // namespace vorn::planner
