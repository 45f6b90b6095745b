#include "family/VornChart/core/ProjectionLib.h"
#include "tests/core/ProjectionCases.h"
#include "tests/support/VirtualSlot.h"

using namespace vorn::test;

namespace
{
/// A registry with one projection more, which counts what is asked of it.
class RegistryOfSeven : public ProjectionLib
{
public:
    static inline int s_living = 0;
    static inline int s_starts = 0;
    static inline int s_ends = 0;

    RegistryOfSeven()
    {
        ++s_living;
    }
    ~RegistryOfSeven() override
    {
        --s_living;
    }

    static std::array<int, 3> Slots()
    {
        return {SlotOf(&RegistryOfSeven::CreateProjection), SlotOf(&RegistryOfSeven::sInit),
                SlotOf(&RegistryOfSeven::sDeinit)};
    }

protected:
    bool sInit(char** paths, int count) override
    {
        ++s_starts;
        ProjectionLib::sInit(paths, count);
        mProjections.push_back({"Seventh"});
        return true;
    }
    void sDeinit() override
    {
        ++s_ends;
        ProjectionLib::sDeinit();
    }
};
} // namespace

TEST(ProjectionLib, KnowsTheBuiltInProjections)
{
    ProjectionLib::mpInstance = new ProjectionLib; // Deinit deletes it
    EXPECT_EQ(ProjectionLib::mpInstance->NumProjections(), 0);
    EXPECT_TRUE(ProjectionLib::Init(nullptr, 0));
    const ProjectionLib& library = *ProjectionLib::mpInstance;
    EXPECT_EQ(library.NumProjections(), 6);
    EXPECT_EQ(library.NumBuiltIn(), 6);
    EXPECT_STREQ(library.ProjectionName(1), "Mercator");
    EXPECT_EQ(library.ProjectionName(-1), nullptr);
    EXPECT_EQ(library.ProjectionName(6), nullptr);
    for (int i = 0; i < 6; ++i)
    {
        const std::unique_ptr<Projection> projection(ProjectionLib::mpInstance->CreateProjection(i));
        ASSERT_NE(projection, nullptr);
        EXPECT_STREQ(projection->QueryProjectionName(), library.ProjectionName(i));
    }
    EXPECT_EQ(ProjectionLib::mpInstance->CreateProjection(6), nullptr);
    EXPECT_TRUE(ProjectionLib::Init(nullptr, 0)); // again: the same names, not twice as many
    EXPECT_EQ(library.NumProjections(), 6);
    ProjectionLib::Deinit();
    EXPECT_EQ(ProjectionLib::mpInstance, nullptr);
}

TEST(ProjectionLib, WithoutARegistryThereIsNothingToStartOrEnd)
{
    ASSERT_EQ(ProjectionLib::mpInstance, nullptr);
    EXPECT_FALSE(ProjectionLib::Init(nullptr, 0));
    ProjectionLib::Deinit();
    EXPECT_EQ(ProjectionLib::mpInstance, nullptr);
}

TEST(ProjectionLib, StartsAndEndsTheDerivedRegistry)
{
    ProjectionLib::mpInstance = new RegistryOfSeven; // Deinit deletes it
    EXPECT_TRUE(ProjectionLib::Init(nullptr, 0));
    EXPECT_EQ(ProjectionLib::mpInstance->NumProjections(), 7);
    EXPECT_EQ(ProjectionLib::mpInstance->NumBuiltIn(), 6);
    EXPECT_STREQ(ProjectionLib::mpInstance->ProjectionName(6), "Seventh");
    ProjectionLib::Deinit();
    EXPECT_EQ(RegistryOfSeven::s_starts, 1);
    EXPECT_EQ(RegistryOfSeven::s_ends, 1);
    EXPECT_EQ(RegistryOfSeven::s_living, 0);
}

TEST(ProjectionLib, VirtualOperationsKeepTheirOrder)
{
    EXPECT_EQ(RegistryOfSeven::Slots(), (std::array<int, 3>{0, 1, 2}));
}
