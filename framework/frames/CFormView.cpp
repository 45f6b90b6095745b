#include "framework/frames/CFormView.h"

#include "framework/dialog/DialogCreation.h"
#include "framework/dialog/LoadedDialogTemplate.h"
#include "framework/frames/CCreateContext.h"
#include "framework/frames/CFrameWnd.h"

IMPLEMENT_DYNAMIC(CFormView, CScrollView)

BEGIN_MESSAGE_MAP(CFormView, CScrollView)
ON_WM_CREATE()
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CFormView::CFormView(LPCTSTR templateName) : m_lpszTemplateName(templateName)
{
}

CFormView::CFormView(UINT templateId) : CFormView(MAKEINTRESOURCEA(templateId))
{
}

CFormView::~CFormView() = default;

BOOL CFormView::Create(LPCTSTR, LPCTSTR, DWORD style, const RECT& rect, CWnd* parent, UINT id, CCreateContext* context)
{
    if (m_hWnd)
        return FALSE;
    m_pCreateContext = context;
    auto loaded = vorn::LoadedDialogTemplate::FromResource(m_lpszTemplateName);
    if (!loaded)
    {
        PostNcDestroy();
        return FALSE;
    }
    loaded->RemoveStyle(WS_VISIBLE); // shown when it is in its place
    const vorn::DialogCreation created = vorn::CreateDialogWindow(*this, *loaded, parent->GetSafeHwnd());
    // A view that ended in its creation may have taken its object along: only the map tells.
    if (!created.window || FromHandlePermanent(created.window) != this)
    {
        if (!created.bound)
            PostNcDestroy();
        return FALSE;
    }
    TakeLook(style, id);
    return TakePlace(style, rect);
}

int CFormView::OnCreate(LPCREATESTRUCT create)
{
    // Windows from templates are made without the parameter by which views hear of their documents.
    CREATESTRUCT withContext = *create;
    withContext.lpCreateParams = m_pCreateContext;
    m_pCreateContext = nullptr;
    return CScrollView::OnCreate(&withContext);
}

/// The template's size is what there is to scroll over; the edge comes on top of it.
void CFormView::TakeLook(DWORD style, UINT id)
{
    CRect client;
    GetClientRect(&client);
    SetScrollSizes(MM_TEXT, client.Size());
    CREATESTRUCT wanted{};
    wanted.style = static_cast<LONG>(style);
    wanted.lpszClass = ""; // none is to be registered
    PreCreateWindow(wanted);
    if ((GetStyle() & WS_CHILD) == 0)
        return;
    ModifyStyleEx(0, wanted.dwExStyle & WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
    SetDlgCtrlID(static_cast<int>(id));
}

bool CFormView::TakePlace(DWORD style, const RECT& rect)
{
    const HWND window = m_hWnd;
    if (!ExecuteDlgInit(m_lpszTemplateName))
    {
        DestroyWindow();
        return false;
    }
    if (!::IsRectEmpty(&rect))
        SetWindowPos(nullptr, static_cast<int>(rect.left), static_cast<int>(rect.top),
                     static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top),
                     SWP_NOZORDER | SWP_NOACTIVATE);
    if ((style & WS_VISIBLE) != 0 && ::IsWindow(window))
        ShowWindow(SW_SHOWNA);
    return ::IsWindow(window) != FALSE;
}

void CFormView::OnInitialUpdate()
{
    UpdateData(FALSE);
    CScrollView::OnInitialUpdate();
}

void CFormView::OnDraw(CDC*)
{
}

BOOL CFormView::PreTranslateMessage(MSG* message)
{
    if (CScrollView::PreTranslateMessage(message))
        return TRUE;
    // The keys of dialogs would swallow those of the frames.
    for (CFrameWnd* frame = GetParentFrame(); frame; frame = frame->GetParentFrame())
        if (frame->PreTranslateMessage(message))
            return TRUE;
    return PreTranslateInput(message);
}

// --- Focus: it goes back to the control that had it --------------------------------------------

void CFormView::RememberFocus()
{
    const HWND focus = ::GetFocus();
    if (focus && ::IsChild(m_hWnd, focus))
        m_focus = focus;
}

bool CFormView::RestoreFocus()
{
    const bool usable =
        m_focus && ::IsChild(m_hWnd, m_focus) && ::IsWindowVisible(m_focus) && ::IsWindowEnabled(m_focus);
    const HWND control = usable ? m_focus : ::GetNextDlgTabItem(m_hWnd, nullptr, FALSE);
    if (!control || control == m_hWnd)
        return false;
    ::SetFocus(control);
    return true;
}

void CFormView::OnSetFocus(CWnd* former)
{
    if (!RestoreFocus())
        CScrollView::OnSetFocus(former);
}

void CFormView::OnActivateView(BOOL activate, CView* activateView, CView* deactivateView)
{
    if (!activate)
        RememberFocus();
    CScrollView::OnActivateView(activate, activateView, deactivateView);
}

void CFormView::OnActivateFrame(UINT state, CFrameWnd* frame)
{
    if (state == WA_INACTIVE)
        RememberFocus();
    CScrollView::OnActivateFrame(state, frame);
}

// --- Screen readers ------------------------------------------------------------------------------

HRESULT CFormView::accHitTest(long, long, VARIANT*)
{
    return S_FALSE;
}

HRESULT CFormView::accLocation(long*, long*, long*, long*, VARIANT)
{
    return S_FALSE;
}

HRESULT CFormView::get_accChild(VARIANT, IDispatch**)
{
    return S_FALSE;
}

HRESULT CFormView::get_accChildCount(long*)
{
    return S_FALSE;
}

HRESULT CFormView::get_accName(VARIANT, BSTR*)
{
    return S_FALSE;
}
