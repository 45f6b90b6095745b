#include "framework/dialog/CFontDialog.h"

#include "framework/dialog/CommonDialogRun.h"
#include "framework/gdi/CDC.h"

IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CFontDialog::CFontDialog(LPLOGFONTA initial, DWORD flags, CDC* printer, CWnd* parent) : CCommonDialog(parent)
{
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.Flags = flags | CF_ENABLEHOOK | CF_USESTYLE;
    m_cf.lpfnHook = vorn::CommonDialogHook;
    m_cf.lpLogFont = &m_lf;
    m_cf.lpszStyle = m_styleName;
    if (initial)
    {
        m_lf = *initial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
        m_cf.Flags &= ~static_cast<DWORD>(CF_USESTYLE); // the record alone decides
    }
    if (printer)
    {
        m_cf.hDC = printer->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal()
{
    const vorn::CommonDialogRun run(*this, m_pParentWnd);
    m_cf.hwndOwner = run.Owner();
    return ::ChooseFontA(&m_cf) ? IDOK : IDCANCEL;
}

void CFontDialog::GetCurrentFont(LPLOGFONTA font)
{
    if (m_hWnd)
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(font));
    else
        *font = m_lf;
}

CString CFontDialog::GetFaceName() const
{
    return m_lf.lfFaceName;
}

CString CFontDialog::GetStyleName() const
{
    return m_styleName;
}

int CFontDialog::GetSize() const
{
    return m_cf.iPointSize;
}

COLORREF CFontDialog::GetColor() const
{
    return m_cf.rgbColors;
}

int CFontDialog::GetWeight() const
{
    return m_lf.lfWeight;
}

BOOL CFontDialog::IsStrikeOut() const
{
    return m_lf.lfStrikeOut;
}

BOOL CFontDialog::IsUnderline() const
{
    return m_lf.lfUnderline;
}

BOOL CFontDialog::IsBold() const
{
    constexpr LONG kBoldFrom = 500; // more than "medium"
    return m_lf.lfWeight > kBoldFrom;
}

BOOL CFontDialog::IsItalic() const
{
    return m_lf.lfItalic;
}
