#include "tests/windows/framework_frame/TestFrame.h"

#include "framework/dialog/CPrintDialog.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestPrinter.h"

#include <string>

using namespace vorn::test;

namespace
{
constexpr const char* kProgressTitle = "Printing";

BOOL CALLBACK FindShownDialog(HWND window, LPARAM found)
{
    char text[16]{};
    ::GetClassNameA(window, text, sizeof(text));
    if (std::string(text) != "#32770" || !::IsWindowVisible(window))
        return TRUE;
    ::GetWindowTextA(window, text, sizeof(text));
    if (std::string(text) == kProgressTitle)
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

/// A dialog or message box that this thread shows, the progress dialog left out.
HWND ShownDialog()
{
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), FindShownDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

/// The system's print dialog is the one with a list of printers.
HWND PrintDialog()
{
    HWND dialog = ShownDialog();
    constexpr int kPrinterList = 0x473;
    return ::GetDlgItem(dialog, kPrinterList) ? dialog : nullptr;
}

bool Press(HWND dialog, WPARAM button)
{
    return dialog && ::PostMessage(dialog, WM_COMMAND, button, 0);
}

/// How a PrintView prepares its job and what came of it.
struct Job
{
    UINT minPage = 1;
    UINT maxPage = 3;
    bool setPages = true;
    bool range = false;
    UINT fromPage = 1;
    UINT toPage = 1;
    bool prepare = true;    ///< what OnPreparePrinting answers
    bool useDialog = false; ///< prepare by DoPreparePrinting
    HDC dc = nullptr;       ///< else this context; the job deletes it
    UINT cancelAtPage = 0;  ///< press the progress dialog's button while this page is printed
    UINT quitAtPage = 0;    ///< end the program while this page is printed
    bool direct = false;    ///< answered: whether the job was a direct one
    bool prepared = false;  ///< answered
    CRect drawn;            ///< answered: the printable area
    CString title;          ///< answered: the progress dialog's document
    CString page;           ///< answered: its last page line
    bool ownerDisabled = false;
};

Job& TheJob()
{
    static Job job;
    return job;
}

class PrintView : public TestView
{
    DECLARE_DYNCREATE(PrintView)

public:
    using CView::DoPreparePrinting;

protected:
    BOOL OnPreparePrinting(CPrintInfo* info) override
    {
        Job& job = TheJob();
        Notes().emplace_back("prepare");
        job.direct = info->m_bDirect;
        if (job.setPages)
        {
            info->SetMinPage(job.minPage);
            info->SetMaxPage(job.maxPage);
        }
        if (job.useDialog)
            return job.prepared = DoPreparePrinting(info);
        info->m_pPD->m_pd.hDC = job.dc;
        if (job.range)
        {
            info->m_pPD->m_pd.Flags |= PD_PAGENUMS;
            info->m_pPD->m_pd.nFromPage = static_cast<WORD>(job.fromPage);
            info->m_pPD->m_pd.nToPage = static_cast<WORD>(job.toPage);
        }
        return job.prepare;
    }

    /// Dialogs come and go here: activation is not noted.
    void OnActivateView(BOOL activate, CView* activateView, CView* deactivateView) override
    {
        CView::OnActivateView(activate, activateView, deactivateView);
    }

    void OnBeginPrinting(CDC* dc, CPrintInfo*) override
    {
        EXPECT_TRUE(dc->IsPrinting());
        Notes().emplace_back("begin");
    }

    void OnPrint(CDC* dc, CPrintInfo* info) override
    {
        Job& job = TheJob();
        Notes().push_back("page" + std::to_string(info->m_nCurPage));
        job.drawn = info->m_rectDraw;
        job.ownerDisabled = !GetTopLevelParent()->IsWindowEnabled();
        if (CWnd* progress = FindWindow("#32770", kProgressTitle))
        {
            progress->GetDlgItemText(201, job.title);
            progress->GetDlgItemText(204, job.page);
            if (info->m_nCurPage == job.cancelAtPage)
                progress->PostMessage(WM_COMMAND, IDCANCEL);
        }
        if (info->m_nCurPage == job.quitAtPage)
            ::PostQuitMessage(31);
        dc->Rectangle(100, 100, 200, 200);
    }

    void OnEndPrinting(CDC*, CPrintInfo*) override
    {
        Notes().emplace_back("end");
    }

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(PrintView, TestView)

BEGIN_MESSAGE_MAP(PrintView, TestView)
ON_COMMAND(ID_FILE_PRINT, &PrintView::OnFilePrint)
ON_COMMAND(ID_FILE_PRINT_DIRECT, &PrintView::OnFilePrint)
END_MESSAGE_MAP()

class Printing : public FrameTest
{
protected:
    Printing()
    {
        TheJob() = Job();
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(PrintView);
        frame = ShowFrame(WS_OVERLAPPEDWINDOW, &context);
        view = static_cast<PrintView*>(frame->GetDlgItem(AFX_IDW_PANE_FIRST));
        frame->SetActiveView(view, FALSE);
        Notes().clear();
    }
    ~Printing() override
    {
        frame->DestroyWindow();
    }

    void Print(UINT command = ID_FILE_PRINT)
    {
        frame->SendMessage(WM_COMMAND, command);
    }

    TestFrame* frame;
    PrintView* view;
};

/// With a printer of the tests' own.
class PrintingOnPaper : public Printing
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(printer.Works()) << "the tests' printer could not be installed";
        TheJob().dc = printer.CreateContext();
    }

    TestPrinter printer;
};
} // namespace

TEST(PrintInfo, BeginsWithOnePageAndAnOpenEnd)
{
    CPrintInfo info;
    EXPECT_EQ(1U, info.GetMinPage());
    EXPECT_EQ(0xFFFFU, info.GetMaxPage());
    EXPECT_EQ(1U, info.m_nCurPage);
    EXPECT_TRUE(info.m_bContinuePrinting);
    EXPECT_FALSE(info.m_bDirect);
    EXPECT_FALSE(info.m_bPreview);
    EXPECT_STREQ("Page %u", info.m_strPageDesc);
    EXPECT_NE(nullptr, info.m_pPD);
    info.SetMinPage(2);
    info.SetMaxPage(5);
    EXPECT_EQ(2U, info.GetMinPage());
    EXPECT_EQ(5U, info.m_pPD->m_pd.nMaxPage);
}

TEST(PrintInfo, DeletesItsContext)
{
    HDC dc = ::CreateCompatibleDC(nullptr);
    {
        CPrintInfo info;
        info.m_pPD->m_pd.hDC = dc;
    }
    EXPECT_EQ(0U, ::GetObjectType(dc));
}

TEST_F(Printing, PreparationOfNothingFails)
{
    EXPECT_FALSE(view->DoPreparePrinting(nullptr));
}

TEST_F(Printing, RefusedPreparationEndsTheJobBeforeItBegins)
{
    TheJob().prepare = false;
    Print();
    EXPECT_EQ("prepare", AllNotes());
    EXPECT_FALSE(TheJob().direct);
}

TEST_F(Printing, DirectCommandAsksForADirectJob)
{
    TheJob().prepare = false;
    Print(ID_FILE_PRINT_DIRECT);
    EXPECT_TRUE(TheJob().direct);
}

TEST_F(Printing, PreparationWithoutContextPrintsNothing)
{
    Print();
    EXPECT_EQ("prepare", AllNotes());
}

TEST_F(Printing, AContextThatTakesNoJobIsReported)
{
    TheJob().dc = ::CreateCompatibleDC(nullptr);
    CString message;
    const DialogDriver driver(
        [&message]
        {
            HWND dialog = ShownDialog();
            constexpr int kMessageText = 0xFFFF;
            if (HWND text = ::GetDlgItem(dialog, kMessageText))
                CWnd::FromHandle(text)->GetWindowText(message);
            return Press(dialog, IDOK);
        });
    Print();
    EXPECT_TRUE(driver.IsDone());
    EXPECT_STREQ("The print job could not be started.", message);
    EXPECT_EQ("prepare begin end", AllNotes());
    EXPECT_TRUE(frame->IsWindowEnabled());
}

TEST_F(Printing, WithoutPrinterTheSystemTellsTheUserAndPreparationFails)
{
    char name[MAX_PATH];
    DWORD size = MAX_PATH;
    if (::GetDefaultPrinterA(name, &size))
        GTEST_SKIP() << "there is a printer here";
    for (const UINT command : {UINT(ID_FILE_PRINT), UINT(ID_FILE_PRINT_DIRECT)})
    {
        TheJob().useDialog = true;
        const DialogDriver driver(
            []
            {
                return Press(ShownDialog(), IDOK);
            });
        Print(command);
        EXPECT_TRUE(driver.IsDone()) << "the system's message about the missing printer";
        EXPECT_FALSE(TheJob().prepared);
    }
    EXPECT_EQ("prepare prepare", AllNotes());
}

TEST_F(PrintingOnPaper, PrintsEveryPageInOrder)
{
    frame->SetWindowText("Route to Denver");
    Print();
    EXPECT_EQ("prepare begin page1 page2 page3 end", AllNotes());
    EXPECT_EQ(3, printer.PageCount());
    EXPECT_NE(std::string::npos, printer.Output().find("Route to Denver"));
    EXPECT_STREQ("Route to Denver", TheJob().title);
    EXPECT_STREQ("Page 3", TheJob().page);
    EXPECT_TRUE(TheJob().ownerDisabled) << "while the job runs";
    EXPECT_TRUE(frame->IsWindowEnabled());
    EXPECT_EQ(nullptr, CWnd::FindWindow("#32770", kProgressTitle));
}

TEST_F(PrintingOnPaper, TellsThePrintableArea)
{
    const int width = ::GetDeviceCaps(TheJob().dc, HORZRES);
    const int height = ::GetDeviceCaps(TheJob().dc, VERTRES);
    Print();
    EXPECT_EQ(CRect(0, 0, width, height), TheJob().drawn);
    // A4 less a quarter of an inch on each side, at 300 dots an inch: 559 and 806 points.
    EXPECT_NEAR(559 * 300 / 72, width, 2);
    EXPECT_NEAR(806 * 300 / 72, height, 2);
}

TEST_F(PrintingOnPaper, PrintsTheRangeThatWasChosen)
{
    TheJob().maxPage = 9;
    TheJob().range = true;
    TheJob().fromPage = 4;
    TheJob().toPage = 5;
    Print();
    EXPECT_EQ("prepare begin page4 page5 end", AllNotes());
    EXPECT_EQ(2, printer.PageCount());
}

TEST_F(PrintingOnPaper, PrintsBackwardsWhenAskedAndNeverOutsideTheDocument)
{
    TheJob().range = true;
    TheJob().fromPage = 700;
    TheJob().toPage = 2;
    Print();
    EXPECT_EQ("prepare begin page3 page2 end", AllNotes());
}

TEST_F(PrintingOnPaper, DocumentOfUnknownLengthHasOnePage)
{
    TheJob().setPages = false;
    Print();
    EXPECT_EQ("prepare begin page1 end", AllNotes());
    EXPECT_EQ(1, printer.PageCount());
}

TEST_F(PrintingOnPaper, CancelButtonEndsTheJobWithoutMessage)
{
    TheJob().maxPage = 50;
    TheJob().cancelAtPage = 2;
    Print();
    EXPECT_EQ("prepare begin page1 page2 end", AllNotes());
    EXPECT_TRUE(frame->IsWindowEnabled());
}

TEST_F(PrintingOnPaper, EndOfTheProgramEndsTheJobAndIsHandedOn)
{
    TheJob().maxPage = 50;
    TheJob().quitAtPage = 2;
    Print();
    EXPECT_EQ("prepare begin page1 page2 end", AllNotes());
    MSG message{};
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(31U, message.wParam);
    EXPECT_TRUE(frame->IsWindowEnabled());
}

TEST_F(PrintingOnPaper, DirectJobTakesTheDefaultPrinterWithoutDialog)
{
    ::DeleteDC(TheJob().dc);
    TheJob().useDialog = true;
    Print(ID_FILE_PRINT_DIRECT);
    EXPECT_TRUE(TheJob().prepared);
    EXPECT_EQ("prepare begin page1 page2 page3 end", AllNotes());
    EXPECT_EQ(3, printer.PageCount());
}

TEST_F(PrintingOnPaper, DialogsOkPrints)
{
    ::DeleteDC(TheJob().dc);
    TheJob().useDialog = true;
    const DialogDriver driver(
        []
        {
            return Press(PrintDialog(), IDOK);
        });
    Print();
    EXPECT_TRUE(driver.IsDone());
    EXPECT_TRUE(TheJob().prepared);
    EXPECT_EQ("prepare begin page1 page2 page3 end", AllNotes());
    EXPECT_EQ(3, printer.PageCount());
}

TEST_F(PrintingOnPaper, DialogsCancelPrintsNothing)
{
    ::DeleteDC(TheJob().dc);
    TheJob().useDialog = true;
    const DialogDriver driver(
        []
        {
            return Press(PrintDialog(), IDCANCEL);
        });
    Print();
    EXPECT_TRUE(driver.IsDone());
    EXPECT_FALSE(TheJob().prepared);
    EXPECT_EQ("prepare", AllNotes());
    EXPECT_EQ(0, printer.PageCount());
}
