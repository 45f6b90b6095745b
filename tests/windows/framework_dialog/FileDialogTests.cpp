#include "framework/dialog/CFileDialog.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{
std::string TempFolder()
{
    char folder[MAX_PATH] = {};
    ::GetTempPathA(sizeof(folder), folder);
    return folder;
}

/// Notes what the open dialog tells.
class NotingFileDialog : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;

    BOOL OnFileNameOK() override
    {
        ++m_asked;
        m_pathInside = GetPathName();
        return m_asked <= m_vetoes;
    }
    void OnInitDone() override
    {
        ++m_initDone;
    }

    int m_asked = 0;
    int m_vetoes = 0;
    int m_initDone = 0;
    CString m_pathInside;
};

/// The dialog itself: the bound window is its child.
HWND Outer(const CFileDialog& dialog)
{
    const HWND outer = dialog.m_hWnd ? ::GetParent(dialog.m_hWnd) : nullptr;
    return outer && ::IsWindowVisible(outer) ? outer : nullptr;
}
} // namespace

TEST(FileDialog, RecordIsPrepared)
{
    CFileDialog dialog(TRUE, "dbf", "charts.dbf", OFN_FILEMUSTEXIST, "Tables|*.dbf|All|*.*||");
    EXPECT_EQ(dialog.m_ofn.lStructSize, sizeof(OPENFILENAMEA));
    EXPECT_STREQ(dialog.m_ofn.lpstrFile, "charts.dbf");
    EXPECT_EQ(dialog.m_ofn.nMaxFile, static_cast<DWORD>(_MAX_PATH));
    EXPECT_STREQ(dialog.m_ofn.lpstrDefExt, "dbf");
    EXPECT_TRUE(dialog.m_ofn.Flags & OFN_FILEMUSTEXIST);
    EXPECT_TRUE(dialog.m_ofn.Flags & OFN_EXPLORER);
    EXPECT_EQ(std::memcmp(dialog.m_ofn.lpstrFilter, "Tables\0*.dbf\0All\0*.*\0\0", 22), 0);
}

TEST(FileDialog, LongFirstNameIsCut)
{
    const std::string name(1000, 'n');
    CFileDialog dialog(TRUE, nullptr, name.c_str());
    EXPECT_EQ(std::strlen(dialog.m_ofn.lpstrFile), static_cast<std::size_t>(_MAX_PATH - 1));
}

TEST(FileDialog, PartsOfTheChosenPath)
{
    CFileDialog dialog(TRUE);
    ::lstrcpyA(dialog.m_ofn.lpstrFile, "C:\\data\\region.5.dbf");
    EXPECT_EQ(dialog.GetPathName(), "C:\\data\\region.5.dbf");
    EXPECT_EQ(dialog.GetFileName(), "region.5.dbf");
    EXPECT_EQ(dialog.GetFileTitle(), "region.5");
    EXPECT_EQ(dialog.GetFileExt(), "dbf");
    EXPECT_EQ(dialog.GetFolderPath(), "C:\\data");
    EXPECT_FALSE(dialog.GetReadOnlyPref());
}

TEST(FileDialog, SeveralFilesAreWalked)
{
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    const char chosen[] = "C:\\data\0a.dbf\0b.dbf\0";
    std::memcpy(dialog.m_ofn.lpstrFile, chosen, sizeof(chosen));
    POSITION position = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(position), "C:\\data\\a.dbf");
    EXPECT_EQ(dialog.GetNextPathName(position), "C:\\data\\b.dbf");
    EXPECT_EQ(position, nullptr);
}

TEST(FileDialog, SingleFileIsWalkedAloneWhateverFollowsItInTheBuffer)
{
    CFileDialog dialog(TRUE, nullptr, "C:\\data\\a long first name.dbf");
    ::lstrcpyA(dialog.m_ofn.lpstrFile, "C:\\b.dbf");
    POSITION position = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(position), "C:\\b.dbf");
    EXPECT_EQ(position, nullptr);
}

TEST(FileDialog, SavesUnderTheGivenName)
{
    const std::string path = TempFolder() + "dialog_test_file";
    ::DeleteFileA((path + ".txt").c_str());
    NotingFileDialog dialog(FALSE, "txt", path.c_str());
    DialogDriver driver(
        [&]
        {
            const HWND outer = Outer(dialog);
            return outer && ::PostMessageA(outer, WM_COMMAND, IDOK, 0);
        });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_initDone, 1);
    EXPECT_EQ(dialog.m_asked, 1);
    EXPECT_EQ(::lstrcmpiA(dialog.GetPathName(), (path + ".txt").c_str()), 0);
    EXPECT_EQ(dialog.GetFileExt(), "txt");
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(FileDialog, RefusedNameKeepsItOpen)
{
    const std::string path = TempFolder() + "dialog_test_file";
    NotingFileDialog dialog(FALSE, nullptr, path.c_str(), OFN_NOCHANGEDIR);
    dialog.m_vetoes = 1;
    DialogDriver driver(
        [&]
        {
            const HWND outer = Outer(dialog);
            if (outer && dialog.m_asked == 0)
                ::SendMessageA(outer, WM_COMMAND, IDOK, 0);
            if (!outer || dialog.m_asked == 0)
                return false;
            return ::PostMessageA(outer, WM_COMMAND, IDCANCEL, 0) != FALSE;
        });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_asked, 1);
    EXPECT_FALSE(dialog.m_pathInside.IsEmpty());
}
