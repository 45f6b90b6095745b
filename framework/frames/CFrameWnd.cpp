#include "framework/frames/CFrameWnd.h"
#include "framework/bars/CControlBar.h"
#include "framework/frames/CDocument.h"
#include "framework/frames/CView.h"
#include "framework/include/afxres.h"
#include "framework/window/CWinApp.h"
#include "framework/window/ModuleState.h"

#include <utility>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_CLOSE()
ON_WM_SIZE()
ON_WM_ERASEBKGND()
ON_WM_SETFOCUS()
ON_WM_ACTIVATE()
ON_WM_SHOWWINDOW()
ON_WM_ENABLE()
ON_WM_INITMENUPOPUP()
ON_WM_MENUSELECT()
ON_WM_QUERYENDSESSION()
ON_WM_ENDSESSION()
ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
ON_NOTIFY_EX_RANGE(TTN_GETDISPINFOA, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
ON_NOTIFY_EX_RANGE(TTN_GETDISPINFOW, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

namespace
{
LPCTSTR RegisterFrameClass(HICON icon)
{
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                               reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_WINDOW + 1)), icon);
}

/// A resource of the chain, null when no module has it.
template <typename Handle>
Handle LoadFrom(LPCTSTR name, LPCTSTR type, Handle(WINAPI* load)(HINSTANCE, LPCTSTR))
{
    HINSTANCE module = AfxFindResourceHandle(name, type);
    return ::FindResource(module, name, type) ? load(module, name) : nullptr;
}

/// The system frees a table that comes from a resource at the program's end alone, or when it was destroyed as often as
/// it was loaded. Each frame loads its own.
void DestroyTable(HACCEL table)
{
    if (table)
        ::DestroyAcceleratorTable(table);
}
} // namespace

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd()
{
    for (CControlBar* bar : m_controlBars)
        bar->m_pDockSite = nullptr;
    DestroyTable(m_hAccelTable);
}

BOOL CFrameWnd::IsFrameWnd() const
{
    return TRUE;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = RegisterFrameClass(::LoadIcon(nullptr, IDI_APPLICATION));
    if (cs.style & FWS_ADDTOTITLE)
        cs.style |= FWS_PREFIXTITLE;
    return CWnd::PreCreateWindow(cs);
}

BOOL CFrameWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                       LPCTSTR menuName, DWORD exStyle, CCreateContext* context)
{
    HMENU menu = nullptr;
    if (menuName && !(menu = LoadFrom<HMENU>(menuName, RT_MENU, ::LoadMenu)))
    {
        PostNcDestroy();
        return FALSE;
    }
    m_strTitle = windowName ? windowName : "";
    m_hMenuDefault = menu;
    if (CreateEx(exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left,
                 rect.bottom - rect.top, parent ? parent->m_hWnd : nullptr, menu, context))
        return TRUE;
    // The object is gone; a menu that reached the window went with it.
    if (menu)
        ::DestroyMenu(menu);
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT resourceId, DWORD defaultStyle, CWnd* parent, CCreateContext* context)
{
    CString text;
    CString title;
    if (AfxLoadString(resourceId, text))
        AfxExtractSubString(title, text, 0);
    LPCTSTR resource = MAKEINTRESOURCE(resourceId);
    HICON icon = LoadFrom<HICON>(resource, RT_GROUP_ICON, ::LoadIcon);
    const CString className = RegisterFrameClass(icon ? icon : ::LoadIcon(nullptr, IDI_APPLICATION));
    const bool hasMenu = ::FindResource(AfxFindResourceHandle(resource, RT_MENU), resource, RT_MENU) != nullptr;
    LoadAccelTable(resource);
    if (!Create(className, title, defaultStyle, rectDefault, parent, hasMenu ? resource : nullptr, 0, context))
        return FALSE;
    // Without context nobody else will tell the views that they may fetch their first content.
    if (!context)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR resourceName)
{
    HACCEL loaded = LoadFrom<HACCEL>(resourceName, RT_ACCELERATOR, ::LoadAccelerators);
    DestroyTable(std::exchange(m_hAccelTable, loaded));
    return m_hAccelTable != nullptr;
}

HACCEL CFrameWnd::GetDefaultAccelerator() const
{
    return m_hAccelTable;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1 || !OnCreateClient(create, static_cast<CCreateContext*>(create->lpCreateParams)))
        return -1;
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    RecalcLayout();
    return 0;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* context)
{
    return !context || !context->m_pNewViewClass || CreateView(context, AFX_IDW_PANE_FIRST);
}

CWnd* CFrameWnd::CreateView(CCreateContext* context, UINT id)
{
    CObject* object = context && context->m_pNewViewClass ? context->m_pNewViewClass->CreateObject() : nullptr;
    auto* view = DYNAMIC_DOWNCAST(CWnd, object);
    if (!view)
    {
        delete object; // of a class that is no window: nobody else would free it
        return nullptr;
    }
    // A view that cannot be created deletes itself.
    const bool created = view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this, id, context);
    return created ? view : nullptr;
}

bool CFrameWnd::IsMainWindow() const
{
    const CWinApp* app = AfxGetApp();
    return app && app->m_pMainWnd == this;
}

void CFrameWnd::OnClose()
{
    CDocument* document = GetActiveDocument();
    if (document && !document->CanCloseFrame(this))
        return;
    if (!IsMainWindow())
    {
        DestroyWindow();
        return;
    }
    if (!document && !AfxGetApp()->SaveAllModified())
        return;
    HWND window = m_hWnd;
    AfxGetApp()->HideApplication();
    AfxGetApp()->CloseAllDocuments(FALSE);
    // Closing documents may have ended this frame already.
    if (CWnd* frame = CWnd::FromHandlePermanent(window))
        frame->DestroyWindow();
}

BOOL CFrameWnd::OnQueryEndSession()
{
    return IsMainWindow() ? AfxGetApp()->SaveAllModified() : TRUE;
}

void CFrameWnd::OnEndSession(BOOL ending)
{
    if (ending && IsMainWindow())
        AfxGetApp()->CloseAllDocuments(TRUE);
}

void CFrameWnd::OnDestroy()
{
    // The system destroys the menu that is in the window: that shall be the frame's own.
    if (m_hMenuDefault && ::GetMenu(m_hWnd) != m_hMenuDefault)
        ::SetMenu(m_hWnd, m_hMenuDefault);
    CWnd::OnDestroy();
}

void CFrameWnd::PostNcDestroy()
{
    delete this; // a frame is made with new and ends with its window
}
