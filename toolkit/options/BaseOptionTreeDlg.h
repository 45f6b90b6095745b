#pragma once

/// @file
/// A dialog of options in categories.
#include "framework/core/Map.h"
#include "toolkit/layout/LayoutDialog.h"
#include "toolkit/options/OptionTree.h"

#include <initializer_list>

/// A resizable dialog with a tree of categories, which shows the controls of the selected category and hides those of
/// the others; hidden ones leave their room in the layout to the shown ones. Its template has one tree view.
///
/// A derived class adds its categories to GetOptionTree(), in its constructor or around OnInitDialog() of this class,
/// maps its controls, and declares its panes with the controls of all categories in one area:
///
///     BOOL PreferencesDlg::OnInitDialog()
///     {
///         BaseOptionTreeDlg::OnInitDialog();
///         AddControlMapping(GetOptionTree().AddOptionCategory("Chart|Night"), {IDC_SCALE, IDC_DUSK});
///         ...
///     }
class VORNCOMMON_API BaseOptionTreeDlg : public LayoutManagement::LayoutDialog
{
    DECLARE_DYNAMIC(BaseOptionTreeDlg)

public:
    explicit BaseOptionTreeDlg(UINT nIDTemplate, CWnd* parent = nullptr);
    ~BaseOptionTreeDlg() override;

    OptionTree& GetOptionTree();

    /// Binds the tree view of the template, unless the derived class did it by DDX, and fills the tree.
    BOOL OnInitDialog() override;

    /// Maps controls to a category: they are shown while it is selected. A control has one category, the last one
    /// given; a null one is never selected. Ids without control are remembered. Nothing is shown or hidden at once.
    ///
    /// The list of ids ends with 0: without it the call reads whatever lies behind its arguments. The form with braces
    /// needs no end.
    void AddControlMapping(HTREEITEM item, UINT id, ...);
    void AddControlMapping(HTREEITEM item, std::initializer_list<UINT> ids);
    /// Controls without category are left alone. Nothing is shown or hidden at once. The list ends with 0.
    void RemoveControlMapping(UINT id, ...);
    void RemoveControlMapping(std::initializer_list<UINT> ids);

protected:
    /// A category was selected. Shows its controls, hides those of the others and lays the dialog out.
    virtual void OnSelectCategory(HTREEITEM item);

    afx_msg LRESULT OnCategoryMessage(WPARAM wParam, LPARAM lParam);

    OptionTree mOptionTree;

    DECLARE_MESSAGE_MAP()

private:
    void BindTree();
    void ShowControl(HWND control, bool show);
    void LeaveControl(HWND control);

    CMap<UINT, UINT, HTREEITEM, HTREEITEM> m_categories; ///< of the controls, by their ids
};
