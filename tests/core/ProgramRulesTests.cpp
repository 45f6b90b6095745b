#include "frame/core/FixedFileInfo.h"
#include "frame/core/ProgramRules.h"
#include "frame/core/TextCase.h"

#include <gtest/gtest.h>

#include <vector>

using namespace vorn;

namespace
{
void put16(std::vector<std::byte>& bytes, unsigned value)
{
    bytes.push_back(static_cast<std::byte>(value & 0xFF));
    bytes.push_back(static_cast<std::byte>(value >> 8));
}

void put32(std::vector<std::byte>& bytes, std::uint32_t value)
{
    put16(bytes, value & 0xFFFF);
    put16(bytes, value >> 16);
}

/// A version resource of file version 1.2.3.4 and the given product version, as resource compilers write it.
std::vector<std::byte> resource(unsigned major, unsigned minor)
{
    std::vector<std::byte> bytes;
    put16(bytes, 92);
    put16(bytes, 52);
    put16(bytes, 0);
    for (const char c : std::string("VS_VERSION_INFO"))
    {
        put16(bytes, static_cast<unsigned char>(c));
    }
    put32(bytes, 0); // terminator and padding
    for (const std::uint32_t value : {0xFEEF04BDu, 0x00010000u, 0x00010002u, 0x00030004u, major << 16 | minor,
                                      0x00050006u, 0x3Fu, 0u, 4u, 1u, 0u, 0u, 0u})
    {
        put32(bytes, value);
    }
    return bytes;
}

void expectLeast(const SiblingRule& rule, int major, int minor)
{
    EXPECT_TRUE(rule.isMetBy({major, minor}));
    EXPECT_TRUE(rule.isMetBy({major + 1, minor}));
    EXPECT_TRUE(rule.isMetBy({major, minor + 1}));
    EXPECT_FALSE(rule.isMetBy({major, minor - 1}));
    EXPECT_FALSE(rule.isMetBy({major - 1, 9}));
    EXPECT_FALSE(rule.isMetBy({major + 1, 0}));
}
} // namespace

TEST(ProgramFile, IsChosenByProductWhateverItsCase)
{
    EXPECT_STREQ(programFile("Aerolune"), "Aerolune\\Aerolune.exe");
    EXPECT_STREQ(programFile("VORNVIEW"), "VornView3\\VornView3.exe");
    EXPECT_STREQ(programFile("glasspad"), "Glasspad3\\Glasspad3.exe");
    EXPECT_EQ(programFile("Glasspad3"), nullptr);
    EXPECT_EQ(programFile(""), nullptr);
}

TEST(ProgramPath, JoinsFolderAndFileWithOneBackslash)
{
    EXPECT_EQ(programPath("C:\\Vornwald", "Aerolune\\Aerolune.exe"), "C:\\Vornwald\\Aerolune\\Aerolune.exe");
    EXPECT_EQ(programPath("C:\\Vornwald\\", "Aerolune\\Aerolune.exe"), "C:\\Vornwald\\Aerolune\\Aerolune.exe");
}

TEST(ProgramPath, IsNeverCut)
{
    EXPECT_EQ(programPath(std::string(255, 'd') + "\\", "file")->size(), 260u);
    EXPECT_EQ(programPath(std::string(256, 'd') + "\\", "file"), std::nullopt);
    EXPECT_EQ(programPath(std::string(256, 'd'), "file"), std::nullopt);
}

TEST(ProgramRules, NameTwoSiblingsInTheOrderOfTheFlags)
{
    const SiblingRules* viewer = siblingRules("vornview");
    ASSERT_NE(viewer, nullptr);
    EXPECT_STREQ(viewer->first.product, "Aerolune");
    EXPECT_STREQ(viewer->first.pathKey, "AeroluneDir");
    EXPECT_STREQ(viewer->second.product, "Glasspad");
    EXPECT_STREQ(viewer->second.pathKey, "Glasspad3Dir");

    const SiblingRules* planner = siblingRules("AEROLUNE");
    ASSERT_NE(planner, nullptr);
    EXPECT_STREQ(planner->first.product, "VornView");
    EXPECT_STREQ(planner->first.pathKey, "VornView3Dir");
    EXPECT_STREQ(planner->second.product, "Glasspad");

    const SiblingRules* movingMap = siblingRules("Glasspad");
    ASSERT_NE(movingMap, nullptr);
    EXPECT_STREQ(movingMap->first.product, "Aerolune");
    EXPECT_STREQ(movingMap->second.product, "VornView");
    EXPECT_STREQ(movingMap->second.pathKey, "VornView3Dir");
}

TEST(ProgramRules, AreAbsentForOtherProducts)
{
    EXPECT_EQ(siblingRules("VornView3"), nullptr);
    EXPECT_EQ(siblingRules(""), nullptr);
}

TEST(ProgramRules, CompareMajorAndMinorByThemselves)
{
    expectLeast(siblingRules("VornView")->first, 9, 1);
    expectLeast(siblingRules("VornView")->second, 3, 1);
    expectLeast(siblingRules("Aerolune")->first, 3, 3);
    expectLeast(siblingRules("Aerolune")->second, 3, 1);
    expectLeast(siblingRules("Glasspad")->first, 9, 1);
    expectLeast(siblingRules("Glasspad")->second, 3, 3);
    EXPECT_FALSE(siblingRules("Glasspad")->first.isMetBy({10, 0}));
    EXPECT_FALSE(siblingRules("Glasspad")->second.isMetBy({4, 0}));
}

TEST(ProgramVersionWords, AreTheProductVersionNotTheFileVersion)
{
    EXPECT_EQ(productVersion(resource(9, 1)), (ProgramVersion{9, 1}));
}

TEST(ProgramVersionWords, AreUnsigned)
{
    EXPECT_EQ(productVersion(resource(65535, 40000)), (ProgramVersion{65535, 40000}));
}

TEST(ProgramVersionWords, AreFoundWithTextPartsBehind)
{
    auto bytes = resource(3, 3);
    bytes[0] = std::byte{200};
    bytes.resize(240, std::byte{0x55});
    EXPECT_EQ(productVersion(bytes), (ProgramVersion{3, 3}));
}

TEST(ProgramVersionWords, NeedTheFixedPart)
{
    auto bytes = resource(3, 3);
    bytes[2] = std::byte{0};
    EXPECT_EQ(productVersion(bytes), std::nullopt);
    bytes[2] = std::byte{51};
    EXPECT_EQ(productVersion(bytes), std::nullopt);
}

TEST(ProgramVersionWords, NeedTheSignature)
{
    auto bytes = resource(3, 3);
    bytes[40] = std::byte{0xBC};
    EXPECT_EQ(productVersion(bytes), std::nullopt);
}

TEST(ProgramVersionWords, AreAbsentWhenTheResourceBreaksOffAnywhere)
{
    const auto whole = resource(3, 3);
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        const std::vector<std::byte> cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(productVersion(cut), std::nullopt) << size;
    }
    EXPECT_NE(productVersion(whole), std::nullopt);
}

TEST(ProgramVersionWords, AreAbsentWhenTheLengthIsShorterThanTheFixedPart)
{
    auto bytes = resource(3, 3);
    bytes[0] = std::byte{91};
    EXPECT_EQ(productVersion(bytes), std::nullopt);
}

TEST(ProgramVersionWords, AreAbsentWhenTheKeyHasNoEnd)
{
    auto bytes = resource(3, 3);
    std::fill(bytes.begin() + 6, bytes.end(), std::byte{0x41});
    EXPECT_EQ(productVersion(bytes), std::nullopt);
}

TEST(ProgramNames, FoldOnlyTheLettersOfTheAlphabet)
{
    EXPECT_TRUE(equalsNoCase("VornView", "vORNvIEW"));
    EXPECT_FALSE(equalsNoCase("VornView", "VornVie"));
    EXPECT_FALSE(equalsNoCase("@[`{", "`{@["));
    EXPECT_FALSE(equalsNoCase("\xC4", "\xE4"));
    EXPECT_TRUE(containsNoCase("My PROXY", "proxy"));
    EXPECT_FALSE(containsNoCase("prox", "proxy"));
    EXPECT_TRUE(containsNoCase("", ""));
}
