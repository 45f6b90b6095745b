#include "framework/frames/CPrintInfo.h"
#include "framework/dialog/CPrintDialog.h"
#include "framework/frames/FrameResources.h"
#include "framework/window/ModuleState.h"

namespace
{
constexpr WORD kUnknownPageCount = 0xFFFF;
}

CPrintInfo::CPrintInfo() : m_pPD(new CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION))
{
    SetMinPage(1);
    SetMaxPage(kUnknownPageCount);
    AfxLoadString(IDS_FRAME_PAGE_NUMBER, m_strPageDesc);
}

CPrintInfo::~CPrintInfo()
{
    if (m_pPD->m_pd.hDC)
        ::DeleteDC(m_pPD->m_pd.hDC);
    if (m_pPD->m_pd.hDevMode)
        ::GlobalFree(m_pPD->m_pd.hDevMode);
    if (m_pPD->m_pd.hDevNames)
        ::GlobalFree(m_pPD->m_pd.hDevNames);
    delete m_pPD; // a plain pointer by the documented interface; a view may have put its own dialog here
}

void CPrintInfo::SetMinPage(UINT page)
{
    m_pPD->m_pd.nMinPage = static_cast<WORD>(page);
}

void CPrintInfo::SetMaxPage(UINT page)
{
    m_pPD->m_pd.nMaxPage = static_cast<WORD>(page);
}

UINT CPrintInfo::GetMinPage() const
{
    return m_pPD->m_pd.nMinPage;
}

UINT CPrintInfo::GetMaxPage() const
{
    return m_pPD->m_pd.nMaxPage;
}

UINT CPrintInfo::GetFromPage() const
{
    return m_pPD->m_pd.nFromPage;
}

UINT CPrintInfo::GetToPage() const
{
    return m_pPD->m_pd.nToPage;
}

UINT CPrintInfo::GetOffsetPage() const
{
    return m_nOffsetPage;
}
