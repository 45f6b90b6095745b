#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"
#include "toolkit/options/BaseOptionTreeDlg.h"

#include <benchmark/benchmark.h>

#include <string>

// Filling a visible tree with 500 categories, and a bare loop of insertions with painting held back; a dialog of 200
// controls that shows half of them and then the other half.
namespace
{

constexpr int kPaths = 500;
constexpr int kInGroup = 10;

class Host : public CWnd
{
public:
    Host()
    {
        CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP | WS_VISIBLE, 0, 0, 300, 400, nullptr, nullptr);
    }
    ~Host() override
    {
        DestroyWindow();
    }
};

void InitOfATree(benchmark::State& state)
{
    Host host;
    for (auto _ : state)
    {
        state.PauseTiming();
        OptionTree tree;
        for (int i = 0; i < kPaths; ++i)
        {
            tree.AddOptionCategory(("Group " + std::to_string(i / kInGroup) + "|Page " + std::to_string(i)).c_str());
        }
        tree.Create(WS_CHILD | WS_VISIBLE, {0, 0, 300, 400}, &host, 1);
        state.ResumeTiming();
        tree.Init();
        state.PauseTiming();
        tree.DestroyWindow();
        state.ResumeTiming();
    }
}
BENCHMARK(InitOfATree)->Name("Options/500 categories")->Unit(benchmark::kMillisecond);

void BareInsertions(benchmark::State& state)
{
    Host host;
    for (auto _ : state)
    {
        state.PauseTiming();
        CTreeCtrl tree;
        tree.Create(WS_CHILD | WS_VISIBLE, {0, 0, 300, 400}, &host, 1);
        state.ResumeTiming();
        tree.SetRedraw(FALSE);
        HTREEITEM group = nullptr;
        for (int i = 0; i < kPaths; ++i)
        {
            if (i % kInGroup == 0)
            {
                group = tree.InsertItem(TVIF_TEXT | TVIF_STATE, ("Group " + std::to_string(i / kInGroup)).c_str(), 0, 0,
                                        TVIS_EXPANDED, TVIS_EXPANDED, 0, TVI_ROOT, TVI_LAST);
            }
            tree.InsertItem(TVIF_TEXT | TVIF_STATE | TVIF_PARAM, ("Page " + std::to_string(i)).c_str(), 0, 0,
                            TVIS_EXPANDED, TVIS_EXPANDED, i, group, TVI_LAST);
        }
        tree.SetRedraw(TRUE);
        state.PauseTiming();
        tree.DestroyWindow();
        state.ResumeTiming();
    }
}
BENCHMARK(BareInsertions)->Name("Options/500 bare insertions")->Unit(benchmark::kMillisecond);

constexpr UINT kControls = 200;
constexpr UINT kFirstControl = 1000;

/// An empty template: the controls are made by hand.
struct EmptyTemplate
{
    DLGTEMPLATE head{WS_POPUP | WS_CAPTION, 0, 0, 20, 20, 400, 300};
    WORD menuClassTitle[3] = {0, 0, 0};
};

class TwoPages : public BaseOptionTreeDlg
{
public:
    TwoPages() : BaseOptionTreeDlg(0U, nullptr)
    {
        const EmptyTemplate empty;
        CreateIndirect(&empty.head);
        ShowWindow(SW_SHOWNA);
    }
    BOOL OnInitDialog() override
    {
        ::CreateWindowA(WC_TREEVIEWA, "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 100, m_hWnd, nullptr, nullptr, nullptr);
        BaseOptionTreeDlg::OnInitDialog();
        for (HTREEITEM& page : m_pages)
        {
            page = GetOptionTree().AddOptionCategory(&page == &m_pages[0] ? "One" : "Two");
        }
        CPane root = CreateRoot(Vertical, 0, 0);
        for (UINT id = kFirstControl; id < kFirstControl + kControls; ++id)
        {
            ::CreateWindowA("Button", "", WS_CHILD | WS_VISIBLE, 0, 0, 60, 4, m_hWnd,
                            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
            AddControlMapping(m_pages[id % 2], {id});
            root << item(id, FixedHeight, 0, 4, 10, 0);
        }
        UpdateLayout(false);
        return TRUE;
    }
    void Switch()
    {
        OnSelectCategory(m_pages[++m_count % 2]);
        UpdateWindow();
    }

private:
    HTREEITEM m_pages[2] = {};
    unsigned m_count = 0;
};

void SwitchOfCategories(benchmark::State& state)
{
    TwoPages dialog;
    for (auto _ : state)
    {
        dialog.Switch();
    }
}
BENCHMARK(SwitchOfCategories)->Name("Options/a category of 200 controls")->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
