#include "framework/gdi/CWindowDC.h"
#include "framework/core/Exception.h"
#include "framework/window/CWnd.h"

IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CWindowDC::CWindowDC(CWnd* window)
{
    m_hWnd = window ? window->m_hWnd : nullptr;
    if ((window && !m_hWnd) || !Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
