#include "files/core/ImageFile.h"
#include "files/core/ImagePixels.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{
using vorn::PackedImage;
using vorn::test::BmpParts;
using vorn::test::ScratchFolder;

std::string OneRedPixel()
{
    BmpParts parts;
    parts.pixels = std::string("\0\0\xFF\0", 4);
    return parts.Bytes();
}

TEST(ImageFile, ReadsTheWholeFile)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("file", std::string("\0abc", 4));
    const vorn::ImageBlock block = vorn::ReadImageFile(path.c_str());
    ASSERT_EQ(block.Bytes().size(), 4U);
    EXPECT_EQ(block.Bytes()[3], 'c');
    EXPECT_TRUE(vorn::ReadImageFile(folder.Write("empty", "").c_str()).Bytes().empty());
    EXPECT_TRUE(vorn::ReadImageFile(folder.File("missing").c_str()).Bytes().empty());
    EXPECT_TRUE(vorn::ReadImageFile(nullptr).Bytes().empty());
}

TEST(ImageFile, ReadsABitmap)
{
    const ScratchFolder folder;
    const PackedImage image = vorn::ReadBmpFile(folder.Write("file", OneRedPixel() + "more").c_str());
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(vorn::ColorAt(image.View(), 0, 0), (vorn::Rgb{255, 0, 0}));
}

TEST(ImageFile, BitmapCutAnywhereIsNone)
{
    const ScratchFolder folder;
    const std::string whole = OneRedPixel();
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_TRUE(vorn::ReadBmpFile(folder.Write("file", whole.substr(0, size)).c_str()).IsEmpty()) << size;
    EXPECT_TRUE(vorn::ReadBmpFile(nullptr).IsEmpty());
}

TEST(ImageFile, WritesABitmapOf24BitsOnly)
{
    const ScratchFolder folder;
    const PackedImage image = PackedImage::Make(1, 1, 24);
    EXPECT_TRUE(vorn::WriteBmpFile(folder.File("file").c_str(), image.Header(), image.View()));
    EXPECT_EQ(folder.Read("file").size(), 58U);
    const PackedImage other = PackedImage::Make(1, 1, 32);
    EXPECT_FALSE(vorn::WriteBmpFile(folder.File("other").c_str(), other.Header(), other.View()));
    EXPECT_FALSE(std::filesystem::exists(folder.File("other")));
    EXPECT_FALSE(vorn::WriteBmpFile(nullptr, image.Header(), image.View()));
}

TEST(ImageFile, LeavesNoFileThatWasNotWrittenWhole)
{
    const ScratchFolder folder;
    const std::string path = folder.File("file");
    EXPECT_FALSE(vorn::WriteToFile(path.c_str(),
                                   [](FILE* file)
                                   {
                                       std::fputs("half", file);
                                       return false;
                                   }));
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_TRUE(vorn::WriteToFile(path.c_str(),
                                  [](FILE* file)
                                  {
                                      return std::fputs("whole", file) >= 0;
                                  }));
    EXPECT_EQ(folder.Read("file"), "whole");
    EXPECT_FALSE(vorn::WriteToFile(folder.File("no/folder").c_str(),
                                   [](FILE*)
                                   {
                                       return true;
                                   }));
}
} // namespace
