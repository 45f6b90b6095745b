#include "toolkit/ResizableDialogBar.h"

#include "config/AppRegMgr.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CDC.h"

#include <algorithm>

using vorn::BarSide;
using vorn::BarSize;

// Sizes of the bar: first, stored, limits, layout.
namespace
{

constexpr char kSection[] = "Dialog Bar Sizes";
constexpr char kDocked[] = "Docked";
constexpr char kFloating[] = "Floating";

BarSize Plain(CSize size)
{
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
}

CSize Framed(BarSize size)
{
    return {size.cx, size.cy};
}

CString EntryOf(const char* state, int id)
{
    CString entry;
    entry.Format("%s%d", state, id);
    return entry;
}

constexpr vorn::BarLimits kAnySize{{1, 1}, {vorn::kMostBarSize, vorn::kMostBarSize}};

} // namespace

IMPLEMENT_DYNAMIC(ResizableDialogBar, LayoutManagement::LayoutDialogBar)

BEGIN_MESSAGE_MAP(ResizableDialogBar, LayoutManagement::LayoutDialogBar)
ON_WM_NCCALCSIZE()
ON_WM_NCHITTEST()
ON_WM_NCLBUTTONDOWN()
ON_WM_NCLBUTTONDBLCLK()
ON_WM_NCPAINT()
ON_WM_SETCURSOR()
ON_WM_GETMINMAXINFO()
ON_WM_WINDOWPOSCHANGED()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONUP()
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_WM_SETFOCUS()
ON_WM_CAPTURECHANGED()
ON_WM_CANCELMODE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

ResizableDialogBar::ResizableDialogBar() = default;

ResizableDialogBar::~ResizableDialogBar()
{
    m_bAutoDelete = FALSE; // the end of the window must not end the object once more
    if (m_hWnd != nullptr)
    {
        DestroyWindow(); // while the handlers of this class still answer
    }
}

BOOL ResizableDialogBar::Create(CWnd* parent, UINT nIDTemplate, UINT style, UINT id, BOOL gripper, UINT extraStyle)
{
    return Create(parent, MAKEINTRESOURCEA(nIDTemplate), style, id, gripper, extraStyle);
}

BOOL ResizableDialogBar::Create(CWnd* parent, LPCSTR templateName, UINT style, UINT id, BOOL gripper, UINT extraStyle)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    const UINT all = style | extraStyle;
    m_gripper = gripper != FALSE || (all & CBRS_GRIPPER) != 0;
    return CDialogBar::Create(parent, templateName, all, id) && FinishCreation();
}

BOOL ResizableDialogBar::Create(CWnd* parent, LPCTSTR templateName, UINT style, UINT id)
{
    return Create(parent, templateName, style, id, FALSE, 0);
}

BOOL ResizableDialogBar::FinishCreation()
{
    SetDefaultSize();
    ReadSizes();
    m_created = true;
    return TRUE;
}

void ResizableDialogBar::SetDefaultSize()
{
    m_docked = m_floating = Framed(vorn::ScaledBarSize(Plain(m_sizeDefault), m_scaleX, m_scaleY));
}

void ResizableDialogBar::SetFontSize(CDC* dc, double width, double height)
{
    TEXTMETRIC metrics{};
    m_scaleX = m_scaleY = 1;
    if (dc == nullptr || !dc->GetTextMetrics(&metrics))
    {
        return;
    }
    // The documented average of a dialog font: that of its letters.
    constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kCount = sizeof kLetters - 1;
    const int average = (static_cast<int>(dc->GetTextExtent(kLetters, kCount).cx) / (kCount / 2) + 1) / 2;
    m_scaleX = average / width;
    m_scaleY = static_cast<double>(metrics.tmHeight) / height;
}

void ResizableDialogBar::ReadSizes()
{
    const MINMAXINFO limits = Limits();
    const auto take = [&](const char* state, CSize& size)
    {
        CSize stored;
        if (ReadSize(state, stored))
        {
            size = stored;
        }
        ValidateSize(&size, limits);
    };
    take(kDocked, m_docked);
    take(kFloating, m_floating);
}

bool ResizableDialogBar::ReadSize(const char* state, CSize& size) const
{
    const CString text =
        AppRegMgr::Instance()->ReadVornString(kSection, EntryOf(state, GetDlgCtrlID()).GetString(), "", 0);
    const auto stored = vorn::ReadBarSize(text.GetString());
    if (stored)
    {
        size = Framed(*stored);
    }
    return stored.has_value();
}

void ResizableDialogBar::WriteSize(const char* state, CSize size) const
{
    AppRegMgr::Instance()->WriteVornString(kSection, EntryOf(state, GetDlgCtrlID()).GetString(),
                                           vorn::BarSizeText(Plain(size)).c_str(), 0);
}

void ResizableDialogBar::WriteSizes()
{
    WriteSize(kDocked, m_docked);
    WriteSize(kFloating, m_floating);
}

void ResizableDialogBar::SetDockedSize(CSize size)
{
    m_docked = Framed(vorn::LimitedBarSize(Plain(size), kAnySize));
}

void ResizableDialogBar::SetFloatingSize(CSize size)
{
    m_floating = Framed(vorn::LimitedBarSize(Plain(size), kAnySize));
}

CSize ResizableDialogBar::GetDockedSize() const
{
    return m_docked;
}

CSize ResizableDialogBar::GetFloatingSize() const
{
    return m_floating;
}

BarSide ResizableDialogBar::Side() const
{
    if (IsFloating())
    {
        return BarSide::Floating;
    }
    switch (m_dwStyle & CBRS_ALIGN_ANY)
    {
    case CBRS_ALIGN_BOTTOM:
        return BarSide::Bottom;
    case CBRS_ALIGN_LEFT:
        return BarSide::Left;
    case CBRS_ALIGN_RIGHT:
        return BarSide::Right;
    default:
        return BarSide::Top;
    }
}

BOOL ResizableDialogBar::IsHorz() const
{
    return vorn::LiesHorizontally(Side());
}

void ResizableDialogBar::ValidateSize(CSize* size, MINMAXINFO limits) const
{
    if (size == nullptr)
    {
        return;
    }
    const vorn::BarLimits within{
        {static_cast<int>(limits.ptMinTrackSize.x), static_cast<int>(limits.ptMinTrackSize.y)},
        {static_cast<int>(limits.ptMaxTrackSize.x), static_cast<int>(limits.ptMaxTrackSize.y)}};
    *size = Framed(vorn::LimitedBarSize(Plain(*size), within));
}

/// The smallest size at a side: what the layout asks for with the bar's frame there.
CSize ResizableDialogBar::Least(BarSide side)
{
    const CSize layout = LayoutMinimum();
    if (layout == CSize(0, 0))
    {
        return {vorn::kLeastBarSize, vorn::kLeastBarSize};
    }
    const vorn::BarMargins frame = vorn::BarFrameOf(side, m_gripper);
    return layout + CSize(frame.left + frame.right, frame.top + frame.bottom);
}

MINMAXINFO ResizableDialogBar::Limits()
{
    MINMAXINFO limits{};
    limits.ptMaxTrackSize = {vorn::kMostBarSize, vorn::kMostBarSize};
    SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits;
}

void ResizableDialogBar::OnGetMinMaxInfo(MINMAXINFO* info)
{
    LayoutDialogBar::OnGetMinMaxInfo(info);
    const CSize least = Least(Side());
    info->ptMinTrackSize = {least.cx, least.cy};
    info->ptMaxTrackSize.x = std::clamp<LONG>(info->ptMaxTrackSize.x, least.cx, vorn::kMostBarSize);
    info->ptMaxTrackSize.y = std::clamp<LONG>(info->ptMaxTrackSize.y, least.cy, vorn::kMostBarSize);
}

CSize ResizableDialogBar::CalcDynamicLayout(int length, DWORD mode)
{
    const bool lying = (mode & LM_HORZ) != 0;
    const bool docked = (mode & (LM_STRETCH | LM_HORZDOCK | LM_VERTDOCK)) != 0;
    CSize size = docked ? m_docked : m_floating;
    if (!docked && length > 0 && (mode & LM_MRUWIDTH) == 0)
    {
        (mode & LM_LENGTHY ? size.cy : size.cx) = length;
    }
    const BarSide side = !docked ? BarSide::Floating : lying ? BarSide::Top : BarSide::Left;
    const CSize least = Least(side);
    size.cx = std::max(size.cx, least.cx);
    size.cy = std::max(size.cy, least.cy);
    if (mode & LM_STRETCH)
    {
        (lying ? size.cx : size.cy) = vorn::kMostBarSize;
    }
    if (!docked && (mode & LM_COMMIT))
    {
        m_floating = size;
    }
    return size;
}

void ResizableDialogBar::SetSizeInForce(CSize size)
{
    if (IsFloating())
    {
        SetFloatingSize(size);
    }
    else
    {
        SetDockedSize(size);
    }
}

void ResizableDialogBar::LayOutFrame()
{
    CFrameWnd* const frame = IsFloating() ? GetParentFrame() : GetDockingFrame();
    if (frame != nullptr)
    {
        frame->RecalcLayout();
    }
}

void ResizableDialogBar::ResetSize()
{
    const CSize docked = m_docked;
    const CSize floating = m_floating;
    SetDefaultSize();
    // Of the two only the size in force is meant.
    (IsFloating() ? m_docked : m_floating) = IsFloating() ? docked : floating;
    LayOutFrame();
    WriteSizes();
}

void ResizableDialogBar::OnDestroy()
{
    StopTracking(FALSE);
    if (m_created)
    {
        WriteSizes();
    }
    m_created = false;
    LayoutDialogBar::OnDestroy();
}
