#include "framework/core/File.h"

#include "framework/core/FileFind.h"
#include "framework/core/MemFile.h"
#include "framework/core/StdioFile.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>

namespace
{
namespace fs = std::filesystem;

/// Gives each test an empty folder of its own and removes it.
class FileTest : public testing::Test
{
protected:
    FileTest()
    {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        m_folder = fs::temp_directory_path() / (std::string("framework_values_") + info->name());
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    ~FileTest() override
    {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    CString PathOf(const char* name) const
    {
        return CString((m_folder / name).string().c_str());
    }
    CString Make(const char* name, const std::string& content) const
    {
        std::ofstream((m_folder / name), std::ios::binary) << content;
        return PathOf(name);
    }
    static std::string ContentOf(const CString& path)
    {
        std::ifstream file(path.GetString(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    fs::path m_folder;
};

/// Runs `action` and gives the cause of the file exception that it throws, or -1 for none.
template <class Action>
int CauseOf(Action action)
{
    try
    {
        action();
    }
    catch (CFileException* error)
    {
        const int cause = error->m_cause;
        error->Delete();
        return cause;
    }
    return -1;
}
} // namespace

TEST_F(FileTest, WritesAndReadsBytes)
{
    const CString path = PathOf("data.bin");
    {
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.Write("ab\0cd", 5);
        file.Flush();
        EXPECT_EQ(file.GetPosition(), 5u);
    }
    CFile file(path, CFile::modeRead);
    char bytes[10] = {};
    EXPECT_EQ(file.GetLength(), 5u);
    EXPECT_EQ(file.Read(bytes, sizeof(bytes)), 5u);
    EXPECT_EQ(std::memcmp(bytes, "ab\0cd", 5), 0);
    EXPECT_EQ(file.Read(bytes, sizeof(bytes)), 0u);
    EXPECT_EQ(file.Read(nullptr, 0), 0u);
    file.Close();
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    file.Close();
}

TEST_F(FileTest, OpenReportsItsFailure)
{
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(PathOf("missing.txt"), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(error.m_lOsError, 2);
    EXPECT_EQ(error.m_strFileName, PathOf("missing.txt"));
    EXPECT_FALSE(file.Open(PathOf("missing.txt"), CFile::modeRead));
    EXPECT_FALSE(file.Open("", CFile::modeRead));
    EXPECT_FALSE(file.Open(nullptr, CFile::modeRead));
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_EQ(CauseOf(
                  [this]
                  {
                      CFile(PathOf("missing.txt"), CFile::modeRead);
                  }),
              CFileException::fileNotFound);
    EXPECT_FALSE(file.Open(m_folder.string().c_str(), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::accessDenied);
}

TEST_F(FileTest, CreateCutsAndNoTruncateKeeps)
{
    const CString path = Make("old.txt", "12345");
    CFile(path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite).Close();
    EXPECT_EQ(ContentOf(path), "12345");
    CFile(path, CFile::modeCreate | CFile::modeWrite).Close();
    EXPECT_EQ(ContentOf(path), "");
}

TEST_F(FileTest, SeeksFromAllPlaces)
{
    CFile file(Make("seek.txt", "0123456789"), CFile::modeReadWrite);
    EXPECT_EQ(file.Seek(4, CFile::begin), 4u);
    EXPECT_EQ(file.Seek(-1, CFile::current), 3u);
    EXPECT_EQ(file.Seek(-2, CFile::end), 8u);
    EXPECT_EQ(file.SeekToEnd(), 10u);
    file.SeekToBegin();
    EXPECT_EQ(file.GetPosition(), 0u);
    EXPECT_EQ(file.Seek(20, CFile::begin), 20u);
    file.Write("x", 1);
    EXPECT_EQ(file.GetLength(), 21u);
    EXPECT_EQ(CauseOf(
                  [&file]
                  {
                      file.Seek(-1, CFile::begin);
                  }),
              CFileException::badSeek);
    EXPECT_THROW(file.Seek(0, 3), CInvalidArgException*);
}

TEST_F(FileTest, PositionsGoBeyondFourGigabytes)
{
    CFile file(PathOf("big.bin"), CFile::modeCreate | CFile::modeReadWrite);
    EXPECT_EQ(file.Seek(5000000000LL, CFile::begin), 5000000000ULL);
    EXPECT_EQ(file.GetPosition(), 5000000000ULL);
}

TEST_F(FileTest, SetLengthCutsAndExtends)
{
    const CString path = Make("length.txt", "abcdef");
    CFile file(path, CFile::modeReadWrite);
    file.SetLength(3);
    EXPECT_EQ(file.GetLength(), 3u);
    file.SetLength(5);
    EXPECT_EQ(file.GetPosition(), 5u);
    file.Close();
    EXPECT_EQ(ContentOf(path), std::string("abc\0\0", 5));
}

TEST_F(FileTest, AClosedFileThrowsOnUse)
{
    CFile file;
    char got = 0;
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.Read(&got, 1);
                  }),
              CFileException::invalidFile);
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.Write(&got, 1);
                  }),
              CFileException::invalidFile);
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.GetLength();
                  }),
              CFileException::invalidFile);
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.GetPosition();
                  }),
              CFileException::invalidFile);
    file.Flush();
    file.Close();
    file.Abort();
}

TEST_F(FileTest, WritingToAReadOnlyOpeningThrows)
{
    CFile file(Make("read.txt", "abc"), CFile::modeRead);
    EXPECT_NE(CauseOf(
                  [&]
                  {
                      file.Write("x", 1);
                  }),
              -1);
    file.Close();
    EXPECT_EQ(ContentOf(PathOf("read.txt")), "abc");
}

TEST_F(FileTest, DuplicateSharesThePosition)
{
    CFile file(Make("dup.txt", "abcdef"), CFile::modeRead);
    const std::unique_ptr<CFile> copy(file.Duplicate());
    char got = 0;
    file.Read(&got, 1);
    copy->Read(&got, 1);
    EXPECT_EQ(got, 'b');
    file.Close();
    copy->Read(&got, 1);
    EXPECT_EQ(got, 'c');
    EXPECT_EQ(copy->GetFileName(), "dup.txt");
}

TEST_F(FileTest, NamesComeApart)
{
    CFile file(PathOf("name.with.dots.txt"), CFile::modeCreate | CFile::modeWrite);
    EXPECT_EQ(file.GetFileName(), "name.with.dots.txt");
    EXPECT_EQ(file.GetFileTitle(), "name.with.dots");
    EXPECT_EQ(file.GetFilePath(), PathOf("name.with.dots.txt"));
    file.Close();
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    file.SetFilePath(PathOf("plain"));
    EXPECT_EQ(file.GetFileTitle(), "plain");
}

TEST_F(FileTest, StatusTellsSizeAndKind)
{
    const CString path = Make("status.txt", "1234567");
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(path, status));
    EXPECT_EQ(status.m_size, 7u);
    EXPECT_STREQ(status.m_szFullName, path);
    EXPECT_EQ(status.m_attribute & CFile::directory, 0);
    const long long age = CTime::GetCurrentTime().GetTime() - status.m_mtime.GetTime();
    EXPECT_LE(std::llabs(age), 60);
    CFile file(path, CFile::modeRead);
    CFileStatus again;
    ASSERT_TRUE(file.GetStatus(again));
    EXPECT_EQ(again.m_size, 7u);
    EXPECT_EQ(again.m_mtime, status.m_mtime);
    ASSERT_TRUE(CFile::GetStatus(m_folder.string().c_str(), status));
    EXPECT_NE(status.m_attribute & CFile::directory, 0);
    EXPECT_FALSE(CFile::GetStatus(PathOf("missing"), status));
    EXPECT_EQ(status.m_size, 0u);
    EXPECT_FALSE(CFile::GetStatus(nullptr, status));
}

TEST_F(FileTest, RenamesAndRemoves)
{
    const CString path = Make("a.txt", "a");
    CFile::Rename(path, PathOf("b.txt"));
    EXPECT_FALSE(fs::exists(path.GetString()));
    EXPECT_EQ(ContentOf(PathOf("b.txt")), "a");
    Make("c.txt", "c");
    EXPECT_EQ(CauseOf(
                  [this]
                  {
                      CFile::Rename(PathOf("b.txt"), PathOf("c.txt"));
                  }),
              CFileException::accessDenied);
    EXPECT_EQ(ContentOf(PathOf("c.txt")), "c");
    CFile::Remove(PathOf("b.txt"));
    EXPECT_FALSE(fs::exists(PathOf("b.txt").GetString()));
    EXPECT_EQ(CauseOf(
                  [this]
                  {
                      CFile::Remove(PathOf("b.txt"));
                  }),
              CFileException::fileNotFound);
    EXPECT_THROW(CFile::Remove(nullptr), CInvalidArgException*);
}

TEST_F(FileTest, LocksAndUnlocksARange)
{
    CFile file(Make("lock.txt", "abc"), CFile::modeReadWrite);
    file.LockRange(0, 2);
    file.UnlockRange(0, 2);
}

TEST_F(FileTest, HasNoFactoryButAKind)
{
    CFile file;
    CMemFile memory;
    EXPECT_TRUE(memory.IsKindOf(RUNTIME_CLASS(CFile)));
    EXPECT_FALSE(file.IsKindOf(RUNTIME_CLASS(CMemFile)));
}

// --- Searching ---

TEST_F(FileTest, FindsEachMatchOnce)
{
    Make("one.dbf", "1");
    Make("two.DBF", "22");
    Make("three.dbt", "333");
    CFileFind finder;
    std::set<std::string> names;
    BOOL isWorking = finder.FindFile(PathOf("*.dbf"));
    while (isWorking)
    {
        isWorking = finder.FindNextFile();
        EXPECT_TRUE(names.insert(finder.GetFileName().GetString()).second);
        EXPECT_EQ(finder.GetLength(), static_cast<ULONGLONG>(finder.GetFileName() == "one.dbf" ? 1 : 2));
        EXPECT_FALSE(finder.IsDirectory());
    }
    EXPECT_EQ(names, (std::set<std::string>{"one.dbf", "two.DBF"}));
}

TEST_F(FileTest, TheRootIsThatOfThePathAndEmptyWithoutFolder)
{
    const fs::path before = fs::current_path();
    const CString path = Make("root.txt", "r");
    fs::current_path(fs::path(path.GetString()).parent_path());
    CFileFind finder;
    EXPECT_TRUE(finder.GetRoot().IsEmpty());
    const BOOL found = finder.FindFile("root.*");
    finder.FindNextFile();
    const CString root = finder.GetRoot();
    const CString whole = finder.GetFilePath();
    fs::current_path(before);
    ASSERT_TRUE(found);
    EXPECT_TRUE(root.IsEmpty());
    EXPECT_EQ(whole, path) << "the path of a match is whole all the same";
}

TEST_F(FileTest, TheLastMatchStaysReadable)
{
    const CString path = Make("only.txt", "abc");
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(path));
    EXPECT_TRUE(finder.GetFileName().IsEmpty()) << "nothing is readable before the first step";
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFileName(), "only.txt");
    EXPECT_EQ(finder.GetFileTitle(), "only");
    EXPECT_EQ(finder.GetFilePath(), path);
    EXPECT_EQ(finder.GetFileURL(), "file://" + path);
    EXPECT_EQ(finder.GetRoot() + "only.txt", path);
    CTime written;
    ASSERT_TRUE(finder.GetLastWriteTime(written));
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(path, status));
    EXPECT_EQ(written, status.m_mtime);
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFileName(), "only.txt");
}

TEST_F(FileTest, AFailedSearchHasNothing)
{
    CFileFind finder;
    EXPECT_FALSE(finder.FindFile(PathOf("*.none")));
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_TRUE(finder.GetFileName().IsEmpty());
    EXPECT_TRUE(finder.GetFilePath().IsEmpty());
    EXPECT_TRUE(finder.GetFileURL().IsEmpty());
    EXPECT_EQ(finder.GetLength(), 0u);
    EXPECT_FALSE(finder.IsDots());
    EXPECT_FALSE(finder.MatchesMask(0xFFFFFFFF));
    CTime time(5);
    EXPECT_FALSE(finder.GetCreationTime(time));
    EXPECT_EQ(time.GetTime(), 5);
    EXPECT_FALSE(finder.FindFile(""));
    finder.Close();
    finder.Close();
}

TEST_F(FileTest, SeesFoldersAndDots)
{
    fs::create_directory(m_folder / "sub");
    CFileFind finder;
    int dots = 0;
    int folders = 0;
    BOOL isWorking = finder.FindFile(PathOf("*.*"));
    while (isWorking)
    {
        isWorking = finder.FindNextFile();
        dots += finder.IsDots() ? 1 : 0;
        folders += finder.IsDirectory() && !finder.IsDots() ? 1 : 0;
    }
    EXPECT_EQ(dots, 2);
    EXPECT_EQ(folders, 1);
}

TEST_F(FileTest, ANewSearchReplacesTheOld)
{
    Make("x1.a", "");
    Make("x2.a", "");
    Make("y.b", "");
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(PathOf("*.a")));
    finder.FindNextFile();
    ASSERT_TRUE(finder.FindFile(PathOf("?.b")));
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFileName(), "y.b");
}

// --- Memory files ---

TEST(FileInMemory, GrowsAndReadsBack)
{
    CMemFile file(4);
    file.Write("hello world", 11);
    EXPECT_EQ(file.GetLength(), 11u);
    file.Seek(6, CFile::begin);
    char text[16] = {};
    EXPECT_EQ(file.Read(text, 16), 5u);
    EXPECT_STREQ(text, "world");
    file.Seek(13, CFile::begin);
    file.Write("!", 1);
    file.SeekToBegin();
    EXPECT_EQ(file.Read(text, 16), 14u);
    EXPECT_EQ(std::memcmp(text, "hello world\0\0!", 14), 0);
    file.SetLength(2);
    EXPECT_EQ(file.GetPosition(), 2u);
    EXPECT_EQ(file.SeekToEnd(), 2u);
}

TEST(FileInMemory, BadPositionsThrow)
{
    CMemFile file;
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.Seek(-1, CFile::current);
                  }),
              CFileException::badSeek);
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.Seek(LLONG_MIN, CFile::begin);
                  }),
              CFileException::badSeek);
    file.Seek(1, CFile::begin);
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.Seek(LLONG_MAX, CFile::current);
                  }),
              CFileException::badSeek);
    EXPECT_THROW(file.SetLength(ULLONG_MAX), CMemoryException*);
    EXPECT_THROW(file.LockRange(0, 1), CNotSupportedException*);
    EXPECT_THROW(file.Duplicate(), CNotSupportedException*);
    EXPECT_EQ(file.GetLength(), 0u);
}

TEST(FileInMemory, WorksOnACallersBlock)
{
    BYTE block[4] = {'a', 'b', 'c', 'd'};
    CMemFile file(block, 4);
    EXPECT_EQ(file.GetLength(), 4u);
    char text[5] = {};
    EXPECT_EQ(file.Read(text, 5), 4u);
    EXPECT_STREQ(text, "abcd");
    EXPECT_THROW(file.Write("x", 1), CMemoryException*);
    file.SeekToBegin();
    file.Write("X", 1);
    EXPECT_EQ(block[0], 'X');
    EXPECT_EQ(file.Detach(), block);
    EXPECT_EQ(file.GetLength(), 0u);
}

TEST(FileInMemory, MovesOutOfAFullCallersBlock)
{
    BYTE block[4] = {};
    CMemFile file;
    file.Attach(block, 4, 16);
    EXPECT_EQ(file.GetLength(), 0u);
    file.Write("abcdef", 6);
    BYTE* data = file.Detach();
    ASSERT_NE(data, block);
    EXPECT_EQ(std::memcmp(data, "abcdef", 6), 0);
    CMemFile::Free(data);
}

// --- Text lines ---

TEST_F(FileTest, WritesAndReadsLines)
{
    const CString path = PathOf("lines.txt");
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString("first\n");
        file.WriteString(CString('x', 1000) + "\n\n");
        file.WriteString("last");
    }
    CStdioFile file(path, CFile::modeRead);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, "first");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, CString('x', 1000));
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, "");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, "last");
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_EQ(line, "");
}

TEST_F(FileTest, ReadsLinesOfBothSystems)
{
    CStdioFile file(Make("crlf.txt", "one\r\ntwo\nthree\r\n"), CFile::modeRead | CFile::typeText);
    CString line;
    for (const char* expected : {"one", "two", "three"})
    {
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_EQ(line, expected);
    }
    EXPECT_FALSE(file.ReadString(line));
}

TEST_F(FileTest, LinesMayHoldZeros)
{
    const CString path = PathOf("zeros.txt");
    const std::string longLine = std::string(254, 'x') + '\0' + std::string(300, 'y');
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.Write("a\0b\n", 4);
        file.Write("\0\n", 2);
        file.Write(longLine.data(), static_cast<UINT>(longLine.size()));
        file.Write("\nend\0", 5);
    }
    CStdioFile file(path, CFile::modeRead);
    CString line;
    for (const std::string& expected : {std::string("a\0b", 3), std::string("\0", 1), longLine})
    {
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_EQ(std::string(line.GetString(), static_cast<std::size_t>(line.GetLength())), expected);
    }
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(std::string(line.GetString(), static_cast<std::size_t>(line.GetLength())), std::string("end\0", 4));
    EXPECT_FALSE(file.ReadString(line));
}

TEST_F(FileTest, BinaryStreamsPassBytesUnchanged)
{
    const CString path = PathOf("binary.bin");
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
        file.Write("a\r\nb\n", 5);
        EXPECT_EQ(file.GetPosition(), 5u);
        EXPECT_EQ(file.GetLength(), 5u);
        file.Seek(3, CFile::begin);
        char got = 0;
        EXPECT_EQ(file.Read(&got, 1), 1u);
        EXPECT_EQ(got, 'b');
        file.SetLength(4);
        EXPECT_EQ(file.GetLength(), 4u);
    }
    EXPECT_EQ(ContentOf(path), "a\r\nb");
}

TEST_F(FileTest, ABufferedLineIsCutToTheCallersBuffer)
{
    CStdioFile file(Make("cut.txt", "abcdef\n"), CFile::modeRead);
    char text[4];
    EXPECT_STREQ(file.ReadString(text, sizeof(text)), "abc");
    EXPECT_STREQ(file.ReadString(text, sizeof(text)), "def");
    EXPECT_STREQ(file.ReadString(text, sizeof(text)), "\n");
    EXPECT_EQ(file.ReadString(text, sizeof(text)), nullptr);
    EXPECT_THROW(file.ReadString(text, 0), CInvalidArgException*);
}

TEST_F(FileTest, AClosedStreamThrowsOnUse)
{
    CStdioFile file;
    CString line;
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.ReadString(line);
                  }),
              CFileException::invalidFile);
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.WriteString("x");
                  }),
              CFileException::invalidFile);
    EXPECT_EQ(CauseOf(
                  [&]
                  {
                      file.GetLength();
                  }),
              CFileException::invalidFile);
    file.Flush();
    file.Close();
    EXPECT_FALSE(file.Open(PathOf("missing"), CFile::modeRead));
}

// --- Exceptions of files ---

TEST(FileException, MapsSystemErrors)
{
    EXPECT_EQ(CFileException::OsErrorToException(0), CFileException::none);
    EXPECT_EQ(CFileException::OsErrorToException(2), CFileException::fileNotFound);
    EXPECT_EQ(CFileException::OsErrorToException(3), CFileException::badPath);
    EXPECT_EQ(CFileException::OsErrorToException(5), CFileException::accessDenied);
    EXPECT_EQ(CFileException::OsErrorToException(32), CFileException::sharingViolation);
    EXPECT_EQ(CFileException::OsErrorToException(33), CFileException::lockViolation);
    EXPECT_EQ(CFileException::OsErrorToException(112), CFileException::diskFull);
    EXPECT_EQ(CFileException::OsErrorToException(99999), CFileException::genericException);
    EXPECT_EQ(CFileException::ErrnoToException(0), CFileException::none);
    EXPECT_EQ(CFileException::ErrnoToException(ENOENT), CFileException::fileNotFound);
    EXPECT_EQ(CFileException::ErrnoToException(ENOSPC), CFileException::diskFull);
}

TEST(FileException, ThrowsOnlyForErrors)
{
    CFileException::ThrowOsError(0);
    CFileException::ThrowErrno(0);
    EXPECT_EQ(CauseOf(
                  []
                  {
                      CFileException::ThrowOsError(32, "a.txt");
                  }),
              CFileException::sharingViolation);
    EXPECT_EQ(CauseOf(
                  []
                  {
                      CFileException::ThrowErrno(EACCES);
                  }),
              CFileException::accessDenied);
}

TEST(FileException, DescribesItself)
{
    const CFileException error(CFileException::diskFull, 112, "chart.png");
    char text[100];
    EXPECT_TRUE(error.GetErrorMessage(text, sizeof(text)));
    EXPECT_STREQ(text, "chart.png: the disk is full.");
    char cut[6];
    EXPECT_TRUE(error.GetErrorMessage(cut, sizeof(cut)));
    EXPECT_STREQ(cut, "chart");
    EXPECT_FALSE(error.GetErrorMessage(nullptr, 0));
    EXPECT_TRUE(CFileException(-5).GetErrorMessage(text, sizeof(text)));
    EXPECT_STREQ(text, "File: an unspecified error occurred.");
    EXPECT_TRUE(CArchiveException(CArchiveException::endOfFile).GetErrorMessage(text, sizeof(text)));
    EXPECT_STREQ(text, "File: its end was passed.");
}
