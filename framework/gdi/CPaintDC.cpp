#include "framework/gdi/CPaintDC.h"
#include "framework/core/Exception.h"
#include "framework/window/CWnd.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CPaintDC::CPaintDC(CWnd* window)
{
    m_hWnd = window ? window->m_hWnd : nullptr;
    if (!m_hWnd || !Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
