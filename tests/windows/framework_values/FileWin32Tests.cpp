#include "framework/include/afx.h"

#include <cstring>
#include <gtest/gtest.h>

// What the files of the system add to the portable behaviour: sharing, locks, attributes, last error.

namespace
{
class FileWin32 : public testing::Test
{
protected:
    FileWin32()
    {
        char folder[MAX_PATH];
        GetTempPath(MAX_PATH, folder);
        m_folder = CString(folder) + "framework_values\\";
        CleanUp();
        CreateDirectory(m_folder, nullptr);
    }
    ~FileWin32() override
    {
        CleanUp();
    }

    CString Make(const char* name, const char* content) const
    {
        CFile file(m_folder + name, CFile::modeCreate | CFile::modeWrite);
        file.Write(content, static_cast<UINT>(std::strlen(content)));
        return m_folder + name;
    }

    CString m_folder;

private:
    void CleanUp() const
    {
        CFileFind finder;
        BOOL isWorking = finder.FindFile(m_folder + "*.*");
        while (isWorking)
        {
            isWorking = finder.FindNextFile();
            SetFileAttributes(finder.GetFilePath(), FILE_ATTRIBUTE_NORMAL);
            DeleteFile(finder.GetFilePath());
        }
        finder.Close();
        RemoveDirectory(m_folder);
    }
};

int CauseOfOpening(const CString& path, UINT flags)
{
    CFile file;
    CFileException error;
    return file.Open(path, flags, &error) ? CFileException::none : error.m_cause;
}
} // namespace

TEST_F(FileWin32, SharingIsKept)
{
    const CString path = Make("shared.txt", "abc");
    {
        const CFile alone(path, CFile::modeRead | CFile::shareExclusive);
        EXPECT_EQ(CauseOfOpening(path, CFile::modeRead | CFile::shareDenyNone), CFileException::sharingViolation);
    }
    {
        const CFile reader(path, CFile::modeRead | CFile::shareDenyWrite);
        EXPECT_EQ(CauseOfOpening(path, CFile::modeRead | CFile::shareDenyNone), CFileException::none);
        EXPECT_EQ(CauseOfOpening(path, CFile::modeWrite | CFile::shareDenyNone), CFileException::sharingViolation);
    }
    const CFile open(path, CFile::modeReadWrite | CFile::shareDenyNone);
    EXPECT_EQ(CauseOfOpening(path, CFile::modeReadWrite | CFile::shareDenyNone), CFileException::none);
}

TEST_F(FileWin32, ALockedRangeIsRefusedToOthers)
{
    const CString path = Make("locked.txt", "abcdef");
    CFile first(path, CFile::modeReadWrite | CFile::shareDenyNone);
    CFile second(path, CFile::modeReadWrite | CFile::shareDenyNone);
    first.LockRange(0, 3);
    int cause = CFileException::none;
    try
    {
        second.LockRange(2, 1);
    }
    catch (CFileException* error)
    {
        cause = error->m_cause;
        error->Delete();
    }
    EXPECT_EQ(cause, CFileException::lockViolation);
    second.LockRange(3, 1);
    second.UnlockRange(3, 1);
    first.UnlockRange(0, 3);
    second.LockRange(2, 1);
    second.UnlockRange(2, 1);
}

TEST_F(FileWin32, StatusTellsThatAFileIsReadOnly)
{
    const CString path = Make("readonly.txt", "abc");
    SetFileAttributes(path, FILE_ATTRIBUTE_READONLY);
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(path, status));
    EXPECT_NE(status.m_attribute & CFile::readOnly, 0);
}

TEST_F(FileWin32, SearchTellsAttributes)
{
    const CString path = Make("hidden.txt", "12");
    SetFileAttributes(path, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(path));
    finder.FindNextFile();
    EXPECT_TRUE(finder.IsReadOnly());
    EXPECT_TRUE(finder.IsHidden());
    EXPECT_FALSE(finder.IsDirectory());
    EXPECT_TRUE(finder.MatchesMask(FILE_ATTRIBUTE_HIDDEN));
    EXPECT_FALSE(finder.MatchesMask(FILE_ATTRIBUTE_DIRECTORY));
    WIN32_FILE_ATTRIBUTE_DATA facts;
    ASSERT_TRUE(GetFileAttributesEx(path, GetFileExInfoStandard, &facts));
    FILETIME written{};
    ASSERT_TRUE(finder.GetLastWriteTime(&written));
    EXPECT_EQ(CompareFileTime(&written, &facts.ftLastWriteTime), 0);
}

TEST_F(FileWin32, AFailedSearchKeepsTheSystemsError)
{
    CFileFind finder;
    SetLastError(0);
    EXPECT_FALSE(finder.FindFile(m_folder + "none.*"));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
}

TEST_F(FileWin32, UsesAHandleWithoutOwningIt)
{
    const CString path = Make("handle.txt", "abc");
    const HANDLE handle = CreateFile(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    {
        CFile file(handle);
        EXPECT_EQ(file.GetLength(), 3u);
        EXPECT_TRUE(file.GetFileName().IsEmpty());
    }
    DWORD size = GetFileSize(handle, nullptr);
    EXPECT_EQ(size, 3u) << "the handle is still open";
    CFile file(handle);
    file.Close();
    EXPECT_FALSE(CloseHandle(handle)) << "Close() has closed it";
}

TEST_F(FileWin32, TextFilesHaveTheSystemsLineEnds)
{
    const CString path = m_folder + "lines.txt";
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::typeText);
        file.WriteString("a\nb\n");
    }
    CFile file(path, CFile::modeRead);
    char text[16] = {};
    file.Read(text, sizeof(text));
    EXPECT_STREQ(text, "a\r\nb\r\n");
}

TEST_F(FileWin32, RelativeNamesBecomeFullPaths)
{
    char before[MAX_PATH];
    GetCurrentDirectory(MAX_PATH, before);
    SetCurrentDirectory(m_folder);
    {
        CFile file("relative.txt", CFile::modeCreate | CFile::modeWrite);
        EXPECT_EQ(file.GetFilePath().CompareNoCase(m_folder + "relative.txt"), 0);
        CFileFind finder;
        ASSERT_TRUE(finder.FindFile("relative.*"));
        finder.FindNextFile();
        EXPECT_EQ(finder.GetFilePath().CompareNoCase(m_folder + "relative.txt"), 0);
        EXPECT_TRUE(finder.GetRoot().IsEmpty()) << "the search named no folder";
        ASSERT_TRUE(finder.FindFile(".\\relative.*"));
        EXPECT_EQ(finder.GetRoot().CompareNoCase(m_folder), 0);
    }
    SetCurrentDirectory(before);
}
