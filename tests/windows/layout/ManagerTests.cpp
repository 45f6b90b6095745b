#include "framework/core/Exception.h"
#include "framework/dialog/CDialog.h"
#include "tests/support/DialogTemplateBuilder.h"
#include "tests/support/Thrown.h"
#include "tests/windows/layout/LaidWindow.h"

// Panes and their handles, locking, minimum and maximum sizes of windows.
namespace
{

constexpr auto kRow = LayoutMgr::Horizontal;
constexpr auto kColumn = LayoutMgr::Vertical;
constexpr auto kGreedy = LayoutMgr::Greedy;
constexpr auto kFixed = LayoutMgr::FixedBoth;

/// A node of the program's own.
class OwnNode : public LayoutMgr::PaneBase
{
public:
    OwnNode(LayoutMgr* manager, int& alive, LayoutMgr::ResizeMode mode = LayoutMgr::Greedy)
        : PaneBase(manager, mode), m_alive(alive)
    {
        ++m_alive;
    }
    ~OwnNode() override
    {
        --m_alive;
    }
    int getWidth(int parentExtent) override
    {
        return (mode() & LayoutMgr::PercentWidth) != 0 ? parentExtent * 40 / 100 : 30;
    }
    int getHeight(int) override
    {
        return 20;
    }
    int getMinWidth() override
    {
        return 30;
    }
    int getMinHeight() override
    {
        return 20;
    }
    int getMaxWidth() override
    {
        return -1;
    }
    int getMaxHeight() override
    {
        return -1;
    }
    bool placeAt(CRect& rect) override
    {
        placed.push_back(EdgesOf(rect));
        return succeeds;
    }
    std::vector<Edges> placed;
    bool succeeds = true;

private:
    int& m_alive;
};

TEST(LayoutManager, TheLastHandleDeletesTheNode)
{
    int alive = 0;
    {
        LaidWindow window(100, 100);
        LayoutMgr::CPaneBase node(new OwnNode(&window, alive));
        {
            LayoutMgr::CPane root = window.CreateRoot(kRow, 0, 0);
            root << node << node;
            LayoutMgr::CPaneBase copy = node;
            node = LayoutMgr::CPaneBase();
            copy = copy;
            EXPECT_EQ(1, alive);
        }
        EXPECT_EQ(1, alive);
        window.CreateRoot(kColumn, 0, 0);
        EXPECT_EQ(0, alive);
    }
    EXPECT_EQ(0, alive);
}

TEST(LayoutManager, HandlesTellWhetherTheyHoldANode)
{
    LaidWindow window(100, 100);
    LayoutMgr::CPane none;
    EXPECT_FALSE(none.IsValid());
    EXPECT_TRUE(!none);
    EXPECT_FALSE(none.ConvertBase().IsValid());
    LayoutMgr::CPane pane = window.pane(kRow, kGreedy, 0, 0, 0);
    EXPECT_TRUE(pane.IsValid());
    EXPECT_EQ(pane.GetPane(), pane.ConvertBase().GetPane());
    EXPECT_TRUE(LayoutMgr::CPane(pane) == pane);
    EXPECT_FALSE(none == pane);
}

TEST(LayoutManager, ChildrenAreAppendedInOrder)
{
    LaidWindow window(100, 100);
    const auto first = window.itemSpace(kRow);
    const auto second = window.pane(kRow, kGreedy, 0, 0, 0);
    LayoutMgr::CPane pane = window.pane(kColumn, kGreedy, 0, 0, 0) << first << second;
    ASSERT_EQ(2, pane->count());
    EXPECT_TRUE(pane->child(0) == first);
    EXPECT_TRUE(pane->child(1) == second.ConvertBase());
}

TEST(LayoutManager, AnIndexOutsideTheChildrenIsRefused)
{
    LaidWindow window(100, 100);
    const auto pane = window.pane(kRow, kGreedy, 0, 0, 0) << window.itemSpace(kRow);
    for (const int index : {-1, 1, 99})
    {
        EXPECT_TRUE(vorn::test::Throws<CInvalidArgException>(
            [&]
            {
                pane->child(index);
            }))
            << index;
    }
}

TEST(LayoutManager, NothingIsAppendedBelowItself)
{
    LaidWindow window(100, 100);
    LayoutMgr::CPane outer = window.pane(kRow, kGreedy, 0, 0, 0);
    LayoutMgr::CPane inner = window.pane(kRow, kGreedy, 0, 0, 0);
    outer << outer;
    outer << inner;
    inner << outer;
    outer << LayoutMgr::CPane();
    outer << LayoutMgr::CPaneBase();
    LayoutMgr::CPane() << inner;
    EXPECT_EQ(1, outer->count());
    EXPECT_EQ(0, inner->count());
}

TEST(LayoutManager, ANodeOfTheProgramsOwnIsPlacedInItsSlot)
{
    LaidWindow window(110, 100);
    window.AddButton(1);
    window.SetRootBorders(0, 0);
    int alive = 0;
    OwnNode* const fixed = new OwnNode(&window, alive, kFixed);
    OwnNode* const part = new OwnNode(&window, alive, LayoutMgr::PercentWidth);
    window.CreateRoot(kRow, 5, 0) << LayoutMgr::CPaneBase(fixed) << LayoutMgr::CPaneBase(part)
                                  << window.item(1, kGreedy, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ((std::vector<Edges>{{0, 0, 30, 100}}), fixed->placed);
    EXPECT_EQ((std::vector<Edges>{{35, 0, 65, 100}}), part->placed); // 28 of 70, and 30 at least
    EXPECT_EQ((Edges{70, 0, 110, 100}), window.PlaceOf(1));
}

TEST(LayoutManager, ANodeThatFailsEndsThePlacing)
{
    LaidWindow window(110, 100);
    window.AddButton(1);
    int alive = 0;
    OwnNode* const node = new OwnNode(&window, alive, kFixed);
    node->succeeds = false;
    const auto root = window.CreateRoot(kRow, 5, 0)
                      << LayoutMgr::CPaneBase(node) << window.item(1, kGreedy, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 20, 10}), window.PlaceOf(1));
    CRect rect(0, 0, 100, 100);
    EXPECT_FALSE(root->placeAt(rect));
}

/// An item that is shown although its control is hidden.
class AlwaysShown : public LayoutMgr::PaneItem
{
public:
    using PaneItem::PaneItem;
    bool isShown(bool) override
    {
        return true;
    }
};

TEST(LayoutManager, ADerivedItemDecidesWhetherItIsShown)
{
    LaidWindow window(100, 100);
    const HWND hidden = window.Add("Button", 1, 0, {0, 0, 30, 30});
    window.SetRootBorders(0, 0);
    const LayoutMgr::CPaneBase item(new AlwaysShown(&window, hidden, kGreedy, 0, 0, 50, 40));
    const auto root = window.CreateRoot(kRow, 0, 0) << item;
    EXPECT_EQ(50, root->getMinWidth());
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 100, 100}), window.PlaceOf(hidden));
}

TEST(LayoutManager, ALockIsAFlag)
{
    LaidWindow window(100, 100);
    window.AddButton(1);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kRow, 0, 0) << window.item(1, kGreedy, 0, 0, 0, 0);
    EXPECT_FALSE(window.LayoutLocked());
    window.LockLayout(true);
    window.LockLayout(true);
    EXPECT_TRUE(window.LayoutLocked());
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 20, 10}), window.PlaceOf(1));
    CRect rect(0, 0, 50, 40);
    window.Layout(rect); // only updates are held back
    EXPECT_EQ((Edges{0, 0, 50, 40}), window.PlaceOf(1));
    window.UnlockLayout();
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 100, 100}), window.PlaceOf(1));
    window.LockLayout(true);
    window.LockLayout(false);
    EXPECT_FALSE(window.LayoutLocked());
}

TEST(LayoutManager, AnUpdateCanTakeANewRoot)
{
    LaidWindow window(100, 100);
    window.AddButton(1);
    window.SetRootBorders(0, 0);
    LayoutMgr::CPane root = window.pane(kRow, kGreedy, 0, 10, 0) << window.item(1, kGreedy, 0, 0, 0, 0);
    window.UpdateLayout(root, false);
    EXPECT_EQ((Edges{10, 10, 90, 90}), window.PlaceOf(1));
}

TEST(LayoutManager, FourBordersCanDiffer)
{
    LaidWindow window(100, 100);
    window.AddButton(1);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kRow, 0, 0) << (window.pane(kRow, kGreedy, 0, CRect(1, 2, 3, 4), 0)
                                      << window.item(1, kGreedy, 0, 0, 0, 0));
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{1, 2, 97, 96}), window.PlaceOf(1));
}

TEST(LayoutManager, WithoutAWindowNothingHappens)
{
    LayoutMgr manager(nullptr);
    manager.CreateRoot(kRow, 0, 0) << manager.item(1, kGreedy, 0, 0, 0, 0)
                                   << manager.paneCtrl(2, kRow, kGreedy, 0, 0, 0, 0);
    manager.UpdateLayout(true);
    CRect rect(0, 0, 10, 10);
    manager.Layout(rect);
    manager.EraseBkgnd(nullptr);
    EXPECT_EQ(CRect(0, 0, 0, 0), manager.GetRect());
    EXPECT_TRUE(manager.Save("Section"));
    EXPECT_TRUE(manager.Load("Section"));
    LaidWindow window(100, 90);
    manager.SetWnd(&window);
    EXPECT_EQ(CRect(0, 0, 100, 90), manager.GetRect());
}

/// A dialog that can be sized, with two buttons.
class LaidDialog : public CDialog, public LayoutMgr
{
public:
    explicit LaidDialog(DWORD style, CWnd* parent = nullptr) : LayoutMgr(this)
    {
        DialogTemplateBuilder builder;
        const auto bytes = builder.Style(style)
                               .At({0, 0, 60, 40})
                               .Add(DialogTemplateBuilder::Button, 1, WS_CHILD | WS_VISIBLE, {0, 0, 10, 10})
                               .Add(DialogTemplateBuilder::Button, 2, WS_CHILD | WS_VISIBLE, {0, 0, 10, 10})
                               .Bytes();
        CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(bytes.data()), parent);
    }
    ~LaidDialog() override
    {
        DestroyWindow();
    }
    using LayoutMgr::GetTrackSizes;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SIZE)
        {
            ++sizes;
            UpdateLayout(false);
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }

public:
    int sizes = 0;
};

CSize SizeOfWindow(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect.Size();
}

TEST(LayoutManager, ADialogSmallerThanItsMinimumGrows)
{
    LaidDialog dialog(WS_POPUP);
    const CSize before = SizeOfWindow(dialog);
    const int high = static_cast<int>(before.cy);
    dialog.CreateRoot(kRow, 5, 2) << dialog.item(1, kFixed, 400, 9, 0, 0) << dialog.item(2, kGreedy, 0, 0, 100, 0);
    const int sizes = dialog.sizes;
    dialog.UpdateLayout(false);
    EXPECT_EQ(CSize(400 + 100 + 5 + 4 + 10, high), SizeOfWindow(dialog));
    EXPECT_EQ(sizes + 1, dialog.sizes);
    CRect second;
    dialog.GetDlgItem(2)->GetWindowRect(&second);
    dialog.ScreenToClient(&second);
    EXPECT_EQ(CRect(5 + 2 + 400 + 5, 7, 512, high - 7), second);
}

TEST(LayoutManager, AMinimisedDialogDoesNotGrow)
{
    LaidDialog dialog(WS_POPUP | WS_CAPTION | WS_MINIMIZEBOX);
    const CSize before = SizeOfWindow(dialog);
    dialog.CreateRoot(kRow, 5, 2) << dialog.item(1, kFixed, 400, 9, 0, 0);
    dialog.ShowWindow(SW_SHOWMINIMIZED);
    ASSERT_TRUE(dialog.IsIconic());
    dialog.UpdateLayout(false);
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    dialog.GetWindowPlacement(&placement);
    EXPECT_EQ(before, CRect(placement.rcNormalPosition).Size());
}

TEST(LayoutManager, OnlyTheSideThatIsTooSmallGrowsAndTheCornerStays)
{
    LaidDialog dialog(WS_POPUP);
    dialog.MoveWindow(70, 80, 900, 30, FALSE);
    dialog.CreateRoot(kColumn, 5, 2) << dialog.item(1, kGreedy, 0, 0, 100, 150);
    dialog.UpdateLayout(false);
    CRect place;
    dialog.GetWindowRect(&place);
    EXPECT_EQ(CRect(70, 80, 970, 80 + 150 + 4 + 10), place);
}

TEST(LayoutManager, OnlyDialogsOfTheirOwnGrow)
{
    LaidWindow window(100, 100);
    window.AddButton(1);
    window.CreateRoot(kRow, 0, 0) << window.item(1, kGreedy, 0, 0, 300, 0);
    window.UpdateLayout(false);
    EXPECT_EQ(CSize(100, 100), SizeOfWindow(window));

    LaidDialog child(WS_CHILD, &window);
    const CSize before = SizeOfWindow(child);
    child.CreateRoot(kRow, 0, 0) << child.item(1, kGreedy, 0, 0, 900, 0);
    child.UpdateLayout(false);
    EXPECT_EQ(before, SizeOfWindow(child));
}

TEST(LayoutManager, TrackSizesAreThoseOfTheRootWithItsBordersAndTheFrame)
{
    LaidDialog dialog(WS_POPUP | WS_CAPTION | WS_THICKFRAME);
    CSize least;
    CSize most;
    EXPECT_FALSE(dialog.GetTrackSizes(least, most));
    dialog.SetRootBorders(3, 4);
    dialog.CreateRoot(kColumn, 5, 2) << dialog.item(1, kFixed, 40, 30, 0, 0) << dialog.item(2, kFixed, 60, 20, 0, 0);
    ASSERT_TRUE(dialog.GetTrackSizes(least, most));
    CRect client;
    dialog.GetClientRect(&client);
    const CSize frame = SizeOfWindow(dialog) - client.Size();
    EXPECT_GT(frame.cy, frame.cx);
    EXPECT_EQ(CSize(60 + 4 + 6, 30 + 20 + 5 + 4 + 8) + frame, least);
    EXPECT_EQ(CSize(60 + 6, 30 + 20 - 1 + 5 + 4 + 8) + frame, most);
    dialog.CreateRoot(kColumn, 5, 2) << dialog.item(1, kGreedy, 0, 0, 0, 0);
    ASSERT_TRUE(dialog.GetTrackSizes(least, most));
    EXPECT_EQ(CSize(-1, -1), most);
}

} // namespace
