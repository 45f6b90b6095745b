#include "aviation/LoadViewDef.h"
#include "config/AppRegMgr.h"
#include "family/VornChart/core/ViewDefinition.h"
#include "tests/support/MemoryRefusal.h"
#include "tests/windows/projection/ProjectionFixture.h"

#include <functional>

using namespace vorn::test;

// What happens when memory runs out at each of the requests in turn.
namespace
{
constexpr int kBuiltIn = 6;
constexpr int kMostRequests = 2000;

class ProjectionFaults : public ProjectionRegistry
{
protected:
    /// Runs `action` with the first request and all later ones refused, then from the second on, ..., until it needs no
    /// more. It tells whether it succeeded; `check` looks at what each refusal left.
    void AtEveryRequest(const std::function<bool()>& action, const std::function<void(bool succeeded)>& check)
    {
        for (int allowed = 0; allowed < kMostRequests; ++allowed)
        {
            m_memory.RefuseAfter(allowed);
            const bool succeeded = action();
            if (m_memory.Stop() == 0)
            {
                EXPECT_TRUE(succeeded);
                EXPECT_GE(allowed, 1) << "no memory was asked for";
                return;
            }
            check(succeeded);
        }
        ADD_FAILURE() << "never enough memory";
    }

private:
    MemoryRefusal m_memory{"VornCommon.dll", "VornChart.dll"};
};

TEST_F(ProjectionFaults, ARegistryIsMadeWholeOrNotAtAll)
{
    std::string first = PluginPath("first");
    std::string second = PluginPath("second");
    char* paths[] = {first.data(), second.data()};
    AtEveryRequest(
        [&]
        {
            return WinProjectionLib::Init(paths, 2);
        },
        [](bool succeeded)
        {
            EXPECT_FALSE(succeeded);
            EXPECT_EQ(ProjectionLib::mpInstance, nullptr);
            EXPECT_FALSE(IsLoaded("first"));
            EXPECT_FALSE(IsLoaded("second"));
            WinProjectionLib::Deinit();
        });
    EXPECT_EQ(Names(), (std::vector<std::string>{"First", "Second"}));
}

TEST_F(ProjectionFaults, ProjectionsAreNotMade)
{
    ASSERT_TRUE(StartWith({"first"}));
    for (int number = 0; number <= kBuiltIn; ++number)
    {
        AtEveryRequest(
            [number]
            {
                return Make(number) != nullptr;
            },
            [number](bool succeeded)
            {
                EXPECT_FALSE(succeeded) << number;
                EXPECT_EQ(Counter("first", "g_living"), 0) << "the module's own is ended";
            });
    }
    EXPECT_EQ(ProjectionLib::mpInstance->NumProjections(), kBuiltIn + 1);
    EXPECT_NE(Make(kBuiltIn), nullptr) << "the module is still there";
}

TEST_F(ProjectionFaults, ClonesAreNotMadeAndLeaveNothingInTheModule)
{
    ASSERT_TRUE(StartWith({"first"}));
    for (int number = 0; number <= kBuiltIn; ++number)
    {
        const auto projection = Make(number);
        ASSERT_NE(projection, nullptr) << number;
        const int living = Counter("first", "g_living");
        AtEveryRequest(
            [&]
            {
                return std::unique_ptr<Projection>(projection->Clone()) != nullptr;
            },
            [&](bool succeeded)
            {
                EXPECT_FALSE(succeeded) << number;
                EXPECT_EQ(Counter("first", "g_living"), living) << number;
            });
        EXPECT_EQ(Counter("first", "g_living"), living) << "the last clone is ended too";
    }
}

TEST_F(ProjectionFaults, TheChartLibrarysOwnProjectionsAreNullWithoutMemory)
{
    for (int number = 0; number < kBuiltIn; ++number)
    {
        AtEveryRequest(
            [number]
            {
                return std::unique_ptr<Projection>(Projection::CreateProjection(number)) != nullptr;
            },
            [number](bool succeeded)
            {
                EXPECT_FALSE(succeeded) << number;
            });
    }
}

TEST_F(ProjectionFaults, AViewOfManyParametersIsRefused)
{
    ViewDefinition view;
    const std::string before = view.Format().GetString();
    AtEveryRequest(
        [&]
        {
            return view.Parse("v1|2|2|33|45|1|2|3|4|5|6|7|8|9|");
        },
        [&](bool succeeded)
        {
            EXPECT_FALSE(succeeded);
            EXPECT_EQ(view.Format().GetString(), before);
        });
    EXPECT_EQ(view.mParams, (std::vector<double>{33, 45}));
}

TEST_F(ProjectionFaults, AViewIsLoadedOrStaysAsItWas)
{
    AppRegMgr* const settings = AppRegMgr::Instance();
    const std::string stored = "v1|2|0|1|2|3|4|5000|6|7|8|9|";
    ASSERT_TRUE(settings->WriteVornString("FaultViews", "Last", stored.c_str(), 0));
    std::string text;
    AtEveryRequest(
        [&]
        {
            ViewDefinition view;
            const bool loaded = LoadViewDef(&view, "FaultViews", "Last");
            text = loaded ? "loaded" : view.mProjection == ViewDefinition().mProjection ? "as it was" : "changed";
            return loaded;
        },
        [&](bool succeeded)
        {
            EXPECT_EQ(text, succeeded ? "loaded" : "as it was");
        });
    ViewDefinition view;
    EXPECT_TRUE(LoadViewDef(&view, "FaultViews", "Last"));
    EXPECT_EQ(view.mProjection, 2);
    EXPECT_TRUE(settings->WriteVornString("FaultViews", "Last", "", 0));
}
} // namespace
