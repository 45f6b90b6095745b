#include "family/VornChart/VornChartApp.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <type_traits>

using vorn::test::SlotOf;

namespace
{

// No test leaves a registration behind.
class ChartApp : public testing::Test
{
protected:
    void TearDown() override
    {
        VornChartApp::FreeInst();
    }
};

} // namespace

TEST_F(ChartApp, IsNotRegisteredByItsConstruction)
{
    const VornChartApp app;
    EXPECT_EQ(VornChartApp::Inst(), nullptr);
}

TEST_F(ChartApp, LastRegistrationHoldsUntilItIsFreed)
{
    VornChartApp first;
    VornChartApp second;
    VornChartApp::Inst(&first);
    EXPECT_EQ(VornChartApp::Inst(), &first);
    VornChartApp::Inst(&second);
    EXPECT_EQ(VornChartApp::Inst(), &second);
    VornChartApp::FreeInst();
    EXPECT_EQ(VornChartApp::Inst(), nullptr);
    VornChartApp::FreeInst();
    EXPECT_EQ(VornChartApp::Inst(), nullptr);
}

TEST_F(ChartApp, NullRegistrationEndsIt)
{
    VornChartApp app;
    VornChartApp::Inst(&app);
    VornChartApp::Inst(nullptr);
    EXPECT_EQ(VornChartApp::Inst(), nullptr);
}

TEST_F(ChartApp, FreeingTheRegistrationLeavesTheObject)
{
    static bool deleted = false;
    struct Watched : VornChartApp
    {
        ~Watched() override
        {
            deleted = true;
        }
    };
    {
        Watched app;
        VornChartApp::Inst(&app);
        VornChartApp::FreeInst();
        EXPECT_FALSE(deleted);
    }
    EXPECT_TRUE(deleted);
}

TEST_F(ChartApp, DestructionOfTheRegisteredObjectClearsTheRegistration)
{
    {
        VornChartApp app;
        VornChartApp::Inst(&app);
    }
    EXPECT_EQ(VornChartApp::Inst(), nullptr);
}

TEST_F(ChartApp, DestructionOfAnotherObjectLeavesTheRegistration)
{
    VornChartApp registered;
    VornChartApp::Inst(&registered);
    {
        const VornChartApp other;
    }
    EXPECT_EQ(VornChartApp::Inst(), &registered);
}

TEST_F(ChartApp, AnswersWithDefaults)
{
    VornChartApp app;
    EXPECT_FALSE(app.OnPreparePrinting(nullptr, nullptr));
    EXPECT_TRUE(app.GetVornGlyph("NM").IsEmpty());
    EXPECT_EQ(app.IsTrial(), FALSE);
    EXPECT_STREQ(app.GetSettingString("Section", "Key", "otherwise"), "otherwise");
    EXPECT_STREQ(app.GetSettingString("Section", "Key", nullptr), "");
    EXPECT_STREQ(app.GetSettingString(nullptr, nullptr, "otherwise"), "otherwise");
    EXPECT_EQ(app.GetSettingInt("Section", "Key", -7), -7);
    app.WriteSettingString("Section", "Key", "value");
    app.WriteSettingInt(nullptr, nullptr, 1);
}

TEST_F(ChartApp, OperationsStandInTheInterfacesOrder)
{
    static_assert(std::has_virtual_destructor_v<VornChartApp>);
    EXPECT_EQ(SlotOf(&VornChartApp::CreateCriticalSection), 2);
    EXPECT_EQ(SlotOf(&VornChartApp::OnPreparePrinting), 3);
    EXPECT_EQ(SlotOf(&VornChartApp::GetVornGlyph), 4);
    EXPECT_EQ(SlotOf(&VornChartApp::IsTrial), 5);
    EXPECT_EQ(SlotOf(&VornChartApp::GetSettingString), 6);
    EXPECT_EQ(SlotOf(&VornChartApp::WriteSettingString), 7);
    EXPECT_EQ(SlotOf(&VornChartApp::GetSettingInt), 8);
    EXPECT_EQ(SlotOf(&VornChartApp::WriteSettingInt), 9);
}
