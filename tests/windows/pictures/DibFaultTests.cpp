#include "files/PaletteMapper.h"
#include "tests/support/MemoryRefusal.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/pictures/DrawnOn.h"
#include "tests/windows/pictures/OutsideFiles.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace
{
using namespace vorn::test;

/// Lets operations run with less and less memory refused, until they need no more.
class DibFaults : public testing::Test
{
protected:
    std::string Write(const std::string& bytes, const std::string& name) const
    {
        return m_folder.Write(name, bytes);
    }

    /// Runs `action` with the first request refused, then the second, ... `action` tells whether it succeeded; it must
    /// fail as often as a request was refused, at least once.
    void FailsAtEveryRequest(const std::function<bool()>& action)
    {
        for (int allowed = 0; allowed < 1000; ++allowed)
        {
            m_memory.RefuseAfter(allowed);
            const bool succeeded = action();
            if (m_memory.Stop() == 0)
            {
                EXPECT_TRUE(succeeded);
                EXPECT_GE(allowed, 1) << "no memory was asked for";
                return;
            }
            EXPECT_FALSE(succeeded) << "request " << allowed << " was refused";
        }
        ADD_FAILURE() << "never enough memory";
    }

    ScratchFolder m_folder;
    MemoryRefusal m_memory{"VornCommon.dll"};
};

TEST_F(DibFaults, ImagesAreNotMade)
{
    FailsAtEveryRequest(
        []
        {
            return DIB(10, 10, 24, 0, 0, nullptr, nullptr).Width() == 10;
        });
    const DIB source = FromLetters("RG|BY");
    FailsAtEveryRequest(
        [&]
        {
            return DIB(source).Width() == 2;
        });
}

TEST_F(DibFaults, OperationsFail)
{
    DIB source = FromLetters("RG|BY", 32);
    DIB target;
    FailsAtEveryRequest(
        [&]
        {
            return source.To24Bit(&target);
        });
    FailsAtEveryRequest(
        [&]
        {
            return target.HQResize(3, 1, &source);
        });
    FailsAtEveryRequest(
        [&]
        {
            return target.LQResize(3, 1, &source);
        });
    FailsAtEveryRequest(
        [&]
        {
            return source.Blt(1, 1, &source);
        });
    FailsAtEveryRequest(
        [&]
        {
            return std::unique_ptr<DIB>(source.Rotate(30, 1, 0)) != nullptr;
        });
    FailsAtEveryRequest(
        [&]
        {
            return std::unique_ptr<Image>(source.BuildMask(0, 0, 0)) != nullptr;
        });
    FailsAtEveryRequest(
        [&]
        {
            const HICON cursor = source.BuildCursor(nullptr, 8, 8, 0, 0, 0, 0, 0);
            DestroyCursor(cursor);
            return cursor != nullptr;
        });
    EXPECT_EQ(Colors(source), "RG|BR");
}

TEST_F(DibFaults, PartOfATopDownImageIsNotSet)
{
    const DIB source = FromLetters("RG|BY", 24, true);
    DrawnOn drawn(2, 2);
    const HBITMAP bitmap = drawn.Unselected();
    FailsAtEveryRequest(
        [&]
        {
            return source.SetDIBits(drawn.Dc(), bitmap, 0, 1) == 1;
        });
}

TEST_F(DibFaults, ReadersLeaveNoImage)
{
    const std::string files[] = {Write(outside::Bmp24(), "bmp"), Write(outside::Pcx8(), "pcx"),
                                 Write(outside::PcxPlanes(), "planes"), Write(outside::GifPlain(), "gif"),
                                 Write(outside::GifInterlaced(), "interlaced")};
    for (const std::string& path : files)
        FailsAtEveryRequest(
            [&path]
            {
                DIB image;
                const bool isRead = image.ReadUnknown(path.c_str());
                EXPECT_EQ(IsWithoutImage(image), !isRead) << path;
                return isRead;
            });
}

TEST_F(DibFaults, CodedFilesFail)
{
    PaletteMapper mapper(nullptr, 8);
    for (const std::string& path : {Write(outside::PngInterlaced(), "png"), Write(outside::JpegColor(), "jpg")})
        for (int allowed = 0; allowed < 200; ++allowed)
        {
            m_memory.RefuseAfter(allowed);
            DIB image;
            const bool isRead = image.ReadUnknown(path.c_str());
            m_memory.Stop();
            EXPECT_EQ(IsWithoutImage(image), !isRead);
        }
    const DIB image = FromLetters("RG|BY");
    const std::string path = m_folder.File("out");
    for (int allowed = 0; allowed < 100; ++allowed)
    {
        m_memory.RefuseAfter(allowed);
        const bool png = image.WritePNG(path.c_str());
        EXPECT_EQ(std::filesystem::exists(path), png) << "no half files";
        std::filesystem::remove(path);
        const bool jpeg = image.WriteJPEG(path.c_str(), 75, 1, nullptr);
        EXPECT_EQ(std::filesystem::exists(path), jpeg);
        m_memory.Stop();
        std::filesystem::remove(path);
    }
}

// Every pixel is asked for then.
TEST_F(DibFaults, JpegThroughAMapperWithoutCellsHasTheSameEntries)
{
    const TestPalette palette(68);
    m_memory.RefuseAfter(0);
    PaletteMapper without(palette, 256);
    ASSERT_GE(m_memory.Stop(), 1);
    PaletteMapper with(palette, 256);
    const std::string path = Write(outside::JpegColor(), "jpg");
    DIB image;
    DIB expected;
    ASSERT_TRUE(image.ReadJPEG(path.c_str(), 0, 1, &without, 1, 1, 1));
    ASSERT_TRUE(expected.ReadJPEG(path.c_str(), 0, 1, &with, 1, 1, 1));
    EXPECT_NE(expected.GetPixel(0, 0), expected.GetPixel(3, 1)) << "there is something to see";
    for (int y = 0; y < expected.Height(); ++y)
        for (int x = 0; x < expected.Width(); ++x)
            EXPECT_EQ(image.GetPixel(x, y), expected.GetPixel(x, y)) << x << ' ' << y;
}

// Handles are counted in one process; each turn makes and drops some of every kind.
TEST(DibHandles, ThousandsOfOperationsLeaveNone)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("picture", outside::Bmp4());
    const auto turn = [&]
    {
        DIB section(20, -10, 24, 0, 1, nullptr, nullptr);
        DIB image(section);
        section.ReadBMP(path.c_str());
        DIB again(8, 8, 8, 0, 1, nullptr, nullptr);
        again = image;
        image.LQResize(7, 5, &section);
        image.HQResize(9, 9, &section);
        const std::unique_ptr<DIB> turned(image.Rotate(33, 1, 0));
        const std::unique_ptr<Image> mask(image.BuildMask(0, 0, 0));
        DestroyCursor(image.BuildCursor(nullptr, 32, 32, 0, 0, 0, 0, 0));
        image.BuildCursor(nullptr, 0, 0, 0, 0, 0, 0, 0);
        const HBITMAP bitmap = CreateBitmap(3, 3, 1, 1, nullptr);
        image.LoadDDB(bitmap, nullptr, nullptr);
        DeleteObject(bitmap);
        image.LoadDDB(nullptr, nullptr, nullptr);
        DIB(5, 5, 8, 1, 1, nullptr, nullptr);
    };
    turn();
    const int before = CountGdiObjects();
    for (int i = 0; i < 1000; ++i)
        turn();
    EXPECT_EQ(CountGdiObjects(), before);
}
} // namespace
