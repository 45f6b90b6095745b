#include "framework/core/Exception.h"

#include <atomic>
#include <cstdio>
#include <cstring>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)

namespace
{
constexpr const char* kMemoryText = "There is not enough memory.";
constexpr const char* kNotSupportedText = "This operation is not supported.";
constexpr const char* kInvalidArgText = "An argument is outside its range.";
constexpr const char* kResourceText = "A resource that is needed was not found.";

int ReportToStandardError(LPCSTR message, UINT, UINT)
{
    std::fprintf(stderr, "%s\n", message);
    return 0;
}

constinit std::atomic<CException::ReportFunction> g_report = &ReportToStandardError;
} // namespace

namespace vorn
{
BOOL CopyErrorText(LPCSTR text, LPSTR buffer, UINT size)
{
    if (buffer == nullptr || size == 0)
    {
        return FALSE;
    }
    const std::size_t length = std::strlen(text);
    const std::size_t count = length < size ? length : size - 1;
    std::memcpy(buffer, text, count);
    buffer[count] = '\0';
    return TRUE;
}
} // namespace vorn

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete)
{
}

void CException::Delete()
{
    if (m_bAutoDelete)
    {
        delete this; // thrown by pointer: the documented end of an exception's life
    }
}

BOOL CException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext != nullptr)
    {
        *pnHelpContext = 0;
    }
    vorn::CopyErrorText("", lpszError, nMaxError);
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID)
{
    char text[512] = "";
    const BOOL described = GetErrorMessage(text, static_cast<UINT>(sizeof(text)));
    return g_report.load()(text, nType, described ? 0 : nMessageID);
}

void CException::SetReportFunction(ReportFunction report)
{
    g_report = report != nullptr ? report : &ReportToStandardError;
}

CSimpleException::CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete)
{
}

CSimpleException::CSimpleException(BOOL bAutoDelete, LPCSTR message) : CException(bAutoDelete), m_message(message)
{
}

BOOL CSimpleException::GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (m_message == nullptr)
    {
        return CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    }
    if (pnHelpContext != nullptr)
    {
        *pnHelpContext = 0;
    }
    return vorn::CopyErrorText(m_message, lpszError, nMaxError);
}

CMemoryException::CMemoryException() : CMemoryException(TRUE)
{
}

CMemoryException::CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, kMemoryText)
{
}

CNotSupportedException::CNotSupportedException() : CNotSupportedException(TRUE)
{
}

CNotSupportedException::CNotSupportedException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, kNotSupportedText)
{
}

CInvalidArgException::CInvalidArgException() : CInvalidArgException(TRUE)
{
}

CInvalidArgException::CInvalidArgException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, kInvalidArgText)
{
}

CResourceException::CResourceException() : CResourceException(TRUE)
{
}

CResourceException::CResourceException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, kResourceText)
{
}

CUserException::CUserException() : CUserException(TRUE)
{
}

CUserException::CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete)
{
}

// Static objects: reporting short memory must not need any. They are immutable, so all threads may share them.
void AfxThrowMemoryException()
{
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AfxThrowNotSupportedException()
{
    static CNotSupportedException exception(FALSE);
    throw &exception;
}

void AfxThrowInvalidArgException()
{
    static CInvalidArgException exception(FALSE);
    throw &exception;
}

void AfxThrowResourceException()
{
    static CResourceException exception(FALSE);
    throw &exception;
}

void AfxThrowUserException()
{
    static CUserException exception(FALSE);
    throw &exception;
}
