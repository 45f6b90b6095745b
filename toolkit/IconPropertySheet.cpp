#include "toolkit/IconPropertySheet.h"

IMPLEMENT_DYNAMIC(IconPropertySheet, CPropertySheet)

IconPropertySheet::IconPropertySheet(UINT captionId, CWnd* parent, UINT selectPage)
    : CPropertySheet(captionId, parent, selectPage)
{
}

IconPropertySheet::IconPropertySheet(LPCSTR caption, CWnd* parent, UINT selectPage)
    : CPropertySheet(caption, parent, selectPage)
{
}

IconPropertySheet::IconPropertySheet(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark,
                                     HPALETTE watermarkPalette, HBITMAP header)
    : CPropertySheet(captionId, parent, selectPage, watermark, watermarkPalette, header)
{
}

IconPropertySheet::IconPropertySheet(LPCSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark,
                                     HPALETTE watermarkPalette, HBITMAP header)
    : CPropertySheet(caption, parent, selectPage, watermark, watermarkPalette, header)
{
}

IconPropertySheet::~IconPropertySheet() = default;

BOOL IconPropertySheet::OnInitDialog()
{
    const BOOL result = CPropertySheet::OnInitDialog();
    m_icons.Put(*this, GetIconID());
    return result;
}

UINT IconPropertySheet::GetIconID()
{
    return vorn::kHostIcon;
}
