#include "framework/core/OleException.h"

#include <cstdio>

IMPLEMENT_DYNAMIC(COleException, CException)

BOOL COleException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext != nullptr)
    {
        *pnHelpContext = 0;
    }
    char text[64];
    std::snprintf(text, sizeof(text), "The operation failed with code 0x%08lX.",
                  static_cast<unsigned long>(static_cast<DWORD>(m_sc)));
    return vorn::CopyErrorText(text, lpszError, nMaxError);
}

SCODE COleException::Process(const CException* pAnyException)
{
    if (const auto* ole = dynamic_cast<const COleException*>(pAnyException))
    {
        return ole->m_sc;
    }
    if (dynamic_cast<const CMemoryException*>(pAnyException) != nullptr)
    {
        return E_OUTOFMEMORY;
    }
    return dynamic_cast<const CInvalidArgException*>(pAnyException) != nullptr ? E_INVALIDARG : E_FAIL;
}

void AfxThrowOleException(SCODE sc)
{
    auto* exception = new COleException; // ended by the handler's Delete()
    exception->m_sc = sc;
    throw exception;
}

void AtlThrow(HRESULT hr)
{
    if (hr == E_OUTOFMEMORY)
    {
        AfxThrowMemoryException();
    }
    AfxThrowOleException(hr);
}
