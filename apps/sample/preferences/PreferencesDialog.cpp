#include "apps/sample/preferences/PreferencesDialog.h"

#include "apps/sample/preferences/AltitudesCategory.h"
#include "apps/sample/preferences/ChartCategory.h"
#include "apps/sample/preferences/FoldersCategory.h"
#include "apps/sample/preferences/GeneralCategory.h"
#include "apps/sample/preferences/MessagesCategory.h"
#include "apps/sample/preferences/NetworkCategory.h"
#include "apps/sample/preferences/NightCategory.h"
#include "apps/sample/preferences/PositionsCategory.h"
#include "apps/sample/preferences/StatisticsCategory.h"
#include "apps/sample/preferences/UnitsCategory.h"
#include "apps/sample/preferences/resource.h"

#include <algorithm>
#include <utility>

namespace vorn::preferences
{

namespace
{

constexpr UINT kTreeText = 1789;
constexpr int kTreeWidth = 84; // dialog units
constexpr int kTreeHeight = 100;

} // namespace

BEGIN_MESSAGE_MAP(PreferencesDialog, BaseOptionTreeDlg)
ON_BN_CLICKED(IDC_OPT_APPLY, &PreferencesDialog::OnApply)
ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

PreferencesDialog::PreferencesDialog(Context context, CWnd* parent)
    : BaseOptionTreeDlg(IDD_PREFERENCES, parent), m_context(std::move(context))
{
    m_strSection = "PreferencesDialog"; // keeps the dialog's place
    m_categories.push_back(std::make_unique<GeneralCategory>());
    m_categories.push_back(std::make_unique<FoldersCategory>());
    m_categories.push_back(std::make_unique<MessagesCategory>());
    m_categories.push_back(std::make_unique<StatisticsCategory>(m_context));
    m_categories.push_back(std::make_unique<UnitsCategory>());
    m_categories.push_back(std::make_unique<PositionsCategory>(m_context));
    m_categories.push_back(std::make_unique<AltitudesCategory>());
    m_categories.push_back(std::make_unique<ChartCategory>());
    m_categories.push_back(std::make_unique<NightCategory>());
    m_categories.push_back(std::make_unique<NetworkCategory>());
    for (const std::unique_ptr<Category>& category : m_categories)
        GetOptionTree().AddOptionCategory(category->Path());
}

const std::vector<std::unique_ptr<Category>>& PreferencesDialog::Categories() const
{
    return m_categories;
}

BOOL PreferencesDialog::OnInitDialog()
{
    LockLayout(true); // nothing is declared while the frame and the former place are taken
    BaseOptionTreeDlg::OnInitDialog();
    for (const std::unique_ptr<Category>& category : m_categories)
    {
        category->Attach(*this);
        category->Fill();
    }
    MapControls();
    Arrange();
    UnlockLayout();
    AddAllTips();
    ReserveRoom();
    MarkChanged(false);
    m_filled = true;
    return TRUE;
}

void PreferencesDialog::MapControls()
{
    for (CWnd* child = GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
    {
        const UINT id = static_cast<UINT>(child->GetDlgCtrlID());
        for (const std::unique_ptr<Category>& category : m_categories)
        {
            if (category->Owns(id))
                AddControlMapping(ItemOf(*category), {id});
        }
    }
}

void PreferencesDialog::Arrange()
{
    Form form(*this, *this);
    Form::Pane area = form.Group(IDC_OPT_FRAME, Vertical);
    for (const std::unique_ptr<Category>& category : m_categories)
        category->Arrange(form, area);
    area << itemSpace(Vertical);
    CPane tree = pane(Vertical, FixedWidth, form.Y(2), 0, form.X(kTreeWidth));
    tree << form.Fixed(IDC_OPT_TREE_LABEL) << form.Large(IDC_OPT_TREE, kTreeWidth, kTreeHeight);
    CPane both = pane(Horizontal, Greedy, form.X(6));
    both << tree << area;
    CreateRoot(Vertical, form.Y(5)) << both << form.Buttons({IDOK, IDCANCEL, IDC_OPT_APPLY});
}

void PreferencesDialog::AddAllTips()
{
    const UINT tree = IDC_OPT_TREE;
    AddTips(&tree, &kTreeText, 1);
    for (const std::unique_ptr<Category>& category : m_categories)
    {
        for (const Tip& tip : category->Tips())
            AddTips(&tip.control, &tip.text, 1);
    }
}

/// The dialog keeps its size while the user goes through the categories.
void PreferencesDialog::ReserveRoom()
{
    for (const std::unique_ptr<Category>& category : m_categories)
    {
        OnSelectCategory(ItemOf(*category));
        CSize least;
        CSize most;
        if (GetTrackSizes(least, most))
            m_least = CSize(std::max(m_least.cx, least.cx), std::max(m_least.cy, least.cy));
    }
    OnSelectCategory(GetOptionTree().GetSelectedItem());
}

HTREEITEM PreferencesDialog::ItemOf(const Category& category) const
{
    return mOptionTree.GetCategoryItem(category.Path());
}

void PreferencesDialog::OnSelectCategory(HTREEITEM item)
{
    CString title = GetOptionTree().GetCategoryPath(item);
    title.Replace("|", ": ");
    SetDlgItemText(IDC_OPT_FRAME, title);
    BaseOptionTreeDlg::OnSelectCategory(item);
}

BOOL PreferencesDialog::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const BOOL done = BaseOptionTreeDlg::OnCommand(wParam, lParam);
    const UINT id = LOWORD(wParam);
    if (!m_filled || lParam == 0)
        return done;
    for (const std::unique_ptr<Category>& category : m_categories)
    {
        if (category->Owns(id) && category->OnControl(id, HIWORD(wParam)))
            MarkChanged(true);
    }
    return done;
}

void PreferencesDialog::MarkChanged(bool changed)
{
    CWnd& apply = *GetDlgItem(IDC_OPT_APPLY);
    if (!changed && GetFocus() == &apply)
        GotoDlgCtrl(&mOptionTree); // a dim button would keep the keys
    apply.EnableWindow(changed);
}

bool PreferencesDialog::StoreAll()
{
    for (const std::unique_ptr<Category>& category : m_categories)
    {
        if (const std::optional<Fault> fault = category->Check())
        {
            Refuse(*category, *fault);
            return false;
        }
    }
    bool stored = false;
    for (const std::unique_ptr<Category>& category : m_categories)
        stored = category->Store() || stored;
    if (stored && m_context.changed)
        m_context.changed();
    return true;
}

void PreferencesDialog::ShowCategory(const Category& category)
{
    GetOptionTree().SelectCategory(ItemOf(category));
    OnSelectCategory(ItemOf(category)); // not only when the tree's message comes
}

void PreferencesDialog::Refuse(const Category& category, const Fault& fault)
{
    ShowCategory(category);
    m_refusal.Show(*this, fault.control, "Not possible", fault.why.c_str());
}

void PreferencesDialog::OnOK()
{
    if (StoreAll())
        BaseOptionTreeDlg::OnOK();
}

void PreferencesDialog::OnApply()
{
    if (StoreAll())
        MarkChanged(false);
}

void PreferencesDialog::OnGetMinMaxInfo(MINMAXINFO* info)
{
    BaseOptionTreeDlg::OnGetMinMaxInfo(info);
    info->ptMinTrackSize.x = std::max<LONG>(info->ptMinTrackSize.x, m_least.cx);
    info->ptMinTrackSize.y = std::max<LONG>(info->ptMinTrackSize.y, m_least.cy);
}

} // namespace vorn::preferences
