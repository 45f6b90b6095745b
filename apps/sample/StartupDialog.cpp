#include "apps/sample/StartupDialog.h"

#include "apps/sample/Snapshot.h"

namespace
{

constexpr const char* kName = "Vornwald sample host";
constexpr const char* kUpdateProgram = "VornUpdate.exe";

CStartupDlg::CopyRightData kYears = {2025, 2026};

BOOL CALLBACK AppendText(HWND window, LPARAM parameter)
{
    CString text;
    CWnd::FromHandle(window)->GetWindowText(text);
    if (IsWindowVisible(window) && !text.IsEmpty())
        reinterpret_cast<std::string*>(parameter)->append(text.GetString()).push_back('\n');
    return TRUE;
}

} // namespace

// What the base is made of, which outlives its construction.
struct StartupDialog::Arguments
{
    explicit Arguments(Currency currency) : sets(DataSets(currency)), program(ProgramFolder() + kUpdateProgram)
    {
        lines.Add("Tables of one day, good for showing what the library does: not for navigation.");
    }
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    std::vector<CStartupDlg::DataInfo> sets;
    std::string program;
    CStringArray lines;
};

StartupDialog::StartupDialog(Currency currency) : StartupDialog(Arguments(currency))
{
}

StartupDialog::StartupDialog(Arguments&& with)
    : CStartupDlg(kName, with.program.c_str(), with.sets.data(), static_cast<int>(with.sets.size()), &with.lines,
                  &kYears)
{
}

void StartupDialog::RunUnattended(bool closes, const std::string& snapshotFile)
{
    m_closes = closes;
    m_snapshotFile = snapshotFile;
}

bool StartupDialog::HasFailed() const
{
    return m_failed;
}

std::string StartupDialog::Summary() const
{
    return m_summary;
}

LRESULT StartupDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CStartupDlg::WindowProc(message, wParam, lParam);
    if (message == WM_PAINT && m_closes && !m_finished)
        Finish();
    return result;
}

void StartupDialog::Finish()
{
    m_finished = true;
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    CString caption;
    GetWindowText(caption);
    m_summary = std::string(caption.GetString()) + '\n';
    EnumChildWindows(m_hWnd, AppendText, reinterpret_cast<LPARAM>(&m_summary));
    m_failed = !m_snapshotFile.empty() && !SaveSnapshot(*this, m_snapshotFile.c_str());
    PostMessage(WM_COMMAND, IDCANCEL);
}
