#pragma once

#include "apps/planner/PlannerDialog.h"

#include <array>

namespace vorn::planner
{

/// Authorities on the web that publish weather, notices and charts.
class LinksDialog : public PlannerDialog
{
public:
    LinksDialog(PlannerData& data, CWnd* parent);

protected:
    void Fill() override;
    void Arrange(Form& form) override;
    bool Take() override;
    std::span<const Tip> Tips() const override;

private:
    std::array<HyperLink, 4> m_links;
};

} // namespace vorn::planner
