#include "frame/VornLogDlg.h"

#include "family/VornChart/core/VornLog.h"
#include "frame/LibraryDialog.h"
#include "frame/LogControlIds.h"

#include <algorithm>
#include <climits>
#include <memory>

IMPLEMENT_DYNAMIC(VornLogDlg, CDialog)

namespace
{
constexpr int kMargin = 3; // pixels around the text
} // namespace

VornLogDlg::VornLogDlg(VornLog& log) : m_log(log)
{
    m_nIDHelp = IDD_VORN_LOG;
    InitModalIndirect(vorn::LibraryDialog(IDD_VORN_LOG));
}

VornLogDlg::~VornLogDlg() = default;

INT_PTR VornLogDlg::DoModal()
{
    // The template names the control's window class, which its library must have registered before.
    AfxInitRichEdit2();
    return CDialog::DoModal();
}

void VornLogDlg::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_VORN_LOG_TEXT, m_text);
}

BOOL VornLogDlg::OnInitDialog()
{
    const BOOL result = CDialog::OnInitDialog();
    m_text.SetBackgroundColor(FALSE, ::GetSysColor(COLOR_3DFACE));
    CRect text;
    m_text.GetRect(&text);
    text.DeflateRect(kMargin, kMargin);
    m_text.SetRect(&text);
    ShowText();
    // The first line, even when the text was inserted below it.
    m_text.LineScroll(-m_text.GetFirstVisibleLine());
    return result;
}

void VornLogDlg::ShowText()
{
    char* copy = nullptr;
    const int length = m_log.GetLog(copy);
    if (length < 0)
    {
        return; // there is no text, and the pointer may be anything
    }
    const std::unique_ptr<char[]> text(copy);
    if (text)
    {
        // A zero byte within would hide all messages behind it.
        std::replace(text.get(), text.get() + length, '\0', ' ');
        Insert(text.get());
    }
}

void VornLogDlg::Insert(const char* text)
{
    m_text.LimitText(INT_MAX); // at first there is room for 32,767 characters
    const long end = m_text.GetTextLength();
    m_text.SetSel(end, end);
    m_text.ReplaceSel(text);
}
