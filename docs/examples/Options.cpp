#include <VornCommon.h>

#include <cstdio>
#include <utility>

namespace
{

constexpr UINT kPreferences = 100; // the dialog and its controls, as in Options.rc
constexpr UINT kTree = 1000;
constexpr UINT kNight = 1001;
constexpr UINT kScale = 1002;
constexpr UINT kMetric = 1003;

class Preferences : public BaseOptionTreeDlg
{
public:
    Preferences() : BaseOptionTreeDlg(kPreferences)
    {
    }

    BOOL OnInitDialog() override
    {
        BaseOptionTreeDlg::OnInitDialog();
        OptionTree& tree = GetOptionTree();
        AddControlMapping(tree.AddOptionCategory("Chart|Night"), {kNight, kScale});
        AddControlMapping(tree.AddOptionCategory("Units"), {kMetric});

        // The controls of all categories share the place at the right of the tree.
        CPane options = pane(Vertical, Greedy, 5);
        for (const UINT id : {kNight, kScale, kMetric})
            options << item(id, FixedHeight, 0, 0, 60);
        CPane both = pane(Horizontal, Greedy, 5);
        both << item(kTree, PercentWidth, 40, 0, 80, 60) << options;
        CPane buttons = pane(Horizontal, FixedHeight, 5);
        buttons << itemSpace(Horizontal) << item(IDOK, FixedBoth) << item(IDCANCEL, FixedBoth);
        CreateRoot(Vertical, 5) << both << buttons;
        UpdateLayout(false);
        return TRUE;
    }

    bool m_metric = false;

protected:
    void OnSelectCategory(HTREEITEM item) override
    {
        BaseOptionTreeDlg::OnSelectCategory(item);
        const CString category = GetOptionTree().GetCategoryPath(item);
        std::printf("%s shows", category.GetString());
        for (const auto& [id, name] :
             {std::pair(kNight, "night"), std::pair(kScale, "scale"), std::pair(kMetric, "metric")})
            std::printf(" %s", IsShown(id) ? name : "-");
        std::printf("\n");
        Use(category);
    }

    void OnOK() override
    {
        m_metric = IsDlgButtonChecked(kMetric) == BST_CHECKED;
        BaseOptionTreeDlg::OnOK();
    }

private:
    bool IsShown(UINT id) const
    {
        return (GetDlgItem(static_cast<int>(id))->GetStyle() & WS_VISIBLE) != 0;
    }

    // In place of a user, who would click.
    void Use(const CString& category)
    {
        if (category == "Units")
        {
            CheckDlgButton(kMetric, BST_CHECKED);
            PostMessage(WM_COMMAND, IDOK);
        }
        else
        {
            GetOptionTree().SelectCategory("Units");
        }
    }
};

} // namespace

int main()
{
    CWinApp app("OptionsExample");
    Preferences preferences;
    const bool confirmed = preferences.DoModal() == IDOK;
    std::printf("%s, metric units %s\n", confirmed ? "confirmed" : "cancelled", preferences.m_metric ? "on" : "off");
    return 0;
}
