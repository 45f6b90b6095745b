#include "files/BrowseForDirectory.h"
#include "framework/include/afxwin.h"
#include "tests/windows/files_search/FolderDialogTest.h"

#include <cstring>
#include <ole2.h>

namespace
{

constexpr int kChosen = 1;
constexpr int kCancelled = 2;
constexpr int kFailed = 3;

class BrowsingForADirectory : public FolderDialogTest
{
protected:
    BrowsingForADirectory()
    {
        std::memset(m_buffer, 'x', sizeof m_buffer);
        m_buffer[0] = '\0';
    }
    void StartAt(const std::string& folder)
    {
        std::memcpy(m_buffer, folder.c_str(), folder.size() + 1);
    }
    int Browse(const char* title = nullptr, bool newFolderButton = true, CWnd* owner = nullptr)
    {
        return BrowseForDirectory(m_buffer, sizeof m_buffer, title, newFolderButton, owner);
    }

    char m_buffer[300];
};

// A shown window that can own a dialog.
class OwnerWindow : public CWnd
{
public:
    OwnerWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), "owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 200, 100), nullptr,
                 0);
    }
    ~OwnerWindow() override
    {
        DestroyWindow();
    }
};

// Hears what the process tells its debugger.
class DebuggerEar
{
public:
    DebuggerEar() : m_handler(AddVectoredExceptionHandler(1, &Hear))
    {
        s_heard.clear();
    }
    ~DebuggerEar()
    {
        RemoveVectoredExceptionHandler(m_handler);
    }
    DebuggerEar(const DebuggerEar&) = delete;
    DebuggerEar& operator=(const DebuggerEar&) = delete;

    const std::vector<std::string>& Heard() const
    {
        return s_heard;
    }

private:
    static LONG CALLBACK Hear(EXCEPTION_POINTERS* pointers)
    {
        const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
        if (record.ExceptionCode == DBG_PRINTEXCEPTION_C)
        {
            s_heard.emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
        }
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static std::vector<std::string> s_heard;
    void* m_handler;
};

std::vector<std::string> DebuggerEar::s_heard;

// Whether the thread has initialised OLE.
bool HasOle()
{
    const HRESULT result = OleInitialize(nullptr);
    OleUninitialize();
    return result == S_FALSE;
}

} // namespace

TEST_F(BrowsingForADirectory, OpensAtTheFolderInTheBuffer)
{
    StartAt(m_charts.string());
    AnswerAt(m_charts, IDOK);
    EXPECT_EQ(Browse(), kChosen);
    EXPECT_EQ(m_buffer, m_charts.string());
    EXPECT_TRUE(WasAnswered());
}

TEST_F(BrowsingForADirectory, TakesABackslashAtTheFoldersEnd)
{
    StartAt(m_data.string() + "\\");
    AnswerAt(m_data, IDOK);
    EXPECT_EQ(Browse(), kChosen);
    EXPECT_EQ(m_buffer, m_data.string());
}

TEST_F(BrowsingForADirectory, OpensAtADrive)
{
    StartAt("C:\\");
    AnswerAt("C:\\", IDOK);
    EXPECT_EQ(Browse(), kChosen);
    EXPECT_STREQ(m_buffer, "C:\\");
}

TEST_F(BrowsingForADirectory, OpensAtTheLastLevelThatThereIs)
{
    StartAt((m_data / "Nowhere").string());
    AnswerAt(m_data, IDOK);
    EXPECT_EQ(Browse(), kChosen);
    EXPECT_EQ(m_buffer, m_data.string());
}

TEST_F(BrowsingForADirectory, OpensAtTheTopWithoutAFolder)
{
    CancelAfter(
        [](const vorn::test::ShellDialog& dialog)
        {
            EXPECT_EQ(dialog.Selection().size(), 1u);
        });
    EXPECT_EQ(Browse(), kCancelled);
}

TEST_F(BrowsingForADirectory, LeavesTheBufferAsItWasWhenCancelled)
{
    StartAt(m_charts.string());
    char before[sizeof m_buffer];
    std::memcpy(before, m_buffer, sizeof before);
    AnswerAt(m_charts, IDCANCEL);
    EXPECT_EQ(Browse(), kCancelled);
    EXPECT_EQ(std::memcmp(m_buffer, before, sizeof before), 0);
}

TEST_F(BrowsingForADirectory, WritesNoFurtherThanTheFoldersEnd)
{
    StartAt(m_charts.string());
    AnswerAt(m_charts, IDOK);
    ASSERT_EQ(Browse(), kChosen);
    EXPECT_EQ(std::string(m_buffer + std::strlen(m_buffer) + 1, m_buffer + sizeof m_buffer),
              std::string(sizeof m_buffer - std::strlen(m_buffer) - 1, 'x'));
}

TEST_F(BrowsingForADirectory, ReadsNoFurtherThanTheBuffersEnd)
{
    std::memset(m_buffer, 'y', sizeof m_buffer);
    CancelAfter(
        [](const vorn::test::ShellDialog& dialog)
        {
            EXPECT_EQ(dialog.Selection().size(), 1u);
        });
    EXPECT_EQ(BrowseForDirectory(m_buffer, 260, nullptr, true, nullptr), kCancelled);
}

TEST_F(BrowsingForADirectory, FailsForWhatIsNoFolder)
{
    StartAt(m_charts.string());
    const DialogDriver driver(
        [&]
        {
            const auto dialog = vorn::test::ShellDialog::Shown();
            const bool isReady = dialog && dialog.IsAt(m_charts) && dialog.SelectComputer();
            if (isReady)
            {
                dialog.Press(IDOK);
            }
            return isReady;
        });
    EXPECT_EQ(Browse(), kFailed);
    EXPECT_STREQ(m_buffer, "");
}

TEST_F(BrowsingForADirectory, ShowsNothingForABufferThatIsTooSmall)
{
    StartAt("C:\\");
    for (const int size : {259, 1, 0, -1, -300})
    {
        EXPECT_EQ(BrowseForDirectory(m_buffer, size, nullptr, true, nullptr), kFailed) << size;
    }
    EXPECT_EQ(BrowseForDirectory(nullptr, 1000, nullptr, true, nullptr), kFailed);
    EXPECT_STREQ(m_buffer, "C:\\");
}

TEST_F(BrowsingForADirectory, TellsTheDebuggerFirst)
{
    const DebuggerEar ear;
    BrowseForDirectory(nullptr, 0, nullptr, true, nullptr);
    EXPECT_EQ(ear.Heard(), std::vector<std::string>{"PathFileUtilities, BrowseForDirectory\n"});
}

TEST_F(BrowsingForADirectory, HasATitleOfItsOwnWithoutOne)
{
    for (const char* title : {static_cast<const char*>(nullptr), ""})
    {
        CancelAfter(
            [](const vorn::test::ShellDialog& dialog)
            {
                EXPECT_EQ(dialog.Title(), "Select a Directory");
            });
        EXPECT_EQ(Browse(title), kCancelled);
    }
}

TEST_F(BrowsingForADirectory, HasTheTitleGiven)
{
    CancelAfter(
        [](const vorn::test::ShellDialog& dialog)
        {
            EXPECT_EQ(dialog.Title(), "Where are the charts?");
        });
    EXPECT_EQ(Browse("Where are the charts?"), kCancelled);
}

TEST_F(BrowsingForADirectory, MakesFoldersOnlyWhereAsked)
{
    for (const bool newFolderButton : {true, false})
    {
        CancelAfter(
            [=](const vorn::test::ShellDialog& dialog)
            {
                EXPECT_EQ(dialog.HasNewFolderButton(), newFolderButton);
            });
        EXPECT_EQ(Browse(nullptr, newFolderButton), kCancelled);
    }
}

TEST_F(BrowsingForADirectory, KeepsItsOwnerWaiting)
{
    OwnerWindow owner;
    CancelAfter(
        [&](const vorn::test::ShellDialog& dialog)
        {
            EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), owner.m_hWnd);
            EXPECT_FALSE(IsWindowEnabled(owner.m_hWnd));
        });
    EXPECT_EQ(Browse(nullptr, true, &owner), kCancelled);
    EXPECT_TRUE(IsWindowEnabled(owner.m_hWnd));
}

TEST_F(BrowsingForADirectory, NeedsNoOwner)
{
    CWnd without;
    for (CWnd* owner : {static_cast<CWnd*>(nullptr), &without})
    {
        CancelAfter(
            [](const vorn::test::ShellDialog& dialog)
            {
                EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), nullptr);
            });
        EXPECT_EQ(Browse(nullptr, true, owner), kCancelled);
    }
}

TEST_F(BrowsingForADirectory, InitialisesOleForItsOwnTime)
{
    ASSERT_FALSE(HasOle());
    CancelAfter(
        [](const vorn::test::ShellDialog&)
        {
            EXPECT_TRUE(HasOle());
        });
    Browse();
    EXPECT_FALSE(HasOle());
}

TEST_F(BrowsingForADirectory, LeavesTheThreadsOwnOleAlone)
{
    ASSERT_EQ(OleInitialize(nullptr), S_OK);
    CancelAfter([](const vorn::test::ShellDialog&) {});
    Browse();
    EXPECT_TRUE(HasOle());
    OleUninitialize();
}
