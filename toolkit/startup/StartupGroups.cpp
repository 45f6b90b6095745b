// The groups of the data sets, and the dialog's size.
#include "toolkit/startup/CStartupDlg.h"

#include "framework/core/OleException.h"
#include "toolkit/startup/StartupArea.h"
#include "toolkit/startup/StartupIds.h"
#include "toolkit/startup/core/StartupLayout.h"
#include "toolkit/startup/core/StartupTexts.h"

#include <algorithm>

namespace
{

constexpr int kMarginUnits = 7;
constexpr int kGapUnits = 5;
constexpr int kLineUnits = 8; // the least height of a line, as templates have it
constexpr int kNavigationData = 1;
constexpr DWORD kLineStyle = SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS;

/// A date's text. A moment that the calendar does not reach has none.
template <class Text>
CString DateText(Date& date, Text text)
{
    try
    {
        return (date.*text)();
    }
    catch (CException* failure)
    {
        failure->Delete();
        return {};
    }
}

CRect WorkArea(HWND window)
{
    MONITORINFO info = {sizeof(info), {}, {}, 0};
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

/// A dialog's font in a device context, while the object lives.
class FontChoice
{
public:
    FontChoice(CDC& dc, CFont* font) : m_dc(dc), m_former(dc.SelectObject(font))
    {
    }
    ~FontChoice()
    {
        m_dc.SelectObject(m_former);
    }
    FontChoice(const FontChoice&) = delete;
    FontChoice& operator=(const FontChoice&) = delete;

private:
    CDC& m_dc;
    CFont* m_former;
};

} // namespace

CStartupDlg::Group CStartupDlg::AddTextFields(DataInfo& record) const
{
    const bool navigation = record.kind == kNavigationData;
    Group group;
    group.caption = navigation ? "Navigation data" : "Terminal procedures";
    group.lines.push_back(vorn::CoverageLine(vorn::NamedFor(record.coverage, m_name)));
    if (!vorn::ShowsDates(record.version))
    {
        return group;
    }
    group.hasExpiry = true;
    group.lines.push_back(
        vorn::EffectiveLine(DateText(record.effective, navigation ? &Date::GetNavEffDate : &Date::GetTermEffDate)));
    if (navigation)
    {
        const bool expired = record.expiry.isValid() && record.expiry.isExpired();
        group.lines.push_back(vorn::ExpiryLine(DateText(record.expiry, &Date::GetNavExpDate), expired));
    }
    else
    {
        group.lines.push_back(vorn::NextUpdateLine(DateText(record.expiry, &Date::GetTermExpDate)));
    }
    return group;
}

vorn::StartupGroup CStartupDlg::SetGroupBoxSize(Group& group, CDC& dc) const
{
    group.sizes.clear();
    for (const CString& line : group.lines)
    {
        group.sizes.push_back(AdjustStdDimensions(GetTextDim(dc, line)));
    }
    CSize caption = GetTextDim(dc, group.caption);
    caption.cx += Units(kMarginUnits, 0).cx; // the frame's pieces beside it
    return vorn::GroupAround(caption, group.sizes,
                             {Units(kMarginUnits, 0).cx, Units(0, kLineUnits).cy, Units(0, kLineUnits).cy});
}

CSize CStartupDlg::GetTextDim(CDC& dc, const CString& text) const
{
    CRect size(0, 0, 0, 0);
    dc.DrawText(text, &size, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX | DT_EXPANDTABS);
    return size.Size();
}

/// No lower than a line of a template, no wider than the screen has room for.
CSize CStartupDlg::AdjustStdDimensions(CSize text) const
{
    return CSize(std::min<int>(text.cx, WidestLine()), std::max<int>(text.cy, Units(0, kLineUnits).cy));
}

int CStartupDlg::WidestLine() const
{
    const int around = 2 * Units(kMarginUnits, 0).cx; // of the dialog, and as much of a group
    return std::max<int>(ClientLimit().cx - 2 * around - ::GetSystemMetrics(SM_CXVSCROLL), 1);
}

void CStartupDlg::Resize()
{
    std::vector<Group> groups;
    std::vector<vorn::StartupGroup> boxes;
    vorn::StartupParts parts;
    {
        CClientDC dc(this);
        const FontChoice font(dc, GetFont());
        for (DataInfo& record : m_records)
        {
            groups.push_back(AddTextFields(record));
            boxes.push_back(SetGroupBoxSize(groups.back(), dc));
            parts.groups.push_back(boxes.back().size);
        }
        for (const CString& line : m_lines)
        {
            parts.lines.push_back(AdjustStdDimensions(GetTextDim(dc, line)));
        }
        CString text;
        m_copyright.GetWindowText(text);
        parts.copyright = AdjustStdDimensions(GetTextDim(dc, text));
        const FontChoice titleFont(dc, &m_titleFont);
        parts.title = AdjustStdDimensions(GetTextDim(dc, vorn::WelcomeText(m_name)));
    }
    parts.margin = Units(kMarginUnits, kMarginUnits);
    parts.gap = Units(kGapUnits, kGapUnits);
    parts.disclaimer = m_noDisclaimer != 0 ? CSize(0, 0) : SizeOf(IDC_VORN_STARTUP_DISCLAIMER);
    parts.check = SizeOf(IDC_VORN_STARTUP_HIDE);
    parts.update = SizeOf(IDC_VORN_STARTUP_UPDATE);
    parts.ok = SizeOf(IDOK);
    parts.most = ClientLimit();
    parts.scrollBar = ::GetSystemMetrics(SM_CXVSCROLL);

    const vorn::StartupPlaces places = vorn::PlaceStartup(parts);
    MoveParts(places);
    MakeArea(groups, boxes, places);
}

void CStartupDlg::MoveParts(const vorn::StartupPlaces& places)
{
    CRect frame(CPoint(0, 0), places.client);
    ::AdjustWindowRectEx(&frame, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, frame.Width(), frame.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    GetDlgItem(IDC_VORN_STARTUP_TITLE)->MoveWindow(&places.title);
    m_copyright.MoveWindow(&places.copyright);
    m_disclaimer.MoveWindow(&places.disclaimer);
    GetDlgItem(IDC_VORN_STARTUP_HIDE)->MoveWindow(&places.check);
    GetDlgItem(IDC_VORN_STARTUP_UPDATE)->MoveWindow(&places.update);
    GetDlgItem(IDOK)->MoveWindow(&places.ok);
    CenterWindow();
}

void CStartupDlg::MakeArea(const std::vector<Group>& groups, const std::vector<vorn::StartupGroup>& boxes,
                           const vorn::StartupPlaces& places)
{
    m_expiryLines.clear();
    m_area = std::make_unique<vorn::StartupArea>();
    if (places.contentHeight == 0 ||
        !m_area->CreateIn(*this, IDC_VORN_STARTUP_AREA, places.area, places.contentHeight, m_disclaimer.m_hWnd))
    {
        return;
    }
    for (std::size_t i = 0; i < groups.size(); ++i)
    {
        MakeGroup(groups[i], boxes[i], places.groups[i].TopLeft(), i);
    }
    const HFONT font = static_cast<HFONT>(GetFont()->GetSafeHandle());
    for (std::size_t i = 0; i < m_lines.size(); ++i)
    {
        m_area->Add("Static", m_lines[i], kLineStyle, places.lines[i], font);
    }
}

void CStartupDlg::MakeGroup(const Group& group, const vorn::StartupGroup& box, CPoint at, std::size_t record)
{
    const HFONT font = static_cast<HFONT>(GetFont()->GetSafeHandle());
    m_area->Add("Button", group.caption, BS_GROUPBOX, CRect(at, box.size), font);
    for (std::size_t i = 0; i < group.lines.size(); ++i)
    {
        const HWND line = m_area->Add("Static", group.lines[i], kLineStyle, box.lines[i] + at, font);
        if (line != nullptr && group.hasExpiry && i + 1 == group.lines.size())
        {
            m_expiryLines[line] = record;
        }
    }
}

CSize CStartupDlg::Units(int width, int height) const
{
    CRect rect(0, 0, width, height);
    MapDialogRect(&rect);
    return rect.Size();
}

CSize CStartupDlg::SizeOf(int id) const
{
    CRect rect;
    ::GetWindowRect(::GetDlgItem(m_hWnd, id), &rect);
    return rect.Size();
}

CSize CStartupDlg::ClientLimit() const
{
    CRect frame(0, 0, 0, 0);
    ::AdjustWindowRectEx(&frame, GetStyle(), FALSE, GetExStyle());
    return WorkArea(m_hWnd).Size() - frame.Size();
}
