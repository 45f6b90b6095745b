#include "apps/sample/ResizePictureDialog.h"

#include "apps/sample/resource.h"

#include <algorithm>
#include <array>

namespace
{

constexpr int kMost = 20000;

// Control and tip by turns.
constexpr std::array<UINT, 10> kTips = {
    IDC_RESIZE_WIDTH,    IDS_TIP_RESIZE_WIDTH, IDC_RESIZE_HEIGHT,   IDS_TIP_RESIZE_HEIGHT, IDC_RESIZE_KEEP,
    IDS_TIP_RESIZE_KEEP, IDC_RESIZE_AREA,      IDS_TIP_RESIZE_AREA, IDC_RESIZE_SYSTEM,     IDS_TIP_RESIZE_SYSTEM};

} // namespace

BEGIN_MESSAGE_MAP(ResizePictureDialog, ToolTipDlg)
ON_EN_CHANGE(IDC_RESIZE_WIDTH, &ResizePictureDialog::OnWidth)
ON_EN_CHANGE(IDC_RESIZE_HEIGHT, &ResizePictureDialog::OnHeight)
END_MESSAGE_MAP()

ResizePictureDialog::ResizePictureDialog(CWnd* parent, int width, int height)
    : ToolTipDlg(IDD_RESIZE_PICTURE, parent), m_oldWidth(width), m_oldHeight(height), m_width(width), m_height(height)
{
}

int ResizePictureDialog::Width() const
{
    return m_width;
}

int ResizePictureDialog::Height() const
{
    return m_height;
}

bool ResizePictureDialog::IsByArea() const
{
    return m_isByArea;
}

BOOL ResizePictureDialog::OnInitDialog()
{
    ToolTipDlg::OnInitDialog();
    AddTips(kTips.data(), static_cast<int>(kTips.size() / 2));
    CheckDlgButton(IDC_RESIZE_KEEP, BST_CHECKED);
    CheckRadioButton(IDC_RESIZE_AREA, IDC_RESIZE_SYSTEM, IDC_RESIZE_AREA);
    m_isFollowing = true;
    SetDlgItemInt(IDC_RESIZE_WIDTH, static_cast<UINT>(m_width));
    SetDlgItemInt(IDC_RESIZE_HEIGHT, static_cast<UINT>(m_height));
    m_isFollowing = false;
    LetPassWhatFits();
    CenterWindow();
    return TRUE;
}

int ResizePictureDialog::Typed(int id) const
{
    const UINT typed = ::GetDlgItemInt(m_hWnd, id, nullptr, FALSE);
    return static_cast<int>(std::min<UINT>(typed, kMost + 1));
}

void ResizePictureDialog::Follow(int typedId, int otherId, int typedBefore, int otherBefore)
{
    if (m_isFollowing)
        return;
    const int typed = Typed(typedId);
    if (IsDlgButtonChecked(IDC_RESIZE_KEEP) == BST_CHECKED && typed > 0)
    {
        m_isFollowing = true;
        SetDlgItemInt(otherId, static_cast<UINT>(std::max(1, MulDiv(typed, otherBefore, typedBefore))));
        m_isFollowing = false;
    }
    LetPassWhatFits();
}

void ResizePictureDialog::LetPassWhatFits()
{
    const auto fits = [this](int id)
    {
        return Typed(id) >= 1 && Typed(id) <= kMost;
    };
    GetDlgItem(IDOK)->EnableWindow(fits(IDC_RESIZE_WIDTH) && fits(IDC_RESIZE_HEIGHT));
}

void ResizePictureDialog::OnWidth()
{
    Follow(IDC_RESIZE_WIDTH, IDC_RESIZE_HEIGHT, m_oldWidth, m_oldHeight);
}

void ResizePictureDialog::OnHeight()
{
    Follow(IDC_RESIZE_HEIGHT, IDC_RESIZE_WIDTH, m_oldHeight, m_oldWidth);
}

void ResizePictureDialog::OnOK()
{
    m_width = Typed(IDC_RESIZE_WIDTH);
    m_height = Typed(IDC_RESIZE_HEIGHT);
    m_isByArea = IsDlgButtonChecked(IDC_RESIZE_AREA) == BST_CHECKED;
    ToolTipDlg::OnOK();
}
