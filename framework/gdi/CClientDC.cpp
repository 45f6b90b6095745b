#include "framework/gdi/CClientDC.h"
#include "framework/core/Exception.h"
#include "framework/window/CWnd.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)

CClientDC::CClientDC(CWnd* window)
{
    m_hWnd = window ? window->m_hWnd : nullptr;
    if ((window && !m_hWnd) || !Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
