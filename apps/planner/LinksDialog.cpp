#include "apps/planner/LinksDialog.h"

#include "apps/planner/resource.h"

namespace vorn::planner
{

namespace
{

constexpr std::array<const char*, 4> kAddresses = {
    "https://aviationweather.gov/",
    "https://notams.aim.faa.gov/",
    "https://www.icao.int/",
    "https://wmo.int/",
};

constexpr UINT kWebLink = 1759;
constexpr std::array kTips = {
    Tip{IDC_LINKS_FIRST, kWebLink},
    Tip{IDC_LINKS_FIRST + 1, kWebLink},
    Tip{IDC_LINKS_FIRST + 2, kWebLink},
    Tip{IDC_LINKS_FIRST + 3, kWebLink},
};

} // namespace

LinksDialog::LinksDialog(PlannerData& data, CWnd* parent) : PlannerDialog(IDD_LINKS, data, parent, "LinksDialog")
{
}

std::span<const Tip> LinksDialog::Tips() const
{
    return kTips;
}

void LinksDialog::Fill()
{
    for (std::size_t i = 0; i < m_links.size(); ++i)
        m_links[i].SubclassDlgItem(IDC_LINKS_FIRST + static_cast<UINT>(i), this, kAddresses[i]);
}

void LinksDialog::Arrange(Form& form)
{
    CPane root = CreateRoot(Vertical, form.Y(5));
    root << item(IDC_LINKS_TEXT, FixedHeight, 0, 0, -1);
    for (UINT i = 0; i < m_links.size(); ++i)
        root << item(IDC_LINKS_FIRST + i, FixedBoth);
    root << itemSpace(Vertical) << form.Buttons({IDCANCEL});
}

bool LinksDialog::Take()
{
    return true;
}

} // namespace vorn::planner
