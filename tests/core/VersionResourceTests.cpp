#include "frame/core/VersionResource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

using vorn::VersionResourceOf;

namespace
{
using File = std::vector<std::byte>;

constexpr std::size_t kHeaders = 0x40;
constexpr std::size_t kSection = 0x200; // of the file; in memory it stands at 0x3000
constexpr std::uint32_t kAddress = 0x3000;
constexpr std::size_t kDataEntry = kSection + 72; // behind three directories of one entry each
constexpr std::size_t kResource = kSection + 88;
constexpr std::size_t kSecondSection = kHeaders + 24 + 0xE0 + 40; // its header, in the 32-bit format
constexpr const char* kText = "the resource";
constexpr std::size_t kTextSize = 12;

void Put(File& file, std::size_t at, std::uint32_t value, std::size_t size = 4)
{
    for (std::size_t i = 0; i < size; ++i)
    {
        file[at + i] = static_cast<std::byte>(value >> (8 * i));
    }
}

void PutDirectory(File& file, std::size_t at, std::uint32_t id, std::uint32_t target)
{
    Put(file, at + 14, 1, 2); // entries with numbers
    Put(file, at + 16, id);
    Put(file, at + 20, target);
}

/// A program file with two sections, of which the second ends with its one version resource.
File Program(std::uint32_t format = 0x10B)
{
    File file(kResource + kTextSize);
    const std::size_t optionalSize = format == 0x10B ? 0xE0 : 0xF0;
    const std::size_t directories = kHeaders + 24 + (format == 0x10B ? 96 : 112);
    const std::size_t sections = kHeaders + 24 + optionalSize;
    Put(file, 0, 0x5A4D, 2);
    Put(file, 0x3C, kHeaders);
    Put(file, kHeaders, 0x4550);
    Put(file, kHeaders + 6, 2, 2);
    Put(file, kHeaders + 20, static_cast<std::uint32_t>(optionalSize), 2);
    Put(file, kHeaders + 24, format, 2);
    Put(file, directories - 4, 16);
    Put(file, directories + 16, kAddress);
    Put(file, sections + 12, 0x1000);
    Put(file, sections + 16, 0x200);
    Put(file, sections + 40 + 12, kAddress);
    Put(file, sections + 40 + 16, static_cast<std::uint32_t>(file.size() - kSection));
    Put(file, sections + 40 + 20, kSection);
    PutDirectory(file, kSection, 16, 0x80000000 + 24);
    PutDirectory(file, kSection + 24, 1, 0x80000000 + 48);
    PutDirectory(file, kSection + 48, 0x409, 72);
    Put(file, kDataEntry, kAddress + (kResource - kSection));
    Put(file, kDataEntry + 4, kTextSize);
    std::transform(kText, kText + kTextSize, file.begin() + kResource,
                   [](char c)
                   {
                       return static_cast<std::byte>(c);
                   });
    return file;
}

std::string Found(const File& file)
{
    const vorn::Bytes resource = VersionResourceOf(file);
    return {reinterpret_cast<const char*>(resource.data()), resource.size()};
}

/// What is found once a number of the file is another one.
std::string FoundWith(std::size_t at, std::uint32_t value, std::size_t size = 4)
{
    File file = Program();
    Put(file, at, value, size);
    return Found(file);
}
} // namespace

TEST(VersionResource, IsFoundInProgramsOfBothFormats)
{
    EXPECT_EQ(Found(Program()), kText);
    EXPECT_EQ(Found(Program(0x20B)), kText);
}

TEST(VersionResource, IsFoundBehindOtherResources)
{
    File file = Program();
    // The root gets three entries instead of one: a named one, icons, versions. Everything behind moves by 16.
    File grown(file.begin(), file.begin() + kSection);
    grown.resize(kSection + 40);
    Put(grown, kSection + 12, 1, 2);
    Put(grown, kSection + 14, 2, 2);
    Put(grown, kSection + 16, 16); // of a named entry: where its name stands
    Put(grown, kSection + 24, 3);
    Put(grown, kSection + 32, 16);
    Put(grown, kSection + 36, 0x80000000 + 40);
    grown.insert(grown.end(), file.begin() + kSection + 24, file.end());
    Put(grown, kSection + 40 + 20, 0x80000000 + 64);
    Put(grown, kSection + 64 + 20, 72 + 16);
    Put(grown, kDataEntry + 16, kAddress + (kResource - kSection) + 16);
    Put(grown, kSecondSection + 16, static_cast<std::uint32_t>(grown.size() - kSection));
    EXPECT_EQ(Found(grown), kText);
    Put(grown, kSection + 32, 14);
    EXPECT_EQ(Found(grown), "");
}

TEST(VersionResource, IsAbsentWhereTheFileIsNoSuchProgram)
{
    EXPECT_EQ(Found({}), "");
    EXPECT_EQ(FoundWith(0, 0x4D5A, 2), "");
    EXPECT_EQ(FoundWith(0x3C, 0xFFFFFFFF), "");
    EXPECT_EQ(FoundWith(kHeaders, 0x454E), "") << "a program of 16 bits";
    EXPECT_EQ(FoundWith(kHeaders + 24, 0x107, 2), "");
    EXPECT_EQ(FoundWith(kHeaders + 24 + 92, 2), "") << "too few directories for resources";
    EXPECT_EQ(FoundWith(kHeaders + 24 + 96 + 16, 0x9000), "") << "outside of all sections";
    EXPECT_EQ(FoundWith(kHeaders + 6, 1, 2), "") << "without the section";
}

TEST(VersionResource, IsAbsentWhereADirectoryLeadsAstray)
{
    EXPECT_EQ(FoundWith(kSection + 20, 24), "") << "data in place of the names";
    EXPECT_EQ(FoundWith(kSection + 20, 0xFFFFFFFF), "");
    EXPECT_EQ(FoundWith(kSection + 24 + 16, 2), "") << "another name";
    EXPECT_EQ(FoundWith(kSection + 24 + 20, 0x80000000), "") << "the root once more";
    EXPECT_EQ(FoundWith(kSection + 48 + 14, 0, 2), "") << "no language";
    EXPECT_EQ(FoundWith(kSection + 48 + 20, 0x80000000 + 72), "") << "a directory in place of the data";
    EXPECT_EQ(FoundWith(kDataEntry, 0xFFFFFFF0), "");
}

TEST(VersionResource, EndsWithItsSectionWhateverItClaims)
{
    for (const std::uint32_t claimed : {13U, 0x10000U, 0x3FFFFFFFU, 0x7FFFFFFFU, 0xFFFFFFFFU})
    {
        EXPECT_EQ(FoundWith(kDataEntry + 4, claimed), kText) << claimed;
    }
    EXPECT_EQ(FoundWith(kDataEntry + 4, 3), "the");
    EXPECT_EQ(FoundWith(kSecondSection + 16, 0xFFFFFFFF), kText) << "a section larger than the file";
}

TEST(VersionResource, OfAFileCutAnywhereIsAbsentOrCut)
{
    const File whole = Program();
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        const std::string expected(kText, size > kResource ? size - kResource : 0);
        EXPECT_EQ(Found(File(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))), expected) << size;
    }
}

TEST(VersionResource, StaysInsideAFileDamagedAnywhere)
{
    std::minstd_rand random(1);
    for (int round = 0; round < 20'000; ++round)
    {
        File file = Program();
        for (int i = 0; i < 3; ++i)
        {
            file[random() % file.size()] = static_cast<std::byte>(random());
        }
        const vorn::Bytes found = VersionResourceOf(file);
        if (!found.empty())
        {
            EXPECT_GE(found.data(), file.data());
            EXPECT_LE(found.data() + found.size(), file.data() + file.size());
        }
    }
}
