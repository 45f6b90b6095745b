#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"

int CDC::StartDoc(LPDOCINFO document)
{
    return document ? ::StartDoc(m_hDC, document) : SP_ERROR;
}

int CDC::StartDoc(LPCSTR documentName)
{
    DOCINFO document{};
    document.cbSize = sizeof(document);
    document.lpszDocName = vorn::TextOf(documentName);
    return StartDoc(&document);
}

int CDC::StartPage()
{
    return ::StartPage(m_hDC);
}

int CDC::EndPage()
{
    return ::EndPage(m_hDC);
}

int CDC::EndDoc()
{
    return ::EndDoc(m_hDC);
}

int CDC::AbortDoc()
{
    return ::AbortDoc(m_hDC);
}

int CDC::SetAbortProc(BOOL(CALLBACK* function)(HDC, int))
{
    const int result = ::SetAbortProc(m_hDC, function);
    if (result > 0)
        m_pAbortProc = function;
    return result;
}

BOOL CDC::QueryAbort() const
{
    return m_pAbortProc ? m_pAbortProc(m_hDC, 0) : TRUE;
}

int CDC::Escape(int escape, int count, LPCSTR input, LPVOID output)
{
    return ::Escape(m_hDC, escape, count, input, output);
}

int CDC::Escape(int escape, int inputSize, LPCSTR input, int outputSize, LPSTR output)
{
    return ::ExtEscape(m_hDC, escape, inputSize, input, outputSize, output);
}

int CDC::DrawEscape(int escape, int inputSize, LPCSTR input)
{
    return ::DrawEscape(m_hDC, escape, inputSize, input);
}
