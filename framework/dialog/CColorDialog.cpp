#include "framework/dialog/CColorDialog.h"

#include "framework/dialog/CommonDialogRun.h"

#include <array>

IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

namespace
{
constexpr std::size_t kCustomColours = 16;

std::array<COLORREF, kCustomColours> AllWhite()
{
    std::array<COLORREF, kCustomColours> colours;
    colours.fill(RGB(255, 255, 255));
    return colours;
}

UINT AskMessage()
{
    static const UINT message = ::RegisterWindowMessageA(COLOROKSTRINGA);
    return message;
}

UINT SetMessage()
{
    static const UINT message = ::RegisterWindowMessageA(SETRGBSTRINGA);
    return message;
}
} // namespace

CColorDialog::CColorDialog(COLORREF initial, DWORD flags, CWnd* parent) : CCommonDialog(parent)
{
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.rgbResult = initial;
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = flags | CC_ENABLEHOOK;
    if (initial != 0)
        m_cc.Flags |= CC_RGBINIT;
    m_cc.lpfnHook = vorn::CommonDialogHook;
}

INT_PTR CColorDialog::DoModal()
{
    const vorn::CommonDialogRun run(*this, m_pParentWnd);
    m_cc.hwndOwner = run.Owner();
    return ::ChooseColorA(&m_cc) ? IDOK : IDCANCEL;
}

COLORREF CColorDialog::GetColor() const
{
    return m_cc.rgbResult;
}

void CColorDialog::SetCurrentColor(COLORREF colour)
{
    SendMessage(SetMessage(), 0, static_cast<LPARAM>(colour));
}

COLORREF* CColorDialog::GetSavedCustomColors()
{
    static std::array<COLORREF, kCustomColours> colours = AllWhite();
    return colours.data();
}

BOOL CColorDialog::OnColorOK()
{
    return FALSE;
}

LRESULT CColorDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == AskMessage())
        return OnColorOK();
    return CCommonDialog::WindowProc(message, wParam, lParam);
}
