// Stands in for a part that is on its way, so that the library links meanwhile.
#if !__has_include("framework/dialog/CDataExchange.cpp")
#include "framework/dialog/CDataExchange.h"

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}
#endif
