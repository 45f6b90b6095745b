#include "toolkit/WarningDlgWithCheck.h"

#include "toolkit/ControlIds.h"
#include "toolkit/core/WarningBoxLayout.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(WarningDlgWithCheck, IconDlg)

namespace
{
constexpr int kTextUnits = 400;
constexpr int kMarginUnits = 7;
constexpr int kGapUnits = 4;

/// A size in dialog units, in pixels of a dialog's font.
CSize Pixels(const CDialog& dialog, int width, int height)
{
    CRect rect(0, 0, width, height);
    dialog.MapDialogRect(&rect);
    return rect.Size();
}

CRect WorkArea(HWND window)
{
    MONITORINFO info = {sizeof(info), {}, {}, 0};
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

CSize SizeOf(CWnd& control)
{
    CRect rect;
    control.GetWindowRect(&rect);
    return rect.Size();
}

/// Edit fields want both characters at a line's end.
CString WithLineEnds(CString text)
{
    text.Replace("\r\n", "\n");
    text.Replace("\n", "\r\n");
    return text;
}
} // namespace

WarningDlgWithCheck::WarningDlgWithCheck(LPCSTR text, LPCSTR title, LPCSTR checkText, bool checked, CWnd* parent)
    : IconDlg(IDD_VORN_WARNING, parent), m_text(text), m_title(title), m_checkText(checkText), m_checked(checked)
{
}

WarningDlgWithCheck::~WarningDlgWithCheck() = default;

bool WarningDlgWithCheck::WasCheckChecked() const
{
    return m_checked;
}

BOOL WarningDlgWithCheck::OnInitDialog()
{
    IconDlg::OnInitDialog();
    SetWindowText(m_title);
    SetDlgItemText(IDC_VORN_WARNING_TEXT, m_text);
    SetDlgItemText(IDC_VORN_WARNING_SCROLLED, WithLineEnds(m_text));
    SetDlgItemText(IDC_VORN_WARNING_CHECK, m_checkText);
    CheckDlgButton(IDC_VORN_WARNING_CHECK, m_checked ? BST_CHECKED : BST_UNCHECKED);
    SendDlgItemMessage(IDC_VORN_WARNING_ICON, STM_SETICON, reinterpret_cast<WPARAM>(::LoadIcon(nullptr, IDI_WARNING)));
    SetSize();
    MoveControls();
    GetDlgItem(IDOK)->SetFocus();
    return FALSE;
}

void WarningDlgWithCheck::OnOK()
{
    m_checked = IsDlgButtonChecked(IDC_VORN_WARNING_CHECK) == BST_CHECKED;
    IconDlg::OnOK();
}

void WarningDlgWithCheck::SetSize()
{
    const CRect work = WorkArea(m_hWnd);
    const int maxHeight = vorn::WarningTextHeight(work.Height());
    vorn::WarningBoxParts parts;
    parts.margin = Pixels(*this, kMarginUnits, kMarginUnits);
    parts.gap = Pixels(*this, kGapUnits, kGapUnits);
    parts.icon = CSize(::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON));
    parts.button = SizeOf(*GetDlgItem(IDOK));
    parts.check = CheckSize();
    parts.text = TextSize(vorn::WarningTextWidth(Pixels(*this, kTextUnits, 0).cx, work.Width()));
    m_scrolls = parts.text.cy > maxHeight;
    if (m_scrolls)
    {
        parts.text = CSize(parts.text.cx + ::GetSystemMetrics(SM_CXVSCROLL) + 2 * parts.gap.cx, maxHeight);
    }

    const vorn::WarningBoxPlaces places = vorn::PlaceWarningBox(parts);
    m_iconPlace = places.icon;
    m_textPlace = places.text;
    m_checkPlace = places.check;
    m_buttonPlace = places.button;
    CRect frame(CPoint(0, 0), places.client);
    ::AdjustWindowRectEx(&frame, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, frame.Width(), frame.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CenterWindow();
}

void WarningDlgWithCheck::MoveControls()
{
    GetDlgItem(IDC_VORN_WARNING_ICON)->MoveWindow(&m_iconPlace);
    GetDlgItem(IDC_VORN_WARNING_TEXT)->MoveWindow(&m_textPlace);
    GetDlgItem(IDC_VORN_WARNING_SCROLLED)->MoveWindow(&m_textPlace);
    GetDlgItem(IDC_VORN_WARNING_CHECK)->MoveWindow(&m_checkPlace);
    GetDlgItem(IDOK)->MoveWindow(&m_buttonPlace);
    GetDlgItem(IDC_VORN_WARNING_TEXT)->ShowWindow(m_scrolls ? SW_HIDE : SW_SHOW);
    GetDlgItem(IDC_VORN_WARNING_SCROLLED)->ShowWindow(m_scrolls ? SW_SHOW : SW_HIDE);
    GetDlgItem(IDC_VORN_WARNING_CHECK)->ShowWindow(m_checkText.IsEmpty() ? SW_HIDE : SW_SHOW);
}

CSize WarningDlgWithCheck::TextSize(int maxWidth)
{
    CClientDC dc(this);
    CFont* former = dc.SelectObject(GetFont());
    CRect size(0, 0, maxWidth, 0);
    dc.DrawText(m_text, &size, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
    dc.SelectObject(former);
    return size.Size();
}

CSize WarningDlgWithCheck::CheckSize()
{
    if (m_checkText.IsEmpty())
    {
        return CSize(0, 0);
    }
    CClientDC dc(this);
    CFont* former = dc.SelectObject(GetFont());
    CRect size(0, 0, 0, 0);
    dc.DrawText(m_checkText, &size, DT_CALCRECT | DT_SINGLELINE);
    dc.SelectObject(former);
    const CSize box(::GetSystemMetrics(SM_CXMENUCHECK), ::GetSystemMetrics(SM_CYMENUCHECK));
    const int gap = Pixels(*this, kGapUnits, 0).cx;
    return CSize(size.Width() + box.cx + 2 * gap, std::max<int>(size.Height(), box.cy));
}
