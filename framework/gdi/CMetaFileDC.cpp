#include "framework/gdi/CMetaFileDC.h"
#include "framework/gdi/GdiHelpers.h"

IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

CMetaFileDC::CMetaFileDC() = default;

CMetaFileDC::~CMetaFileDC()
{
    if (!m_hDC)
        return;
    // A recording left open: which format it is, the context's type tells.
    if (::GetObjectType(m_hDC) == OBJ_ENHMETADC)
        ::DeleteEnhMetaFile(CloseEnhanced());
    else
        ::DeleteMetaFile(Close());
}

BOOL CMetaFileDC::Create(LPCSTR fileName)
{
    if (m_hDC || !Attach(::CreateMetaFile(fileName)))
        return FALSE;
    ReleaseAttribDC();
    return TRUE;
}

BOOL CMetaFileDC::CreateEnhanced(CDC* reference, LPCSTR fileName, const RECT* bounds, LPCSTR description)
{
    if (m_hDC || !Attach(::CreateEnhMetaFile(vorn::HandleOf(reference), fileName, bounds, description)))
        return FALSE;
    ReleaseAttribDC();
    return TRUE;
}

HMETAFILE CMetaFileDC::Close()
{
    return ::CloseMetaFile(Detach());
}

HENHMETAFILE CMetaFileDC::CloseEnhanced()
{
    return ::CloseEnhMetaFile(Detach());
}

void CMetaFileDC::SetAttribDC(HDC dc)
{
    CDC::SetAttribDC(dc);
}

void CMetaFileDC::SetOutputDC(HDC)
{
}

void CMetaFileDC::ReleaseOutputDC()
{
}
