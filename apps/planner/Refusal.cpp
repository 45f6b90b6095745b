#include "apps/planner/Refusal.h"

namespace vorn::planner
{

void Refusal::Show(CDialog& dialog, UINT control, const char* title, const char* why)
{
    constexpr long kSystemsTime = -1;
    CWnd& refused = *dialog.GetDlgItem(static_cast<int>(control));
    CRect place;
    refused.GetWindowRect(&place);
    if (m_tip.m_hWnd == nullptr)
        m_tip.Create(&dialog);
    MessageBeep(MB_ICONEXCLAMATION);
    m_tip.ShowTip(CPoint(place.left, place.bottom), title, why, TTI_ERROR, kSystemsTime);
    dialog.GotoDlgCtrl(&refused);
}

} // namespace vorn::planner
