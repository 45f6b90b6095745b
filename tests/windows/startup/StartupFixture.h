#pragma once

#include "framework/include/afxwin.h"
#include "tests/support/ScratchKey.h"
#include "toolkit/startup/CStartupDlg.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vorn::test
{

/// A control within the startup dialog's area.
struct ShownText
{
    HWND window;
    std::string text;
    CRect place; ///< on the screen
};

/// Type (MB_ flags) of the last message box.
UINT LastMessageBox();

std::string TextOf(HWND window);
CRect PlaceOf(HWND window);

/// The area with the groups; null when the dialog has none.
HWND AreaOf(HWND dialog);

/// What the area shows of a window class, in the order of creation.
std::vector<ShownText> ShownIn(HWND dialog, const char* windowClass);

/// Texts of the lines (static controls) of the area.
std::vector<std::string> LinesOf(HWND dialog);

/// Captions of the groups.
std::vector<std::string> GroupsOf(HWND dialog);

/// A moment so many days from now, set by its time.
Date InDays(double days);

/// A data set that is in force for ten days more.
CStartupDlg::DataInfo Navigation(const char* coverage, double daysToExpiry);
CStartupDlg::DataInfo Terminal(const char* coverage, double daysToExpiry);

/// An application whose profile is a key of the test's own in the registry.
class StartupDialog : public testing::Test
{
protected:
    StartupDialog();

    /// Runs the dialog and closes it with a command once `look` has seen it. Without title its own window is waited
    /// for.
    static INT_PTR Show(CStartupDlg& dialog, const std::function<void(HWND)>& look, UINT command = IDCANCEL,
                        const char* title = "Testplane (1990-2004)");

    /// Shows a dialog of the name "Testplane" with these data sets.
    static void ShowWith(std::vector<CStartupDlg::DataInfo> records, const std::function<void(HWND)>& look);

    static void Store(DWORD noDisclaimer);
    static std::optional<DWORD> Stored();

private:
    ScratchKey m_key;
};

} // namespace vorn::test
