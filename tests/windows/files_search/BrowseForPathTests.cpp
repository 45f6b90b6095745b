#include "files/BrowseForDirectory.h"
#include "framework/include/afxwin.h"
#include "tests/windows/files_search/FolderDialogTest.h"

#include <cstring>
#include <string>

namespace
{

constexpr int kPathChosen = 1;
constexpr int kPathCancelled = 2;

CString Text(const std::filesystem::path& path)
{
    return path.string().c_str();
}

class BrowsingForAPath : public FolderDialogTest
{
};

class BrowsingForADirectoryText : public FolderDialogTest
{
protected:
    bool Browse(CString& path)
    {
        return BrowseForDirectory(path, nullptr, nullptr);
    }
    void ExpectAtTheTop()
    {
        CancelAfter(
            [](const vorn::test::ShellDialog& dialog)
            {
                EXPECT_EQ(dialog.Selection().size(), 1u);
            });
    }
};

} // namespace

TEST_F(BrowsingForADirectoryText, GivesTheFolderWithABackslash)
{
    for (const char* end : {"", "\\"})
    {
        CString path = Text(m_charts) + end;
        AnswerAt(m_charts, IDOK);
        EXPECT_TRUE(Browse(path));
        EXPECT_EQ(path, Text(m_charts) + "\\");
    }
}

TEST_F(BrowsingForADirectoryText, AddsNoBackslashToADrive)
{
    CString path = "C:";
    AnswerAt("C:\\", IDOK);
    EXPECT_TRUE(Browse(path));
    EXPECT_EQ(path, "C:\\");
}

TEST_F(BrowsingForADirectoryText, LeavesThePathAsItWasWhenCancelled)
{
    CString path = Text(m_charts);
    AnswerAt(m_charts, IDCANCEL);
    EXPECT_FALSE(Browse(path));
    EXPECT_EQ(path, Text(m_charts));
}

TEST_F(BrowsingForADirectoryText, OpensAtTheTopForAnEmptyPath)
{
    CString path;
    ExpectAtTheTop();
    EXPECT_FALSE(Browse(path));
    EXPECT_TRUE(path.IsEmpty());
}

TEST_F(BrowsingForADirectoryText, TakesAPathOfTheLongestLength)
{
    for (const char* end : {"", "\\"})
    {
        CString path = Text(m_data) + "\\" + CString('n', 259 - Text(m_data).GetLength() - 1);
        path = path.Left(259 - static_cast<int>(std::strlen(end))) + end;
        ASSERT_EQ(path.GetLength(), 259);
        const CString before = path;
        AnswerAt(m_data, IDCANCEL);
        EXPECT_FALSE(Browse(path));
        EXPECT_EQ(path, before);
    }
}

TEST_F(BrowsingForADirectoryText, OpensAtTheTopForAPathThatIsTooLong)
{
    for (const int length : {260, 261, 5000})
    {
        CString path = "C:\\" + CString('n', length - 3);
        const CString before = path;
        ExpectAtTheTop();
        EXPECT_FALSE(Browse(path));
        EXPECT_EQ(path, before);
    }
}

TEST_F(BrowsingForADirectoryText, ShowsTheTitleAndTheButtonForNewFolders)
{
    CString path;
    char title[] = "Where to?";
    CancelAfter(
        [](const vorn::test::ShellDialog& dialog)
        {
            EXPECT_EQ(dialog.Title(), "Where to?");
            EXPECT_TRUE(dialog.HasNewFolderButton());
        });
    EXPECT_FALSE(BrowseForDirectory(path, title, nullptr));
}

TEST_F(BrowsingForAPath, GivesTheFolderWithoutABackslash)
{
    for (const char* end : {"", "\\", "/"})
    {
        CString path = Text(m_charts) + end;
        AnswerAt(m_charts, IDOK);
        EXPECT_EQ(BrowseForPath(path, nullptr), kPathChosen);
        EXPECT_EQ(path, Text(m_charts));
    }
}

TEST_F(BrowsingForAPath, OpensAtADrive)
{
    CString path = "C:\\";
    AnswerAt("C:\\", IDOK);
    EXPECT_EQ(BrowseForPath(path, nullptr), kPathChosen);
    EXPECT_EQ(path, "C:\\");
}

TEST_F(BrowsingForAPath, OpensAtTheCurrentFolderWithoutAPath)
{
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(m_data);
    CString path;
    AnswerAt(m_data, IDOK);
    EXPECT_EQ(BrowseForPath(path, nullptr), kPathChosen);
    std::filesystem::current_path(before);
    EXPECT_EQ(path, Text(m_data));
}

TEST_F(BrowsingForAPath, LeavesThePathAsItWasWhenCancelled)
{
    CString path = Text(m_charts) + "\\";
    AnswerAt(m_charts, IDCANCEL);
    EXPECT_EQ(BrowseForPath(path, nullptr), kPathCancelled);
    EXPECT_EQ(path, Text(m_charts) + "\\");
}

TEST_F(BrowsingForAPath, CutsAPathThatIsTooLong)
{
    CString path = Text(m_data) + "\\" + CString('n', 1000);
    AnswerAt(m_data, IDOK);
    EXPECT_EQ(BrowseForPath(path, nullptr), kPathChosen);
    EXPECT_EQ(path, Text(m_data));
}

TEST_F(BrowsingForAPath, ShowsItsTitleAndTheButtonForNewFolders)
{
    for (const char* title : {"Where to?", "", static_cast<const char*>(nullptr)})
    {
        const std::string expected = title != nullptr && *title != '\0' ? title : "Select a Directory";
        CString path;
        CancelAfter(
            [&](const vorn::test::ShellDialog& dialog)
            {
                EXPECT_EQ(dialog.Title(), expected);
                EXPECT_TRUE(dialog.HasNewFolderButton());
            });
        EXPECT_EQ(BrowseForPath(path, title), kPathCancelled);
    }
}

TEST_F(BrowsingForAPath, StandsAboveTheActiveWindow)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), "active", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 200, 100),
                   nullptr, 0);
    owner.SetActiveWindow();
    CString path;
    CancelAfter(
        [&](const vorn::test::ShellDialog& dialog)
        {
            EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), owner.m_hWnd);
        });
    EXPECT_EQ(BrowseForPath(path, nullptr), kPathCancelled);
    owner.DestroyWindow();
}
