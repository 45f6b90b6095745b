#include "config/core/SettingsKey.h"
#include "config/core/SharedSections.h"

#include <gtest/gtest.h>

#include <map>

using namespace vorn;

namespace
{
using Values = std::map<std::string, std::string>;

SharedSections fromValues(const Values& values)
{
    return readSharedSections(
        [&](const std::string& key)
        {
            const auto value = values.find(key);
            return value == values.end() ? std::string() : value->second;
        });
}

SharedSections listed(std::string section)
{
    SharedSections sections;
    sections.add(std::move(section));
    return sections;
}
} // namespace

TEST(SettingsKey, IsMadeOfApplicationAndSection)
{
    EXPECT_EQ(applicationKey("VornView"), "Software\\Vornwald\\VornView");
    EXPECT_EQ(sectionKey("VornView", "Units"), "Software\\Vornwald\\VornView\\Units");
    EXPECT_EQ(sectionKey("VornView", "Views\\World"), "Software\\Vornwald\\VornView\\Views\\World");
}

TEST(SettingsKey, EmptySectionIsTheApplicationsKey)
{
    EXPECT_EQ(sectionKey("VornView", ""), "Software\\Vornwald\\VornView");
}

TEST(SettingsKey, OnlyARealSectionNamesAKeyOfItsOwn)
{
    EXPECT_TRUE(namesOwnKey("Units"));
    EXPECT_TRUE(namesOwnKey("\\Units"));
    EXPECT_FALSE(namesOwnKey(""));
    EXPECT_FALSE(namesOwnKey("\\"));
    EXPECT_FALSE(namesOwnKey("\\\\\\"));
}

TEST(SettingsKeyRoot, IsTheMachineForEverySectionWhenNoneIsListed)
{
    const SharedSections none;
    EXPECT_TRUE(none.isMachineWide("Global", "Network"));
    EXPECT_TRUE(none.isMachineWide("Installers", "Paths"));
}

TEST(SettingsKeyRoot, IsTheUserForSectionsThatAreNotListed)
{
    const SharedSections sections = listed("Network");
    EXPECT_TRUE(sections.isMachineWide("Global", "Network"));
    EXPECT_TRUE(sections.isMachineWide("Global", "NETWORK"));
    EXPECT_FALSE(sections.isMachineWide("Global", "Paths"));
    EXPECT_FALSE(sections.isMachineWide("Global", "Networks"));
}

TEST(SettingsKeyRoot, IsTheUserForAnEmptySection)
{
    EXPECT_FALSE(SharedSections().holds(""));
    EXPECT_FALSE(SharedSections().isMachineWide("Global", ""));
    EXPECT_FALSE(listed("Network").isMachineWide("Global", ""));
}

TEST(SettingsKeyRoot, IsTheUserForProxySectionsOfGlobalEvenWhenListed)
{
    EXPECT_FALSE(SharedSections().isMachineWide("Global", "proxy"));
    EXPECT_FALSE(SharedSections().isMachineWide("GLOBAL", "My Proxy Settings"));
    EXPECT_FALSE(listed("Proxy").isMachineWide("global", "Proxy"));
    EXPECT_TRUE(SharedSections().isMachineWide("Global", "prox"));
}

TEST(SettingsKeyRoot, IsTheMachineForProxySectionsOfOtherNames)
{
    EXPECT_TRUE(SharedSections().isMachineWide("Installers", "Proxy"));
    EXPECT_TRUE(listed("Proxy").isMachineWide("Installers", "proxy"));
}

TEST(SettingsKeyList, TakesNamesWhoseOwnKeyIsExactlyOne)
{
    const auto sections = fromValues({{"Name0", "Network"},
                                      {"Name1", "Paths"},
                                      {"Name2", "Charts"},
                                      {"Name3", "Fonts"},
                                      {"Network", "1"},
                                      {"Paths", "0"},
                                      {"Charts", "1 "},
                                      {"Fonts", "11"}});
    EXPECT_EQ(sections.names(), std::vector<std::string>{"Network"});
}

TEST(SettingsKeyList, EndsAtTheFirstGap)
{
    const auto sections = fromValues({{"Name0", "A"}, {"Name2", "C"}, {"A", "1"}, {"C", "1"}});
    EXPECT_EQ(sections.names(), std::vector<std::string>{"A"});
}

TEST(SettingsKeyList, TakesAHundredNamesAtMost)
{
    Values values{{"S", "1"}};
    for (int i = 0; i < 150; ++i)
    {
        values.emplace("Name" + std::to_string(i), "S");
    }
    EXPECT_EQ(fromValues(values).names().size(), 100u);
}

TEST(SettingsKeyList, OfNothingIsEmpty)
{
    EXPECT_TRUE(fromValues({}).names().empty());
    EXPECT_TRUE(fromValues({}).holds("Anything"));
}

TEST(SettingsKeyList, ForgetsItsSectionsWhenCleared)
{
    SharedSections sections = listed("Network");
    EXPECT_FALSE(sections.holds("Paths"));
    sections.clear();
    EXPECT_TRUE(sections.holds("Paths"));
}
