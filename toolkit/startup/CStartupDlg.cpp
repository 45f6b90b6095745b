#include "toolkit/startup/CStartupDlg.h"

#include "frame/LibraryDialog.h"
#include "frame/LibraryModule.h"
#include "toolkit/startup/StartupArea.h"
#include "toolkit/startup/StartupIds.h"
#include "toolkit/startup/core/StartupTexts.h"

#include <algorithm>
#include <array>

#include <shellapi.h>

IMPLEMENT_DYNAMIC(CStartupDlg, CDialog)

BEGIN_MESSAGE_MAP(CStartupDlg, CDialog)
ON_BN_CLICKED(IDC_VORN_STARTUP_UPDATE, &CStartupDlg::OnUpdateData)
ON_WM_CTLCOLOR()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

namespace
{

constexpr int kNavigationData = 1;
constexpr const char* kSection = "Startup";
constexpr const char* kNoDisclaimer = "NoDisclaimer";
constexpr LONG kTitleNumerator = 3; // the title is one and a half times as high
constexpr LONG kTitleDenominator = 2;

CString Disclaimer()
{
    std::array<char, 4097> text{}; // the longest of a string table
    const int length = ::LoadStringA(vorn::LibraryModule(), IDS_VORN_DISCLAIMER, text.data(), text.size());
    return {text.data(), length};
}

CString SystemText(DWORD error)
{
    std::array<char, 1024> text{};
    ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text.data(),
                     text.size(), nullptr);
    return text.data();
}

bool IsNavigation(const CStartupDlg::DataInfo& record)
{
    return record.kind == kNavigationData;
}

bool HasExpired(Date& expiry)
{
    return expiry.isValid() && expiry.isExpired();
}

} // namespace

CStartupDlg::CStartupDlg(LPCSTR appName, LPCSTR updateProgram, DataInfo* records, int count, CStringArray* lines,
                         CopyRightData* years, CWnd* parent)
    : m_name(vorn::ProductName(appName)), m_updateProgram(updateProgram)
{
    m_pParentWnd = parent;
    m_nIDHelp = IDD_VORN_STARTUP;
    if (records != nullptr && count > 0)
    {
        m_records.assign(records, records + count);
    }
    for (INT_PTR i = 0; lines != nullptr && i < lines->GetSize(); ++i)
    {
        m_lines.push_back(vorn::NamedFor(lines->GetAt(i), m_name));
    }
    if (years != nullptr)
    {
        m_years = *years;
    }
    AfxInitRichEdit2(); // the template cannot be made without its class
    InitModalIndirect(vorn::LibraryDialog(IDD_VORN_STARTUP));
    SetDataExpired();
}

CStartupDlg::~CStartupDlg()
{
    if (m_hWnd != nullptr)
    {
        DestroyWindow(); // while PostNcDestroy is still this class's
    }
}

void CStartupDlg::AllowUpdate(bool allow)
{
    m_updateAllowed = allow;
    EnableUpdate();
}

bool CStartupDlg::isDataExpired() const
{
    return m_dataExpired;
}

BOOL CStartupDlg::DestroyWindow()
{
    m_expiryLines.clear(); // they go with the window
    return CDialog::DestroyWindow();
}

void CStartupDlg::PostNcDestroy()
{
    m_expiryLines.clear();
    m_area.reset();
    m_titleFont.DeleteObject();
    CDialog::PostNcDestroy();
}

BOOL CStartupDlg::OnInitDialog()
{
    CWinApp* const app = AfxGetApp();
    m_noDisclaimer = app != nullptr && app->GetProfileInt(kSection, kNoDisclaimer, 0) != 0 ? 1 : 0;
    if (!CDialog::OnInitDialog())
    {
        return FALSE;
    }
    SetDataExpired();
    m_icons.Put(*this, vorn::kHostIcon);
    SetTexts();
    EnableUpdate();
    Resize();
    GetDlgItem(IDOK)->SetFocus(); // the disclaimer would scroll to its end
    return FALSE;
}

void CStartupDlg::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_VORN_STARTUP_DISCLAIMER, m_disclaimer);
    DDX_Control(exchange, IDC_VORN_STARTUP_COPYRIGHT, m_copyright);
    DDX_Check(exchange, IDC_VORN_STARTUP_HIDE, m_noDisclaimer);
}

void CStartupDlg::OnOK()
{
    if (!UpdateData(TRUE))
    {
        return;
    }
    if (CWinApp* const app = AfxGetApp())
    {
        app->WriteProfileInt(kSection, kNoDisclaimer, m_noDisclaimer);
    }
    EndDialog(IDOK);
}

/// An effective date is past all the time: only expiry dates count. Late data counts too.
void CStartupDlg::SetDataExpired()
{
    m_dataExpired = std::any_of(m_records.begin(), m_records.end(),
                                [](DataInfo& record)
                                {
                                    return HasExpired(record.expiry);
                                });
}

/// The template's own texts; what is set afterwards has the right name.
void CStartupDlg::NameProduct()
{
    for (CWnd* control = GetWindow(GW_CHILD); control != nullptr; control = control->GetNextWindow())
    {
        CString text;
        control->GetWindowText(text);
        if (text.Find(vorn::kDefaultProduct) >= 0)
        {
            control->SetWindowText(vorn::NamedFor(text, m_name));
        }
    }
    CString caption;
    GetWindowText(caption);
    SetWindowText(vorn::CaptionText(vorn::NamedFor(caption, m_name), m_years.first, m_years.last));
}

void CStartupDlg::SetTexts()
{
    NameProduct();
    SetDlgItemText(IDC_VORN_STARTUP_TITLE, vorn::WelcomeText(m_name));
    m_copyright.SetWindowText(vorn::CopyrightText(m_years.first, m_years.last));
    m_disclaimer.SetWindowText(vorn::NamedFor(Disclaimer(), m_name));
    m_disclaimer.ShowWindow(m_noDisclaimer != 0 ? SW_HIDE : SW_SHOW);

    LOGFONT font{};
    GetFont()->GetLogFont(&font);
    font.lfHeight = font.lfHeight * kTitleNumerator / kTitleDenominator;
    font.lfWidth = 0;
    font.lfWeight = FW_BOLD;
    m_titleFont.DeleteObject();
    m_titleFont.CreateFontIndirect(&font);
    GetDlgItem(IDC_VORN_STARTUP_TITLE)->SetFont(&m_titleFont);
}

void CStartupDlg::EnableUpdate()
{
    if (m_hWnd != nullptr)
    {
        GetDlgItem(IDC_VORN_STARTUP_UPDATE)->EnableWindow(m_updateAllowed && !m_updateProgram.IsEmpty());
    }
}

void CStartupDlg::OnUpdateData()
{
    if (m_updateProgram.IsEmpty())
    {
        return;
    }
    const CString folder = vorn::FolderOfProgram(m_updateProgram);
    const LPCSTR directory = folder.IsEmpty() ? nullptr : folder.GetString();
    const HINSTANCE code =
        ::ShellExecute(m_hWnd, "open", m_updateProgram, nullptr, directory, SW_SHOWNORMAL); // not a handle
    const DWORD lastError = ::GetLastError();
    constexpr int kLastFailure = 32;
    if (const int result = static_cast<int>(reinterpret_cast<INT_PTR>(code)); result <= kLastFailure)
    {
        const DWORD error = vorn::StartErrorCode(result, lastError);
        AfxMessageBox(vorn::StartFailureText(SystemText(error)), MB_OK | MB_ICONINFORMATION);
    }
}

HBRUSH CStartupDlg::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HBRUSH brush = CDialog::OnCtlColor(dc, control, type);
    if (const auto line = m_expiryLines.find(control->GetSafeHwnd()); line != m_expiryLines.end())
    {
        DataInfo& record = m_records[line->second];
        dc->SetTextColor(IsNavigation(record) ? record.expiry.GetNavTextColor() : record.expiry.GetTCTextColor());
    }
    return brush;
}

BOOL CStartupDlg::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    return (m_area && m_area->Turn(delta)) || CDialog::OnMouseWheel(flags, delta, point);
}
