#ifdef VORN_HAVE_YOGA
#include "bench/PairedTimer.h"
#include "bench/core/LayoutCases.h"

#include <benchmark/benchmark.h>
#include <yoga/Yoga.h>

#include <vector>

// The same tree laid out by Yoga, the flex boxes of applications for telephones.
namespace
{
using namespace vorn;
using namespace vorn::bench;

/// Panes as flex containers, controls as their items: rigid where they are fixed, growing from nothing where not.
class YogaTree
{
public:
    explicit YogaTree(int leaves)
    {
        int leaf = 0;
        Fill(*this, leaf, leaves);
    }
    ~YogaTree()
    {
        YGNodeFreeRecursive(m_root);
    }
    YogaTree(const YogaTree&) = delete;
    YogaTree& operator=(const YogaTree&) = delete;

    void OpenPane(const PaneSpec& pane)
    {
        const YGNodeRef node = Insert();
        YGNodeStyleSetFlexDirection(node, pane.isVertical ? YGFlexDirectionColumn : YGFlexDirectionRow);
        YGNodeStyleSetPadding(node, YGEdgeAll, static_cast<float>(pane.borders.left));
        Grow(node);
        m_open.push_back(node);
        m_isVertical.push_back(pane.isVertical);
    }
    void ClosePane()
    {
        m_open.pop_back();
        m_isVertical.pop_back();
    }
    void Add(const PaneItemSpec& item)
    {
        const YGNodeRef node = Insert();
        SetWidth(node, item);
        SetHeight(node, item);
        YGNodeStyleSetDisplay(node, item.isShown ? YGDisplayFlex : YGDisplayNone);
        const bool isVertical = m_isVertical.back();
        const unsigned sized = isVertical ? panemode::kFixedHeight | panemode::kPercentHeight
                                          : panemode::kFixedWidth | panemode::kPercentWidth;
        if ((item.mode & sized) == 0)
        {
            Grow(node);
        }
    }
    void Change()
    {
        ++m_step;
        YGNodeCalculateLayout(m_root, static_cast<float>(200000 + m_step % 100),
                              static_cast<float>(150000 - m_step % 90), YGDirectionLTR);
    }

private:
    YGNodeRef Insert()
    {
        const YGNodeRef node = YGNodeNew();
        if (m_open.empty())
        {
            m_root = node;
        }
        else
        {
            YGNodeInsertChild(m_open.back(), node, YGNodeGetChildCount(m_open.back()));
        }
        return node;
    }
    static void Grow(YGNodeRef node)
    {
        YGNodeStyleSetFlexGrow(node, 1);
        YGNodeStyleSetFlexBasis(node, 0);
    }
    static void SetWidth(YGNodeRef node, const PaneItemSpec& item)
    {
        if ((item.mode & panemode::kFixedWidth) != 0)
        {
            YGNodeStyleSetWidth(node, static_cast<float>(item.width));
        }
        else if ((item.mode & panemode::kPercentWidth) != 0)
        {
            YGNodeStyleSetWidthPercent(node, static_cast<float>(item.width));
        }
        YGNodeStyleSetMinWidth(node, static_cast<float>(std::max(item.minimumWidth, kLeastExtent)));
    }
    static void SetHeight(YGNodeRef node, const PaneItemSpec& item)
    {
        if ((item.mode & panemode::kFixedHeight) != 0)
        {
            YGNodeStyleSetHeight(node, static_cast<float>(item.height));
        }
        YGNodeStyleSetMinHeight(node, static_cast<float>(kLeastExtent));
    }

    YGNodeRef m_root = nullptr;
    std::vector<YGNodeRef> m_open;
    std::vector<bool> m_isVertical;
    int m_step = 0;
};

void AgainstYoga(benchmark::State& state)
{
    ChangingTree own(10000);
    YogaTree yoga(10000);
    Compare(
        state, 1,
        [&]
        {
            own.Change();
        },
        [&]
        {
            yoga.Change();
        });
    state.counters["times"] = 1 / state.counters["ratio"];
}
BENCHMARK(AgainstYoga)->Name("Layout/10,000 leaves to Yoga")->UseManualTime();

} // namespace
#endif
