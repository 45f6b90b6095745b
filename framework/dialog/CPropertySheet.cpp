#include "framework/dialog/CPropertySheet.h"

#include "framework/controls/CTabCtrl.h"
#include "framework/dialog/ModalOwner.h"
#include "framework/dialog/PageCreation.h"
#include "framework/dialog/SharedCommands.h"

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
ON_MESSAGE(WM_KICKIDLE, &CPropertySheet::OnKickIdle)
ON_WM_SYSCOMMAND()
ON_WM_CLOSE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace
{
/// The command by which a message may end the sheet, 0 for none.
int EndingCommand(UINT message, WPARAM wParam)
{
    if (message == WM_COMMAND)
    {
        const int id = LOWORD(wParam);
        return id == IDOK || id == IDCANCEL || id == ID_WIZFINISH ? id : 0;
    }
    if (message != PSM_PRESSBUTTON)
        return 0;
    switch (wParam)
    {
    case PSBTN_OK:
        return IDOK;
    case PSBTN_CANCEL:
        return IDCANCEL;
    case PSBTN_FINISH:
        return ID_WIZFINISH;
    default:
        return 0;
    }
}

/// Keys by which the user goes from page to page.
bool IsPageKey(const MSG& message)
{
    if (message.message != WM_KEYDOWN || ::GetKeyState(VK_CONTROL) >= 0)
        return false;
    return message.wParam == VK_TAB || message.wParam == VK_PRIOR || message.wParam == VK_NEXT;
}

/// Whether a key that ends dialogs goes to a field of several lines that has no use for it. Such fields take all keys
/// and hand these on to their parent, which is only a page.
bool IsEndingKeyOfField(const MSG& message)
{
    const bool isEscape = message.wParam == VK_ESCAPE;
    if (message.message != WM_KEYDOWN || (!isEscape && message.wParam != VK_RETURN))
        return false;
    char name[8] = {};
    ::GetClassNameA(message.hwnd, name, sizeof name);
    const auto style = static_cast<DWORD>(::GetWindowLongA(message.hwnd, GWL_STYLE));
    return ::lstrcmpiA(name, "Edit") == 0 && (style & ES_MULTILINE) != 0 && (isEscape || (style & ES_WANTRETURN) == 0);
}

/// What a dialog does with a key that ends it.
void PressEndingButton(HWND sheet, WPARAM key)
{
    const LRESULT byDefault = ::SendMessageA(sheet, DM_GETDEFID, 0, 0);
    const int chosen = HIWORD(byDefault) == DC_HASDEFID ? LOWORD(byDefault) : IDOK;
    const int id = key == VK_ESCAPE ? IDCANCEL : chosen;
    const HWND button = ::GetDlgItem(sheet, id);
    ::SendMessageA(sheet, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

/// A button that was pressed and is disabled by that would keep the keyboard from all others.
void MoveFocusOn(HWND sheet, HWND pressed)
{
    const bool isStuck = pressed && ::IsChild(sheet, pressed) && !::IsWindowEnabled(pressed);
    const HWND focus = ::GetFocus();
    if (isStuck && (!focus || focus == pressed) && ::GetActiveWindow() == sheet)
        ::SendMessageA(sheet, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(::GetNextDlgTabItem(sheet, pressed, FALSE)),
                       TRUE);
}
} // namespace

CPropertySheet::CPropertySheet()
{
    m_psh.dwSize = sizeof(m_psh);
    m_psh.dwFlags = PSH_PROPSHEETPAGE;
}

CPropertySheet::CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage) : CPropertySheet()
{
    Construct(captionId, parent, selectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage) : CPropertySheet()
{
    Construct(caption, parent, selectPage);
}

CPropertySheet::CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                               HPALETTE watermarkPalette, HBITMAP header)
    : CPropertySheet()
{
    Construct(captionId, parent, selectPage, watermark, watermarkPalette, header);
}

CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                               HPALETTE watermarkPalette, HBITMAP header)
    : CPropertySheet()
{
    Construct(caption, parent, selectPage, watermark, watermarkPalette, header);
}

CPropertySheet::~CPropertySheet()
{
    if (m_modalOwner)
        m_modalOwner->NoteDialogDeleted();
    for (CPropertyPage* const page : m_pages)
        page->m_sheet = nullptr;
}

void CPropertySheet::Construct(UINT captionId, CWnd* parent, UINT selectPage)
{
    CString caption;
    caption.LoadString(captionId);
    Construct(caption.GetString(), parent, selectPage);
}

void CPropertySheet::Construct(LPCTSTR caption, CWnd* parent, UINT selectPage)
{
    m_caption = caption;
    m_psh.pszCaption = m_caption;
    m_psh.nStartPage = selectPage;
    m_pParentWnd = parent;
}

void CPropertySheet::Construct(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                               HPALETTE watermarkPalette, HBITMAP header)
{
    Construct(captionId, parent, selectPage);
    TakeBitmaps(watermark, watermarkPalette, header);
}

void CPropertySheet::Construct(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                               HPALETTE watermarkPalette, HBITMAP header)
{
    Construct(caption, parent, selectPage);
    TakeBitmaps(watermark, watermarkPalette, header);
}

void CPropertySheet::TakeBitmaps(HBITMAP watermark, HPALETTE watermarkPalette, HBITMAP header)
{
    if (watermark)
    {
        m_psh.dwFlags |= PSH_WATERMARK | PSH_USEHBMWATERMARK;
        m_psh.hbmWatermark = watermark;
    }
    if (watermarkPalette)
    {
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
        m_psh.hplWatermark = watermarkPalette;
    }
    if (header)
    {
        m_psh.dwFlags |= PSH_HEADER | PSH_USEHBMHEADER;
        m_psh.hbmHeader = header;
    }
}

BOOL CPropertySheet::OnInitDialog()
{
    const BOOL answer = static_cast<BOOL>(Default()); // the system makes the tabs and the first page
    if (!m_bStacked)
        ModifyStyle(GetTabControl()->GetSafeHwnd(), TCS_MULTILINE, TCS_SINGLELINE, 0);
    if (m_bModeless && !IsWizard())
        RemoveButtons();
    return answer;
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    try
    {
        return OnInitDialog();
    }
    catch (...)
    {
        EndDialog(-1); // a sheet that is only half prepared must not appear
        throw;
    }
}

/// The idle time of the sheet's loop is its page's.
LRESULT CPropertySheet::OnKickIdle(WPARAM wParam, LPARAM lParam)
{
    const HWND page = CurrentPageWindow();
    return page ? ::SendMessageA(page, WM_KICKIDLE, wParam, lParam) : 0;
}

/// The close box goes one way with everything else that closes the sheet, so that its pages are asked once.
void CPropertySheet::OnSysCommand(UINT id, LPARAM lParam)
{
    constexpr UINT kInternalBits = 0xf;
    if ((id & ~kInternalBits) == SC_CLOSE)
        SendMessage(WM_CLOSE);
    else
        CWnd::OnSysCommand(id, lParam);
}

void CPropertySheet::OnClose()
{
    SendMessage(WM_COMMAND, IDCANCEL);
}

LRESULT CPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND window = m_hWnd;
    const HWND pressed = message == WM_COMMAND ? ::GetFocus() : nullptr;
    const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
    MoveFocusOn(window, pressed);
    vorn::EndPageCreation();
    // The sheet runs without the system's own loop: that it is to end shows in its having no page any more.
    const int command = EndingCommand(message, wParam);
    if (command != 0 && FromHandlePermanent(window) == this && !CurrentPageWindow())
        EndDialog(command);
    return result;
}

/// A sheet without Cancel, often a part of another window, is not closed by the key.
bool CPropertySheet::IsIdleEscape(const MSG& message) const
{
    if (!m_bModeless || message.message != WM_KEYDOWN || message.wParam != VK_ESCAPE)
        return false;
    const HWND cancel = ::GetDlgItem(m_hWnd, IDCANCEL);
    return !cancel || !(::GetWindowLongA(cancel, GWL_STYLE) & WS_VISIBLE);
}

BOOL CPropertySheet::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    if (IsPageKey(*message) && SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(message)))
        return TRUE;
    if (IsIdleEscape(*message))
        return FALSE;
    if (!IsEndingKeyOfField(*message))
        return PreTranslateInput(message);
    PressEndingButton(m_hWnd, message->wParam);
    return TRUE;
}

BOOL CPropertySheet::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    return CWnd::OnCmdMsg(id, code, extra, handlerInfo) ||
           vorn::OfferSharedCommand(*this, id, code, extra, handlerInfo);
}
