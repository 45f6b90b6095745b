#include "framework/dialog/CPrintDialog.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{
BOOL CALLBACK CancelIfUsable(HWND window, LPARAM)
{
    char name[16] = {};
    ::GetClassNameA(window, name, sizeof(name));
    if (::lstrcmpA(name, "#32770") == 0 && ::IsWindowVisible(window) && ::IsWindowEnabled(window))
        ::PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}

/// Never done: goes on until the driver ends.
bool CancelAnyDialog()
{
    ::EnumThreadWindows(::GetCurrentThreadId(), CancelIfUsable, 0);
    return false;
}

/// Global memory for a record of the dialog, freed at the end.
class Block
{
public:
    explicit Block(std::size_t size) : m_handle(::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size))
    {
    }
    ~Block()
    {
        ::GlobalFree(m_handle);
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    template <class T>
    void Fill(const std::function<void(T&)>& fill)
    {
        fill(*static_cast<T*>(::GlobalLock(m_handle)));
        ::GlobalUnlock(m_handle);
    }
    HGLOBAL Handle() const
    {
        return m_handle;
    }

private:
    HGLOBAL m_handle;
};
} // namespace

TEST(PrintDialog, RecordIsPrepared)
{
    CPrintDialog print(FALSE);
    EXPECT_EQ(print.m_pd.lStructSize, sizeof(PRINTDLGA));
    EXPECT_TRUE(print.m_pd.Flags & PD_RETURNDC);
    EXPECT_FALSE(print.m_pd.Flags & PD_PRINTSETUP);
    EXPECT_TRUE(print.m_pd.Flags & PD_NOPAGENUMS);
    CPrintDialog setup(TRUE, PD_ALLPAGES);
    EXPECT_TRUE(setup.m_pd.Flags & PD_PRINTSETUP);
    EXPECT_FALSE(setup.m_pd.Flags & PD_RETURNDC);
    EXPECT_FALSE(setup.m_pd.Flags & PD_NOPAGENUMS);
}

TEST(PrintDialog, RangeIsToldFromTheFlags)
{
    CPrintDialog dialog(FALSE, PD_PAGENUMS);
    dialog.m_pd.nFromPage = 3;
    dialog.m_pd.nToPage = 8;
    EXPECT_TRUE(dialog.PrintRange());
    EXPECT_FALSE(dialog.PrintAll());
    EXPECT_EQ(dialog.GetFromPage(), 3);
    EXPECT_EQ(dialog.GetToPage(), 8);
    dialog.m_pd.Flags = PD_SELECTION | PD_COLLATE;
    EXPECT_TRUE(dialog.PrintSelection());
    EXPECT_TRUE(dialog.PrintCollate());
    EXPECT_FALSE(dialog.PrintAll());
    EXPECT_EQ(dialog.GetFromPage(), -1);
    dialog.m_pd.Flags = 0;
    EXPECT_TRUE(dialog.PrintAll());
    EXPECT_EQ(dialog.GetToPage(), -1);
}

TEST(PrintDialog, CopiesComeFromDriverOrRecord)
{
    Block mode(sizeof(DEVMODEA));
    mode.Fill<DEVMODEA>(
        [](DEVMODEA& record)
        {
            record.dmFields = DM_COPIES;
            record.dmCopies = 4;
        });
    CPrintDialog dialog(FALSE, PD_USEDEVMODECOPIES);
    EXPECT_EQ(dialog.GetCopies(), 1);
    dialog.m_pd.hDevMode = mode.Handle();
    EXPECT_EQ(dialog.GetCopies(), 4);
    dialog.m_pd.Flags = 0;
    dialog.m_pd.nCopies = 9;
    EXPECT_EQ(dialog.GetCopies(), 9);
    EXPECT_EQ(::GlobalFlags(mode.Handle()) & GMEM_LOCKCOUNT, 0u);
}

TEST(PrintDialog, NamesComeFromTheirRecord)
{
    struct Names
    {
        DEVNAMES offsets;
        char texts[64];
    };
    Block names(sizeof(Names));
    names.Fill<Names>(
        [](Names& record)
        {
            record.offsets.wDriverOffset = sizeof(DEVNAMES);
            record.offsets.wDeviceOffset = sizeof(DEVNAMES) + 10;
            record.offsets.wOutputOffset = sizeof(DEVNAMES) + 20;
            std::strcpy(record.texts, "winspool");
            std::strcpy(record.texts + 10, "Laser");
            std::strcpy(record.texts + 20, "LPT1:");
        });
    CPrintDialog dialog(FALSE);
    EXPECT_TRUE(dialog.GetDeviceName().IsEmpty());
    EXPECT_EQ(dialog.CreatePrinterDC(), nullptr);
    dialog.m_pd.hDevNames = names.Handle();
    EXPECT_EQ(dialog.GetDriverName(), "winspool");
    EXPECT_EQ(dialog.GetDeviceName(), "Laser");
    EXPECT_EQ(dialog.GetPortName(), "LPT1:");
    EXPECT_EQ(dialog.CreatePrinterDC(), nullptr); // there is no such printer
}

TEST(PrintDialog, SettingsAreLockedForTheCaller)
{
    Block mode(sizeof(DEVMODEA));
    CPrintDialog dialog(FALSE);
    EXPECT_EQ(dialog.GetDevMode(), nullptr);
    dialog.m_pd.hDevMode = mode.Handle();
    EXPECT_NE(dialog.GetDevMode(), nullptr);
    EXPECT_EQ(::GlobalFlags(mode.Handle()) & GMEM_LOCKCOUNT, 1u);
    ::GlobalUnlock(mode.Handle());
}

TEST(PrintDialog, WithoutPrinterItIsCancelled)
{
    char printer[256] = {};
    DWORD size = sizeof(printer);
    if (::GetDefaultPrinterA(printer, &size))
        GTEST_SKIP() << "there is a printer: " << printer;
    // Some systems say so in a message box of their own.
    DialogDriver driver(
        []
        {
            return CancelAnyDialog();
        });
    OwnerWindow owner;
    CPrintDialog dialog(FALSE, PD_ALLPAGES | PD_NOWARNING, &owner);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(owner.IsWindowEnabled());
    CPrintDialog defaults(FALSE, PD_NOWARNING);
    EXPECT_FALSE(defaults.GetDefaults());
    EXPECT_EQ(defaults.GetPrinterDC(), nullptr);
}
