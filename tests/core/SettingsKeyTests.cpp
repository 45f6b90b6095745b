#include "config/core/SettingsKey.h"
#include "config/core/SharedSections.h"

#include <gtest/gtest.h>

#include <map>

using namespace vorn;

namespace
{
using Values = std::map<std::string, std::string>;

SharedSections FromValues(const Values& values)
{
    return ReadSharedSections(
        [&](const std::string& key)
        {
            const auto value = values.find(key);
            return value == values.end() ? std::string() : value->second;
        });
}

SharedSections Listed(std::string section)
{
    SharedSections sections;
    sections.Add(std::move(section));
    return sections;
}
} // namespace

TEST(SettingsKey, IsMadeOfApplicationAndSection)
{
    EXPECT_EQ(ApplicationKey("VornView"), "Software\\Vornwald\\VornView");
    EXPECT_EQ(SectionKey("VornView", "Units"), "Software\\Vornwald\\VornView\\Units");
    EXPECT_EQ(SectionKey("VornView", "Views\\World"), "Software\\Vornwald\\VornView\\Views\\World");
}

TEST(SettingsKey, EmptySectionIsTheApplicationsKey)
{
    EXPECT_EQ(SectionKey("VornView", ""), "Software\\Vornwald\\VornView");
}

TEST(SettingsKey, OnlyARealSectionNamesAKeyOfItsOwn)
{
    EXPECT_TRUE(NamesOwnKey("Units"));
    EXPECT_TRUE(NamesOwnKey("\\Units"));
    EXPECT_FALSE(NamesOwnKey(""));
    EXPECT_FALSE(NamesOwnKey("\\"));
    EXPECT_FALSE(NamesOwnKey("\\\\\\"));
}

TEST(SettingsKeyRoot, IsTheMachineForEverySectionWhenNoneIsListed)
{
    const SharedSections none;
    EXPECT_TRUE(none.IsMachineWide("Global", "Network"));
    EXPECT_TRUE(none.IsMachineWide("Installers", "Paths"));
}

TEST(SettingsKeyRoot, IsTheUserForSectionsThatAreNotListed)
{
    const SharedSections sections = Listed("Network");
    EXPECT_TRUE(sections.IsMachineWide("Global", "Network"));
    EXPECT_TRUE(sections.IsMachineWide("Global", "NETWORK"));
    EXPECT_FALSE(sections.IsMachineWide("Global", "Paths"));
    EXPECT_FALSE(sections.IsMachineWide("Global", "Networks"));
}

TEST(SettingsKeyRoot, IsTheUserForAnEmptySection)
{
    EXPECT_FALSE(SharedSections().Holds(""));
    EXPECT_FALSE(SharedSections().IsMachineWide("Global", ""));
    EXPECT_FALSE(Listed("Network").IsMachineWide("Global", ""));
}

TEST(SettingsKeyRoot, IsTheUserForProxySectionsOfGlobalEvenWhenListed)
{
    EXPECT_FALSE(SharedSections().IsMachineWide("Global", "proxy"));
    EXPECT_FALSE(SharedSections().IsMachineWide("GLOBAL", "My Proxy Settings"));
    EXPECT_FALSE(Listed("Proxy").IsMachineWide("global", "Proxy"));
    EXPECT_TRUE(SharedSections().IsMachineWide("Global", "prox"));
}

TEST(SettingsKeyRoot, IsTheMachineForProxySectionsOfOtherNames)
{
    EXPECT_TRUE(SharedSections().IsMachineWide("Installers", "Proxy"));
    EXPECT_TRUE(Listed("Proxy").IsMachineWide("Installers", "proxy"));
}

TEST(SettingsKeyList, TakesNamesWhoseOwnKeyIsExactlyOne)
{
    const auto sections = FromValues({{"Name0", "Network"},
                                      {"Name1", "Paths"},
                                      {"Name2", "Charts"},
                                      {"Name3", "Fonts"},
                                      {"Network", "1"},
                                      {"Paths", "0"},
                                      {"Charts", "1 "},
                                      {"Fonts", "11"}});
    EXPECT_EQ(sections.Names(), std::vector<std::string>{"Network"});
}

TEST(SettingsKeyList, EndsAtTheFirstGap)
{
    const auto sections = FromValues({{"Name0", "A"}, {"Name2", "C"}, {"A", "1"}, {"C", "1"}});
    EXPECT_EQ(sections.Names(), std::vector<std::string>{"A"});
}

TEST(SettingsKeyList, TakesAHundredNamesAtMost)
{
    Values values{{"S", "1"}};
    for (int i = 0; i < 150; ++i)
    {
        values.emplace("Name" + std::to_string(i), "S");
    }
    EXPECT_EQ(FromValues(values).Names().size(), 100u);
}

TEST(SettingsKeyList, OfNothingIsEmpty)
{
    EXPECT_TRUE(FromValues({}).Names().empty());
    EXPECT_TRUE(FromValues({}).Holds("Anything"));
}
