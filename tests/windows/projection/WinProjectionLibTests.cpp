#include "family/VornChart/core/ExternalProj.h"
#include "family/VornChart/core/VornLog.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/projection/ProjectionFixture.h"

#include <limits>

using namespace vorn::test;
using Strings = std::vector<std::string>;

namespace
{
constexpr int kBuiltInNames = 6;

/// The process's log while it lives.
struct SharedLog : VornLog
{
    SharedLog()
    {
        mpSingleInst = this;
    }
    ~SharedLog() override
    {
        mpSingleInst = nullptr;
    }
};

class WinProjectionLibTest : public ProjectionRegistry
{
};

bool IsExternal(const std::unique_ptr<Projection>& projection)
{
    return dynamic_cast<const ExternalProj*>(projection.get()) != nullptr;
}
} // namespace

TEST_F(WinProjectionLibTest, WithoutModulesItKnowsTheBuiltInProjections)
{
    EXPECT_TRUE(WinProjectionLib::Init(nullptr, 0));
    ASSERT_NE(ProjectionLib::mpInstance, nullptr);
    EXPECT_NE(dynamic_cast<WinProjectionLib*>(ProjectionLib::mpInstance), nullptr);
    EXPECT_EQ(ProjectionLib::mpInstance->NumProjections(), kBuiltInNames);
    EXPECT_EQ(ProjectionLib::mpInstance->NumBuiltIn(), kBuiltInNames);
    for (int i = 0; i < kBuiltInNames; ++i)
    {
        const auto projection = Make(i);
        ASSERT_NE(projection, nullptr);
        EXPECT_FALSE(IsExternal(projection));
        EXPECT_STREQ(projection->QueryProjectionName(), ProjectionLib::mpInstance->ProjectionName(i));
    }
}

TEST_F(WinProjectionLibTest, ASecondInitFailsAndLoadsNothing)
{
    ASSERT_TRUE(StartWith({"first"}));
    ProjectionLib* const before = ProjectionLib::mpInstance;
    EXPECT_FALSE(StartWith({"second"}));
    EXPECT_EQ(ProjectionLib::mpInstance, before);
    EXPECT_FALSE(IsLoaded("second"));
    EXPECT_EQ(Names(), Strings({"First"}));
}

TEST_F(WinProjectionLibTest, EndsAndStartsAgain)
{
    WinProjectionLib::Deinit(); // there is none
    ASSERT_TRUE(StartWith({"first"}));
    WinProjectionLib::Deinit();
    EXPECT_EQ(ProjectionLib::mpInstance, nullptr);
    EXPECT_FALSE(IsLoaded("first"));
    ASSERT_TRUE(StartWith({"second", "first"}));
    EXPECT_EQ(Names(), Strings({"Second", "First"}));
    ProjectionLib::Deinit(); // the base's is the same
    EXPECT_FALSE(IsLoaded("first"));
    EXPECT_FALSE(IsLoaded("second"));
}

TEST_F(WinProjectionLibTest, ModulesFollowTheBuiltInProjectionsInTheirOrder)
{
    ASSERT_TRUE(StartWith({"first", "second", "third"}));
    EXPECT_EQ(ProjectionLib::mpInstance->NumProjections(), kBuiltInNames + 3);
    EXPECT_EQ(ProjectionLib::mpInstance->NumBuiltIn(), kBuiltInNames);
    EXPECT_EQ(Names(), Strings({"First", "Second", "Third"}));
    for (int i = kBuiltInNames; i < kBuiltInNames + 3; ++i)
    {
        const auto projection = Make(i);
        ASSERT_TRUE(IsExternal(projection));
        EXPECT_STREQ(projection->QueryProjectionName(), ProjectionLib::mpInstance->ProjectionName(i));
        double x = 0;
        double y = 0;
        EXPECT_TRUE(projection->LLtoXY(1, 2, x, y));
        EXPECT_EQ(x, 79); // with the handle 77 that the module gave
        EXPECT_EQ(y, 1);
    }
}

TEST_F(WinProjectionLibTest, InitialisesAndEndsTheModulesProjections)
{
    ASSERT_TRUE(StartWith({"first"}));
    {
        const auto one = Make(kBuiltInNames);
        EXPECT_EQ(Counter("first", "g_inits"), 1);
        const auto two = Make(kBuiltInNames);
        EXPECT_EQ(Counter("first", "g_inits"), 2);
        EXPECT_EQ(Counter("first", "g_living"), 2);
    }
    EXPECT_EQ(Counter("first", "g_living"), 0);
    EXPECT_EQ(Counter("first", "g_inits"), 2);
}

TEST_F(WinProjectionLibTest, SkipsModulesWithoutAReadableNameAndLetsThemGo)
{
    const Strings bad = {"no_query", "null_name", "bad_name", "noaccess_name", "endless_name", "cut_name"};
    for (const std::string& name : bad)
    {
        EXPECT_TRUE(StartWith({name}));
        EXPECT_TRUE(Names().empty()) << name;
        EXPECT_FALSE(IsLoaded(name)) << name;
        EXPECT_EQ(Make(kBuiltInNames), nullptr) << name;
        WinProjectionLib::Deinit();
    }
    EXPECT_TRUE(StartWith({"null_name", "first", "no_query", "second", "bad_name"}));
    EXPECT_EQ(Names(), Strings({"First", "Second"}));
    EXPECT_STREQ(Make(kBuiltInNames + 1)->QueryProjectionName(), "Second");
}

TEST_F(WinProjectionLibTest, SkipsWhatIsNoModule)
{
    const ScratchFolder folder;
    const std::string text = folder.Write("text.dll", "This is no module.");
    const std::string empty = folder.Write("empty.dll", "");
    const std::string half = folder.Write("half.dll", ReadWholeFile(PluginPath("first")).substr(0, 600));
    const UINT before = GetErrorMode();
    const DWORD threadBefore = GetThreadErrorMode();
    EXPECT_TRUE(Start({text, empty, half, folder.File("none.dll"), "", "C:\\", std::string(5000, 'x'),
                       PluginPath("first"), folder.Path().string()}));
    EXPECT_EQ(Names(), Strings({"First"}));
    EXPECT_EQ(GetErrorMode(), before);
    EXPECT_EQ(GetThreadErrorMode(), threadBefore);
}

TEST_F(WinProjectionLibTest, SkipsNullPaths)
{
    EXPECT_TRUE(WinProjectionLib::Init(nullptr, 3));
    EXPECT_EQ(ProjectionLib::mpInstance->NumProjections(), kBuiltInNames);
    WinProjectionLib::Deinit();

    std::string first = PluginPath("first");
    char* paths[] = {nullptr, first.data(), nullptr};
    EXPECT_TRUE(WinProjectionLib::Init(paths, 3));
    EXPECT_EQ(Names(), Strings({"First"}));
    WinProjectionLib::Deinit();

    EXPECT_TRUE(WinProjectionLib::Init(paths, -1));
    EXPECT_EQ(ProjectionLib::mpInstance->NumProjections(), kBuiltInNames);
    WinProjectionLib::Deinit();
    EXPECT_TRUE(WinProjectionLib::Init(paths, 1)); // no further than it is told
    EXPECT_EQ(ProjectionLib::mpInstance->NumProjections(), kBuiltInNames);
}

TEST_F(WinProjectionLibTest, TakesEveryReadableName)
{
    ASSERT_TRUE(StartWith({"empty_name", "page_name", "changing_name", "first"}));
    EXPECT_EQ(Names(), Strings({"", "AB", "A", "First"}));
    const auto projection = Make(kBuiltInNames + 2);
    EXPECT_STREQ(projection->QueryProjectionName(), "B"); // the module's text changes, the registry's does not
    EXPECT_EQ(Names(), Strings({"", "AB", "A", "First"}));
}

TEST_F(WinProjectionLibTest, TheSamePathTwiceIsTwoProjections)
{
    ASSERT_TRUE(StartWith({"first", "first"}));
    EXPECT_EQ(Names(), Strings({"First", "First"}));
    EXPECT_TRUE(IsExternal(Make(kBuiltInNames)));
    EXPECT_TRUE(IsExternal(Make(kBuiltInNames + 1)));
    WinProjectionLib::Deinit();
    EXPECT_FALSE(IsLoaded("first")); // both references are gone
}

TEST_F(WinProjectionLibTest, NumbersThatThereAreNotGiveNull)
{
    ASSERT_TRUE(StartWith({"first"}));
    for (const int index :
         {-1, kBuiltInNames + 1, kBuiltInNames + 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    {
        EXPECT_EQ(Make(index), nullptr) << index;
    }
    EXPECT_TRUE(IsExternal(Make(kBuiltInNames)));
}

TEST_F(WinProjectionLibTest, AModuleThatCannotCreateIsDroppedAndTheLaterOnesMoveUp)
{
    ASSERT_TRUE(StartWith({"first", "no_create", "second", "third"}));
    EXPECT_EQ(Names(), Strings({"First", "No create", "Second", "Third"}));
    EXPECT_TRUE(IsLoaded("no_create"));
    EXPECT_EQ(Make(kBuiltInNames + 1), nullptr);
    EXPECT_FALSE(IsLoaded("no_create"));
    EXPECT_EQ(Names(), Strings({"First", "No create", "Second", "Third"})); // names stay
    EXPECT_STREQ(Make(kBuiltInNames)->QueryProjectionName(), "First");
    EXPECT_STREQ(Make(kBuiltInNames + 1)->QueryProjectionName(), "Second");
    EXPECT_STREQ(Make(kBuiltInNames + 2)->QueryProjectionName(), "Third");
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(Make(kBuiltInNames + 3), nullptr); // a name without a module
    }
    EXPECT_TRUE(IsLoaded("first") && IsLoaded("second") && IsLoaded("third"));
    EXPECT_STREQ(Make(kBuiltInNames + 2)->QueryProjectionName(), "Third");
    WinProjectionLib::Deinit();
    EXPECT_FALSE(IsLoaded("first") || IsLoaded("second") || IsLoaded("third"));
}

TEST_F(WinProjectionLibTest, ADroppedLastModuleLeavesTheOthers)
{
    ASSERT_TRUE(StartWith({"first", "no_create"}));
    EXPECT_EQ(Make(kBuiltInNames + 1), nullptr);
    EXPECT_EQ(Make(kBuiltInNames + 1), nullptr);
    EXPECT_FALSE(IsLoaded("no_create"));
    EXPECT_TRUE(IsExternal(Make(kBuiltInNames)));
}

TEST_F(WinProjectionLibTest, AModuleMayLackEverythingButNameAndCreation)
{
    ASSERT_TRUE(StartWith({"bare"}));
    const auto projection = Make(kBuiltInNames);
    ASSERT_TRUE(IsExternal(projection));
    EXPECT_STREQ(projection->QueryProjectionName(), "Bare");
    double x = 3;
    double y = 4;
    EXPECT_FALSE(projection->LLtoXY(1, 2, x, y));
    EXPECT_EQ(projection->Clone(), nullptr);
    EXPECT_TRUE(projection->IsZoomable());
    EXPECT_EQ(projection->ScaleMult(1, 2), 1);
}

TEST_F(WinProjectionLibTest, GivesProjectionsThatRefuseToStartAndZeroHandles)
{
    ASSERT_TRUE(StartWith({"unwilling", "zero_handle"}));
    const auto unwilling = Make(kBuiltInNames);
    ASSERT_TRUE(IsExternal(unwilling));
    EXPECT_EQ(Counter("unwilling", "g_inits"), 1);
    EXPECT_FALSE(unwilling->Init());
    EXPECT_TRUE(IsExternal(Make(kBuiltInNames + 1)));
}

TEST_F(WinProjectionLibTest, ProjectionsOutliveTheRegistry)
{
    ASSERT_TRUE(StartWith({"first", "bare"}));
    auto first = Make(kBuiltInNames);
    auto bare = Make(kBuiltInNames + 1);
    WinProjectionLib::Deinit();
    EXPECT_TRUE(IsLoaded("first") && IsLoaded("bare"));
    double x = 0;
    double y = 0;
    EXPECT_TRUE(first->LLtoXY(1, 2, x, y));
    EXPECT_EQ(x, 79);
    EXPECT_STREQ(bare->QueryProjectionName(), "Bare");
    first.reset();
    EXPECT_FALSE(IsLoaded("first"));
    EXPECT_TRUE(IsLoaded("bare"));
    bare.reset();
    EXPECT_FALSE(IsLoaded("bare"));
}

TEST_F(WinProjectionLibTest, TheLogNamesWhatIsSkipped)
{
    SharedLog log;
    EXPECT_TRUE(StartWith({"null_name", "first"}));
    char* raw = nullptr;
    log.GetLog(raw);
    const std::unique_ptr<char[]> text(raw);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(std::string(text.get()),
              "Projection module " + PluginPath("null_name") + " skipped: it tells no readable name\r\n");
}

TEST_F(WinProjectionLibTest, AThousandStartsKeepNothing)
{
    ASSERT_TRUE(StartWith({"first"}));
    for (int i = 0; i < 1000; ++i)
    {
        ASSERT_TRUE(IsExternal(Make(kBuiltInNames)));
    }
    EXPECT_EQ(Counter("first", "g_living"), 0);
    WinProjectionLib::Deinit();
    EXPECT_FALSE(IsLoaded("first")); // no projection kept its module
}

TEST_F(WinProjectionLibTest, StartingARunningRegistryAnewReplacesItsModules)
{
    ASSERT_TRUE(StartWith({"first", "second"}));
    std::string third = PluginPath("third");
    char* paths[] = {third.data()};
    EXPECT_TRUE(ProjectionLib::Init(paths, 1));
    EXPECT_EQ(Names(), Strings({"Third"}));
    EXPECT_FALSE(IsLoaded("first") || IsLoaded("second"));
    EXPECT_STREQ(Make(kBuiltInNames)->QueryProjectionName(), "Third");
}
