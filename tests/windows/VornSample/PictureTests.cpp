#include "config/DefinedPathSetting.h"
#include "files/DIB.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/VornSample/RunningSample.h"
#include "tests/windows/VornSample/SampleSettings.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <shellapi.h>
#include <shlobj.h>

#include <cstring>
#include <functional>
#include <memory>

using vorn::test::PumpUntil;
using vorn::test::SampleProcess;
using vorn::test::ScratchFolder;
using vorn::test::ScratchKey;

namespace
{

// The sample's public numbers: of the picture page's controls, of its commands and of its dialog's.
constexpr int kPane = 2400;
constexpr int kNotice = 2401;
constexpr int kSave = 33401;
constexpr int kPrevious = 33402;
constexpr int kNext = 33403;
constexpr int kLeft = 33408;
constexpr int kRight = 33409;
constexpr int kResize = 33410;
constexpr int kWidth = 1020;
constexpr int kHeight = 1021;
constexpr int kKeep = 1022;
constexpr int kSystem = 1024;

// A red, a green and a blue image of 3 x 2, 2 x 2 and 4 x 1 pixels; the second has its colour 0 for transparent.
std::string ThreeImages()
{
    const auto image = [](char width, char height, const char* color, const char* codes, std::size_t size)
    {
        return std::string(",\0\0\0\0", 5) + width + '\0' + height + '\0' + '\x80' + std::string(color, 3) +
               std::string(3, '\0') + '\2' + static_cast<char>(size) + std::string(codes, size) + '\0';
    };
    // Clear, then a pixel of colour 0 by a code of three bits again and again, cleared before the width grows, end.
    return std::string("GIF89a\4\0\2\0\0\0\0", 13) + image(3, 2, "\xFF\0\0", "\x04\x01\x01\x05", 4) +
           std::string("!\xF9\4\1\0\0\0\0", 8) + image(2, 2, "\0\xFF\0", "\x04\x41\x01", 3) +
           image(4, 1, "\0\0\xFF", "\x04\x41\x01", 3) + ';';
}

class SamplePictures : public vorn::test::RunningSample
{
protected:
    SamplePictures()
    {
        DIB ramp(4, 3, 24, 0, 0, nullptr, nullptr);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 4; ++x)
                ramp.PutPixel(x, y, RGB(60 * x, 100 * y, 255 - 60 * x));
        m_ramp = m_folder.File("ramp.bmp");
        ramp.WriteBMP(m_ramp.c_str());
        DIB alpha(2, 1, 32, 0, 0, nullptr, nullptr);
        const unsigned char pixels[] = {0, 0, 255, 128, 255, 0, 0, 255};
        std::memcpy(alpha.Bits(), pixels, sizeof pixels);
        m_alpha = m_folder.File("alpha.png");
        alpha.WritePNG(m_alpha.c_str());
        m_gif = m_folder.Write("three.gif", ThreeImages());
    }

    bool HasLine(const std::string& start, const std::string& end) const
    {
        const std::string output = m_folder.Read("output.txt");
        const std::size_t at = output.find("  " + start + "  ");
        return at != std::string::npos && output.substr(at, output.find('\n', at) - at).ends_with("  " + end);
    }

    // How often a colour is in the window's picture.
    int Count(const DIB& window, unsigned color) const
    {
        int count = 0;
        for (int y = 0; y < window.Height(); ++y)
            for (int x = 0; x < window.Width(); ++x)
                count += window.GetPixel(x, y) == RGB(color >> 16, color >> 8 & 0xFF, color & 0xFF);
        return count;
    }

    DIB Snapshot(const std::string& picture)
    {
        DIB window;
        const std::string path = m_folder.File("window.png");
        EXPECT_EQ(Run("--picture \"" + picture + "\" --size 1000x700 --snapshot \"" + path + '"'), 0u);
        EXPECT_TRUE(window.ReadPNG(path.c_str()));
        return window;
    }

    void Start(const std::string& picture)
    {
        ASSERT_NO_FATAL_FAILURE(Open("--picture \"" + picture + '"'));
        ASSERT_TRUE(PumpUntil(
            [&]
            {
                return IsWindowVisible(Control(kPane)) != FALSE;
            }));
    }

    static void Click(HWND dialog, int button)
    {
        PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }

    void Push(int button) const
    {
        PostMessageA(Control(button), BM_CLICK, 0, 0);
    }

    /// Lets a file fall on the picture, as from another program's window.
    void Drop(const std::string& path) const
    {
        DROPFILES head{};
        head.pFiles = sizeof head;
        const std::string bytes =
            std::string(reinterpret_cast<const char*>(&head), sizeof head) + path + std::string(2, '\0');
        DWORD process = 0;
        GetWindowThreadProcessId(m_window, &process);
        const HANDLE sample = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, process);
        ASSERT_NE(sample, nullptr);
        void* const memory = VirtualAllocEx(sample, nullptr, bytes.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
        EXPECT_TRUE(WriteProcessMemory(sample, memory, bytes.data(), bytes.size(), nullptr));
        CloseHandle(sample);
        PostMessageA(Control(kPane), WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
    }

    bool NoticeBecomes(const std::string& text) const
    {
        return PumpUntil(
            [&]
            {
                return TextOf(Control(kNotice)) == text;
            });
    }

    bool BecomesEnabled(int button, bool enabled) const
    {
        return PumpUntil(
            [&]
            {
                return (IsWindowEnabled(Control(button)) != FALSE) == enabled;
            });
    }

    ScratchKey m_settings{HKEY_CURRENT_USER, kSettings};
    std::string m_ramp;
    std::string m_alpha;
    std::string m_gif;
};

} // namespace

TEST_F(SamplePictures, HaveOneToBeginWith)
{
    EXPECT_EQ(Run("--page pictures --summary"), 0u);
    EXPECT_TRUE(HasLine("Format", "drawn here"));
    EXPECT_TRUE(HasLine("Transparent", "alpha channel"));
}

TEST_F(SamplePictures, TellWhatTheyAre)
{
    EXPECT_EQ(Run("--picture \"" + m_ramp + "\" --summary"), 0u);
    EXPECT_TRUE(HasLine("Format", "BMP"));
    EXPECT_TRUE(HasLine("Size", "4 \xC3\x97 3 pixels"));
    EXPECT_TRUE(HasLine("Depth", "24 bits"));
    EXPECT_TRUE(HasLine("Transparent", "none"));
    EXPECT_TRUE(HasLine("Rows", "bottom-up"));
    EXPECT_TRUE(HasLine("File", "90 bytes"));
    EXPECT_EQ(Run("--picture \"" + m_alpha + "\" --summary"), 0u);
    EXPECT_TRUE(HasLine("Format", "PNG"));
    EXPECT_TRUE(HasLine("Transparent", "alpha channel"));
    EXPECT_EQ(Run("--picture \"" + m_gif + "\" --summary"), 0u);
    EXPECT_TRUE(HasLine("Format", "GIF"));
    EXPECT_TRUE(HasLine("Depth", "8 bits, 256 colours"));
    EXPECT_TRUE(HasLine("Image", "1 of 3"));
}

TEST_F(SamplePictures, ReportFilesThatAreNone)
{
    const std::string missing = m_folder.File("none.png");
    EXPECT_EQ(Run("--picture \"" + missing + "\" --summary"), 1u);
    EXPECT_EQ(m_folder.Read("output.txt"), "VornSample: There is no readable file " + missing + ".\n");
    const std::string text = m_folder.Write("text.png", "no picture");
    EXPECT_EQ(Run("--picture \"" + text + "\" --summary"), 1u);
    EXPECT_EQ(m_folder.Read("output.txt"), "VornSample: This is no picture that can be read: " + text + ".\n");
    const std::string empty = m_folder.Write("empty.png", "");
    EXPECT_EQ(Run("--picture \"" + empty + "\" --summary"), 1u);
    EXPECT_EQ(m_folder.Read("output.txt"), "VornSample: This is no picture that can be read: " + empty + ".\n");
}

TEST_F(SamplePictures, AreCountedFastWhereAFileHasMany)
{
    std::string many(ThreeImages());
    const std::string images = many.substr(13, many.size() - 14);
    many.pop_back();
    for (int i = 1; i < 300; ++i)
        many += images;
    const std::string gif = m_folder.Write("many.gif", many + ';');
    EXPECT_EQ(Run("--picture \"" + gif + "\" --summary"), 0u);
    EXPECT_TRUE(HasLine("Image", "1 of 900"));
}

// Runs of pixels in a bitmap file: the library keeps them as they are, the system draws them.
TEST_F(SamplePictures, AreThoseThatTheSystemDrawsWhereTheirPixelsAreCompressed)
{
    vorn::test::BmpParts parts;
    parts.width = 2;
    parts.depth = 8;
    parts.compression = BI_RLE8;
    parts.usedColors = 2;
    parts.behindHeader = std::string("\0\0\0\0\0\0\xFF\0", 8);
    parts.pixels = std::string("\2\1\0\1", 4);
    const std::string packed = m_folder.Write("packed.bmp", parts.Bytes());
    EXPECT_EQ(Run("--picture \"" + packed + "\" --summary"), 0u);
    EXPECT_TRUE(HasLine("Format", "BMP, compressed"));
    Start(packed);
    Push(kRight);
    EXPECT_TRUE(NoticeBecomes("Turned: 1 x 2 pixels.")) << TextOf(Control(kNotice));
    End();
}

TEST_F(SamplePictures, AreShownPixelByPixel)
{
    const DIB window = Snapshot(m_ramp);
    EXPECT_EQ(Count(window, 0x3C64C3), 32 * 32) << "at most 32 pixels for one";
    EXPECT_EQ(Count(window, 0xB4C84B), 32 * 32);
}

TEST_F(SamplePictures, LetTheChequeredGroundThrough)
{
    const DIB window = Snapshot(m_alpha);
    EXPECT_EQ(Count(window, 0x0000FF), 32 * 32) << "what covers all";
    EXPECT_EQ(Count(window, 0xFF7F7F), 32 * 32 / 2) << "half red over white";
    EXPECT_EQ(Count(window, 0xEB6D70), 32 * 32 / 2) << "half red over grey";
}

TEST_F(SamplePictures, GoThroughTheImagesOfAFile)
{
    Start(m_gif);
    EXPECT_TRUE(BecomesEnabled(kPrevious, false));
    EXPECT_TRUE(BecomesEnabled(kNext, true));
    Push(kNext);
    EXPECT_TRUE(NoticeBecomes("Image 2 of 3."));
    PostMessageA(Control(kPane), WM_KEYDOWN, VK_NEXT, 1);
    EXPECT_TRUE(NoticeBecomes("Image 3 of 3."));
    EXPECT_TRUE(BecomesEnabled(kNext, false));
    PostMessageA(m_window, WM_COMMAND, kPrevious, 0);
    EXPECT_TRUE(NoticeBecomes("Image 2 of 3."));
    EXPECT_TRUE(BecomesEnabled(kNext, true));
    End();
}

TEST_F(SamplePictures, TurnBothWays)
{
    Start(m_ramp);
    Push(kRight);
    EXPECT_TRUE(NoticeBecomes("Turned: 3 x 4 pixels."));
    Push(kLeft);
    EXPECT_TRUE(NoticeBecomes("Turned: 4 x 3 pixels."));
    End();
}

TEST_F(SamplePictures, TakeANewSizeInProportion)
{
    Start(m_ramp);
    Push(kResize);
    HWND dialog = m_sample->Dialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kWidth)), "4");
    SendMessageA(GetDlgItem(dialog, kWidth), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("8"));
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kHeight)), "6");
    SendMessageA(GetDlgItem(dialog, kWidth), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("0"));
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, IDOK)));
    SendMessageA(GetDlgItem(dialog, kHeight), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("6"));
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kWidth)), "8");
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(dialog, IDOK)));
    Click(dialog, IDOK);
    EXPECT_TRUE(NoticeBecomes("Resized to 8 x 6 pixels."));
    Push(kResize);
    ASSERT_TRUE(PumpUntil(
        [&]
        {
            dialog = m_sample->Dialog();
            return TextOf(GetDlgItem(dialog, kWidth)) == "8";
        }));
    SendMessageA(GetDlgItem(dialog, kKeep), BM_SETCHECK, BST_UNCHECKED, 0);
    SendMessageA(GetDlgItem(dialog, kSystem), BM_CLICK, 0, 0);
    SendMessageA(GetDlgItem(dialog, kWidth), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("100"));
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kHeight)), "6");
    Click(dialog, IDOK);
    EXPECT_TRUE(NoticeBecomes("Resized to 100 x 6 pixels."));
    End();
}

TEST_F(SamplePictures, WiderThanANewSizeMayBeAreNotResizedToTheLargestOneUnasked)
{
    DIB wide(20001, 1, 1, 0, 0, nullptr, nullptr);
    const std::string path = m_folder.File("wide.png");
    ASSERT_TRUE(wide.WritePNG(path.c_str()));
    Start(path);
    Push(kResize);
    const HWND dialog = m_sample->Dialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, kWidth)), "20001");
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, IDOK)));
    SendMessageA(GetDlgItem(dialog, kWidth), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("20000"));
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(dialog, IDOK)));
    Click(dialog, IDCANCEL);
    End();
}

TEST_F(SamplePictures, AreSavedInTheFormatOfTheirNames)
{
    constexpr int kPlainName = 0x480;
    constexpr int kNameWithList = 0x47C;
    Start(m_ramp);
    for (const char* name : {"saved.png", "saved.bmp", "saved.jpg"})
    {
        Push(kSave);
        const HWND dialog = m_sample->Dialog();
        ASSERT_NE(dialog, nullptr);
        HWND edit = nullptr;
        ASSERT_TRUE(PumpUntil(
            [&]
            {
                edit = GetDlgItem(dialog, kNameWithList) != nullptr ? GetDlgItem(dialog, kNameWithList)
                                                                    : GetDlgItem(dialog, kPlainName);
                return edit != nullptr && !TextOf(edit).empty();
            }));
        const std::string path = m_folder.File(name);
        SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
        Click(dialog, IDOK);
        EXPECT_TRUE(NoticeBecomes("Saved as " + path + ".")) << TextOf(Control(kNotice));
        DIB saved;
        ASSERT_TRUE(saved.ReadUnknown(path.c_str())) << name;
        EXPECT_EQ(saved.Width(), 4);
        if (std::strcmp(name, "saved.jpg") != 0)
        {
            EXPECT_EQ(saved.GetPixel(3, 2), RGB(180, 200, 75));
        }
    }
    End();
}

TEST_F(SamplePictures, AreZoomedAndDraggedWithoutHarm)
{
    Start(m_gif);
    const HWND pane = Control(kPane);
    RECT place{};
    GetWindowRect(pane, &place);
    const LPARAM middle = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    for (int i = 0; i < 20; ++i)
    {
        SendMessageA(pane, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(WHEEL_DELTA)), middle);
        SendMessageA(pane, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 50));
        SendMessageA(pane, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(20, 90));
        SendMessageA(pane, WM_LBUTTONUP, 0, MAKELPARAM(20, 90));
        RedrawWindow(pane, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    for (int i = 0; i < 60; ++i)
        SendMessageA(pane, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), middle);
    RedrawWindow(pane, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    SendMessageA(pane, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageA(pane, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    End();
}

// What the shell hands over is memory of the program that gets it: here it is put there from outside.
TEST_F(SamplePictures, AreOpenedWhenDropped)
{
    Start(m_ramp);
    EXPECT_NE(GetWindowLongA(Control(kPane), GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
    Drop(m_gif);
    EXPECT_TRUE(NoticeBecomes("Opened three.gif: 3 x 2 pixels.")) << TextOf(Control(kNotice));
    End();
}

TEST_F(SamplePictures, AreNamedOnceInTheLogWhenTheyCannotBeRead)
{
    const DefinedPathSetting hidden = GetDefinedPathSetting(DP_USERHIDDEN, PCV_LEGACY);
    const std::string folder = m_folder.File("Hidden");
    EXPECT_EQ(RegSetKeyValueA(HKEY_CURRENT_USER, (std::string(kSettings) + '\\' + hidden.section).c_str(), hidden.key,
                              REG_SZ, folder.c_str(), static_cast<DWORD>(folder.size() + 1)),
              ERROR_SUCCESS);
    const std::string text = m_folder.Write("text.png", "no picture");
    Start(m_ramp);
    Drop(text);
    EXPECT_TRUE(NoticeBecomes("This is no picture that can be read: " + text + ".")) << TextOf(Control(kNotice));
    End();
    const std::string log = m_folder.Read("Hidden\\messages.log");
    EXPECT_NE(log.find("Warning: This is no picture that can be read: " + text + ".\r\n"), std::string::npos) << log;
}
