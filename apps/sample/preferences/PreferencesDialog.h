#pragma once

#include "apps/planner/Refusal.h"
#include "apps/sample/preferences/Category.h"

#include <memory>
#include <vector>

namespace vorn::preferences
{

/// The program's preferences, in a tree of categories. OK and Apply store what was changed, and it takes effect at
/// once; Cancel leaves everything as it was since the last of them. A refused entry is shown with the reason.
class PreferencesDialog : public BaseOptionTreeDlg
{
public:
    PreferencesDialog(Context context, CWnd* parent);

    BOOL OnInitDialog() override;

    const std::vector<std::unique_ptr<Category>>& Categories() const;
    /// Selects a category and shows it at once.
    void ShowCategory(const Category& category);

protected:
    void OnSelectCategory(HTREEITEM item) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override;

    afx_msg void OnApply();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    DECLARE_MESSAGE_MAP()

private:
    void MapControls();
    void Arrange();
    void AddAllTips();
    void ReserveRoom();
    HTREEITEM ItemOf(const Category& category) const;
    bool StoreAll();
    void Refuse(const Category& category, const Fault& fault);
    void MarkChanged(bool changed);

    Context m_context;
    std::vector<std::unique_ptr<Category>> m_categories;
    planner::Refusal m_refusal;
    CSize m_least{0, 0}; ///< with which each category has room
    bool m_filled = false;
};

} // namespace vorn::preferences
