#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

namespace
{
bool IsOnTheScreen(const CWnd& window)
{
    return window.m_hWnd && ::IsWindowVisible(window.m_hWnd);
}
} // namespace

TEST(NestedModalDialogs, EachReturnsItsOwnResult)
{
    NotingDialog outer;
    NotingDialog inner(&outer);
    INT_PTR innerResult = 0;
    BOOL outerEnabledInside = TRUE;
    DialogDriver innerDriver(
        [&]
        {
            if (!IsOnTheScreen(inner))
                return false;
            outerEnabledInside = outer.IsWindowEnabled();
            inner.EndDialog(2);
            return true;
        });
    DialogDriver outerDriver(
        [&]
        {
            if (!IsOnTheScreen(outer))
                return false;
            innerResult = inner.DoModal();
            EXPECT_TRUE(outer.IsWindowEnabled());
            EXPECT_TRUE(IsOnTheScreen(outer));
            outer.EndDialog(1);
            return true;
        });
    EXPECT_EQ(outer.DoModal(), 1);
    EXPECT_EQ(innerResult, 2);
    EXPECT_FALSE(outerEnabledInside);
}

TEST(NestedModalDialogs, EndOfTheOuterWaitsForTheInner)
{
    NotingDialog outer;
    NotingDialog inner(&outer);
    bool innerReturned = false;
    DialogDriver innerDriver(
        [&]
        {
            if (!IsOnTheScreen(inner))
                return false;
            outer.EndDialog(10); // from inside the inner loop
            inner.EndDialog(20);
            return true;
        });
    DialogDriver outerDriver(
        [&]
        {
            if (!IsOnTheScreen(outer))
                return false;
            EXPECT_EQ(inner.DoModal(), 20);
            innerReturned = true;
            return true;
        });
    EXPECT_EQ(outer.DoModal(), 10);
    EXPECT_TRUE(innerReturned);
}

TEST(NestedModalDialogs, DestroyedOuterTakesTheInnerAlong)
{
    OwnerWindow owner;
    NotingDialog outer(&owner);
    NotingDialog inner(&outer);
    DialogDriver innerDriver(
        [&]
        {
            return IsOnTheScreen(inner) && outer.DestroyWindow();
        });
    INT_PTR innerResult = 0;
    DialogDriver outerDriver(
        [&]
        {
            if (!IsOnTheScreen(outer))
                return false;
            innerResult = inner.DoModal();
            return true;
        });
    EXPECT_EQ(outer.DoModal(), -1);
    EXPECT_EQ(innerResult, -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(NestedModalDialogs, OpenedInOnInitDialogOfAnother)
{
    OwnerWindow owner;
    NotingDialog outer(&owner);
    NotingDialog inner(&outer);
    DialogDriver innerDriver(
        [&]
        {
            if (!IsOnTheScreen(inner))
                return false;
            inner.EndDialog(5);
            return true;
        });
    INT_PTR innerResult = 0;
    outer.m_onInit = [&](NotingDialog&)
    {
        innerResult = inner.DoModal();
        return TRUE;
    };
    DialogDriver outerDriver(
        [&]
        {
            if (!IsOnTheScreen(outer) || inner.m_hWnd)
                return false;
            outer.EndDialog(6);
            return true;
        });
    EXPECT_EQ(outer.DoModal(), 6);
    EXPECT_EQ(innerResult, 5);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(NestedModalDialogs, ThreeDeepGiveTheOwnersBackOneByOne)
{
    OwnerWindow owner;
    NotingDialog first(&owner);
    NotingDialog second(&first);
    NotingDialog third(&second);
    std::vector<int> enabled;
    const auto note = [&]
    {
        enabled.push_back(owner.IsWindowEnabled() * 4 + first.IsWindowEnabled() * 2 + second.IsWindowEnabled());
    };
    DialogDriver thirdDriver(
        [&]
        {
            if (!IsOnTheScreen(third))
                return false;
            note();
            third.EndDialog(3);
            return true;
        });
    DialogDriver secondDriver(
        [&]
        {
            if (!IsOnTheScreen(second))
                return false;
            third.DoModal();
            note();
            second.EndDialog(2);
            return true;
        });
    DialogDriver firstDriver(
        [&]
        {
            if (!IsOnTheScreen(first))
                return false;
            second.DoModal();
            enabled.push_back(owner.IsWindowEnabled() * 4 + first.IsWindowEnabled() * 2);
            first.EndDialog(1);
            return true;
        });
    EXPECT_EQ(first.DoModal(), 1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(enabled, (std::vector<int>{0, 1, 2}));
}
