#include "frame/core/FixedFileInfo.h"
#include "frame/core/ProgramRules.h"
#include "frame/core/TextCase.h"

#include <gtest/gtest.h>

#include <vector>

using namespace vorn;

namespace
{
void Put16(std::vector<std::byte>& bytes, unsigned value)
{
    bytes.push_back(static_cast<std::byte>(value & 0xFF));
    bytes.push_back(static_cast<std::byte>(value >> 8));
}

void Put32(std::vector<std::byte>& bytes, std::uint32_t value)
{
    Put16(bytes, value & 0xFFFF);
    Put16(bytes, value >> 16);
}

/// A version resource of file version 1.2.3.4 and the given product version, as resource compilers write it.
std::vector<std::byte> Resource(unsigned major, unsigned minor)
{
    std::vector<std::byte> bytes;
    Put16(bytes, 92);
    Put16(bytes, 52);
    Put16(bytes, 0);
    for (const char c : std::string("VS_VERSION_INFO"))
    {
        Put16(bytes, static_cast<unsigned char>(c));
    }
    Put32(bytes, 0); // terminator and padding
    for (const std::uint32_t value : {0xFEEF04BDu, 0x00010000u, 0x00010002u, 0x00030004u, major << 16 | minor,
                                      0x00050006u, 0x3Fu, 0u, 4u, 1u, 0u, 0u, 0u})
    {
        Put32(bytes, value);
    }
    return bytes;
}

void ExpectLeast(const SiblingRule& rule, int major, int minor)
{
    EXPECT_TRUE(rule.IsMetBy({major, minor}));
    EXPECT_TRUE(rule.IsMetBy({major + 1, minor}));
    EXPECT_TRUE(rule.IsMetBy({major, minor + 1}));
    EXPECT_FALSE(rule.IsMetBy({major, minor - 1}));
    EXPECT_FALSE(rule.IsMetBy({major - 1, 9}));
    EXPECT_FALSE(rule.IsMetBy({major + 1, 0}));
}
} // namespace

TEST(ProgramFile, IsChosenByProductWhateverItsCase)
{
    EXPECT_STREQ(ProgramFile("Aerolune"), "Aerolune\\Aerolune.exe");
    EXPECT_STREQ(ProgramFile("VORNVIEW"), "VornView3\\VornView3.exe");
    EXPECT_STREQ(ProgramFile("glasspad"), "Glasspad3\\Glasspad3.exe");
    EXPECT_EQ(ProgramFile("Glasspad3"), nullptr);
    EXPECT_EQ(ProgramFile(""), nullptr);
}

TEST(ProgramPath, JoinsFolderAndFileWithOneBackslash)
{
    EXPECT_EQ(ProgramPath("C:\\Vornwald", "Aerolune\\Aerolune.exe"), "C:\\Vornwald\\Aerolune\\Aerolune.exe");
    EXPECT_EQ(ProgramPath("C:\\Vornwald\\", "Aerolune\\Aerolune.exe"), "C:\\Vornwald\\Aerolune\\Aerolune.exe");
}

TEST(ProgramPath, IsNeverCut)
{
    EXPECT_EQ(ProgramPath(std::string(255, 'd') + "\\", "file")->size(), 260u);
    EXPECT_EQ(ProgramPath(std::string(256, 'd') + "\\", "file"), std::nullopt);
    EXPECT_EQ(ProgramPath(std::string(256, 'd'), "file"), std::nullopt);
}

TEST(ProgramRules, NameTwoSiblingsInTheOrderOfTheFlags)
{
    const SiblingRules* viewer = FindSiblingRules("vornview");
    ASSERT_NE(viewer, nullptr);
    EXPECT_STREQ(viewer->first.product, "Aerolune");
    EXPECT_STREQ(viewer->first.pathKey, "AeroluneDir");
    EXPECT_STREQ(viewer->second.product, "Glasspad");
    EXPECT_STREQ(viewer->second.pathKey, "Glasspad3Dir");

    const SiblingRules* planner = FindSiblingRules("AEROLUNE");
    ASSERT_NE(planner, nullptr);
    EXPECT_STREQ(planner->first.product, "VornView");
    EXPECT_STREQ(planner->first.pathKey, "VornView3Dir");
    EXPECT_STREQ(planner->second.product, "Glasspad");

    const SiblingRules* movingMap = FindSiblingRules("Glasspad");
    ASSERT_NE(movingMap, nullptr);
    EXPECT_STREQ(movingMap->first.product, "Aerolune");
    EXPECT_STREQ(movingMap->second.product, "VornView");
    EXPECT_STREQ(movingMap->second.pathKey, "VornView3Dir");
}

TEST(ProgramRules, AreAbsentForOtherProducts)
{
    EXPECT_EQ(FindSiblingRules("VornView3"), nullptr);
    EXPECT_EQ(FindSiblingRules(""), nullptr);
}

TEST(ProgramRules, CompareMajorAndMinorByThemselves)
{
    ExpectLeast(FindSiblingRules("VornView")->first, 9, 1);
    ExpectLeast(FindSiblingRules("VornView")->second, 3, 1);
    ExpectLeast(FindSiblingRules("Aerolune")->first, 3, 3);
    ExpectLeast(FindSiblingRules("Aerolune")->second, 3, 1);
    ExpectLeast(FindSiblingRules("Glasspad")->first, 9, 1);
    ExpectLeast(FindSiblingRules("Glasspad")->second, 3, 3);
    EXPECT_FALSE(FindSiblingRules("Glasspad")->first.IsMetBy({10, 0}));
    EXPECT_FALSE(FindSiblingRules("Glasspad")->second.IsMetBy({4, 0}));
}

TEST(ProgramVersionWords, AreTheProductVersionNotTheFileVersion)
{
    EXPECT_EQ(ProductVersion(Resource(9, 1)), (ProgramVersion{9, 1}));
}

TEST(ProgramVersionWords, AreUnsigned)
{
    EXPECT_EQ(ProductVersion(Resource(65535, 40000)), (ProgramVersion{65535, 40000}));
}

TEST(ProgramVersionWords, AreFoundWithTextPartsBehind)
{
    auto bytes = Resource(3, 3);
    bytes[0] = std::byte{200};
    bytes.resize(240, std::byte{0x55});
    EXPECT_EQ(ProductVersion(bytes), (ProgramVersion{3, 3}));
}

TEST(ProgramVersionWords, NeedTheFixedPart)
{
    auto bytes = Resource(3, 3);
    bytes[2] = std::byte{0};
    EXPECT_EQ(ProductVersion(bytes), std::nullopt);
    bytes[2] = std::byte{51};
    EXPECT_EQ(ProductVersion(bytes), std::nullopt);
}

TEST(ProgramVersionWords, NeedTheSignature)
{
    auto bytes = Resource(3, 3);
    bytes[40] = std::byte{0xBC};
    EXPECT_EQ(ProductVersion(bytes), std::nullopt);
}

TEST(ProgramVersionWords, AreAbsentWhenTheResourceBreaksOffAnywhere)
{
    const auto whole = Resource(3, 3);
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        const std::vector<std::byte> cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(ProductVersion(cut), std::nullopt) << size;
    }
    EXPECT_NE(ProductVersion(whole), std::nullopt);
}

TEST(ProgramVersionWords, AreAbsentWhenTheLengthIsShorterThanTheFixedPart)
{
    auto bytes = Resource(3, 3);
    bytes[0] = std::byte{91};
    EXPECT_EQ(ProductVersion(bytes), std::nullopt);
}

TEST(ProgramVersionWords, AreAbsentWhenTheKeyHasNoEnd)
{
    auto bytes = Resource(3, 3);
    std::fill(bytes.begin() + 6, bytes.end(), std::byte{0x41});
    EXPECT_EQ(ProductVersion(bytes), std::nullopt);
}

TEST(ProgramNames, FoldOnlyTheLettersOfTheAlphabet)
{
    EXPECT_TRUE(EqualsNoCase("VornView", "vORNvIEW"));
    EXPECT_FALSE(EqualsNoCase("VornView", "VornVie"));
    EXPECT_FALSE(EqualsNoCase("@[`{", "`{@["));
    EXPECT_FALSE(EqualsNoCase("\xC4", "\xE4"));
    EXPECT_TRUE(ContainsNoCase("My PROXY", "proxy"));
    EXPECT_FALSE(ContainsNoCase("prox", "proxy"));
    EXPECT_TRUE(ContainsNoCase("", ""));
}
