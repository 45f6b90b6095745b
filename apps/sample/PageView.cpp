#include "apps/sample/PageView.h"

#include "apps/sample/pages/ChartPage.h"
#include "apps/sample/pages/PageList.h"
#include "apps/sample/resource.h"
#include "apps/sample/ui/BufferedDC.h"

#include <algorithm>

namespace
{

// Pixels at 96 dpi.
constexpr int kBandHeight = 58;
constexpr int kRailWidth = 160;
constexpr int kRailItemHeight = 34;
constexpr int kMargin = 16;

void DrawLine(CDC& dc, CRect area, const char* text, const CFont& font, COLORREF color, UINT format)
{
    CFont* const before = dc.SelectObject(const_cast<CFont*>(&font));
    dc.SetTextColor(color);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(text, -1, &area, format | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    dc.SelectObject(before);
}

} // namespace

BEGIN_MESSAGE_MAP(PageView, CView)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_CTLCOLOR()
ON_WM_SETFOCUS()
ON_COMMAND_RANGE(ID_TABLE_FIRST, ID_TABLE_LAST, &PageView::OnPageCommand)
ON_UPDATE_COMMAND_UI_RANGE(ID_TABLE_FIRST, ID_TABLE_LAST, &PageView::OnUpdatePageCommand)
ON_COMMAND_RANGE(ID_CHART_FIRST, ID_CHART_LAST, &PageView::OnPageCommand)
ON_UPDATE_COMMAND_UI_RANGE(ID_CHART_FIRST, ID_CHART_LAST, &PageView::OnUpdatePageCommand)
ON_COMMAND_RANGE(ID_PICTURE_FIRST, ID_PICTURE_LAST, &PageView::OnPageCommand)
ON_UPDATE_COMMAND_UI_RANGE(ID_PICTURE_FIRST, ID_PICTURE_LAST, &PageView::OnUpdatePageCommand)
END_MESSAGE_MAP()

PageView::PageView() : m_pages(MakePages())
{
}

const std::vector<std::unique_ptr<Page>>& PageView::Pages() const
{
    return m_pages;
}

std::size_t PageView::CurrentPage() const
{
    return m_current;
}

BOOL PageView::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CLIPCHILDREN | WS_VSCROLL;
    create.dwExStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    return CView::PreCreateWindow(create);
}

int PageView::OnCreate(LPCREATESTRUCT create)
{
    if (CView::OnCreate(create) == -1)
        return -1;
    CClientDC dc(this);
    m_theme = std::make_unique<Theme>(dc.GetDeviceCaps(LOGPIXELSY));
    for (const std::unique_ptr<Page>& page : m_pages)
        page->Refresh();
    m_pages[m_current]->Activate(*this, true);
    m_tips.TakeControlsOf(*this);
    return 0;
}

void PageView::OnDestroy()
{
    for (const std::unique_ptr<Page>& page : m_pages)
        page->Leave();
    CView::OnDestroy();
}

void PageView::ShowPage(std::size_t index)
{
    if (index >= m_pages.size() || index == m_current)
        return;
    m_pages[m_current]->Activate(*this, false);
    m_current = index;
    m_scroll = 0;
    m_pages[m_current]->Refresh();
    m_pages[m_current]->Activate(*this, true);
    m_tips.TakeControlsOf(*this);
    ShowScrollBar(SB_VERT, !m_pages[m_current]->FillsWindow());
    Layout();
    Invalidate(FALSE);
    if (CWnd* const first = m_pages[m_current]->FirstControl())
        first->SetFocus();
    else
        SetFocus();
}

bool PageView::ShowPage(const std::string& name)
{
    std::size_t found = m_pages.size();
    for (std::size_t index = 0; index < m_pages.size(); ++index)
    {
        const CString full = m_pages[index]->Name();
        if (full.CompareNoCase(name.c_str()) == 0)
        {
            ShowPage(index);
            return true;
        }
        if (full.Left(static_cast<int>(name.size())).CompareNoCase(name.c_str()) == 0)
            found = found == m_pages.size() ? index : m_pages.size() + 1;
    }
    if (found >= m_pages.size())
        return false;
    ShowPage(found);
    return true;
}

Page* PageView::OwnerOf(UINT command) const
{
    for (const std::unique_ptr<Page>& page : m_pages)
    {
        if (page->OwnsCommand(command))
            return page.get();
    }
    return nullptr;
}

void PageView::OnPageCommand(UINT command)
{
    for (std::size_t index = 0; index < m_pages.size(); ++index)
    {
        if (!m_pages[index]->OwnsCommand(command))
            continue;
        ShowPage(index);
        if (m_pages[index]->CanRun(command))
            m_pages[index]->Run(command);
        return;
    }
}

void PageView::OnUpdatePageCommand(CCmdUI* item)
{
    const Page* const owner = OwnerOf(item->m_nID);
    item->Enable(owner != nullptr && owner->CanRun(item->m_nID));
    item->SetCheck(owner != nullptr && owner->IsChecked(item->m_nID) ? 1 : 0);
}

void PageView::OnSetFocus(CWnd* before)
{
    CView::OnSetFocus(before);
    if (CWnd* const first = m_pages[m_current]->FirstControl())
        first->SetFocus();
}

BOOL PageView::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const BOOL handled = CView::OnNotify(wParam, lParam, result);
    m_pages[m_current]->OnNotification(*reinterpret_cast<const NMHDR*>(lParam));
    return handled;
}

BOOL PageView::PreTranslateMessage(MSG* message)
{
    m_tips.Relay(*message);
    if (CView::PreTranslateMessage(message))
        return TRUE;
    if (message->message != WM_KEYDOWN)
        return FALSE;
    const UINT key = static_cast<UINT>(message->wParam);
    if (key == VK_TAB && GetKeyState(VK_CONTROL) >= 0)
        return MoveFocus(GetKeyState(VK_SHIFT) < 0);
    return m_pages[m_current]->OnKey(key, CWnd::FromHandle(message->hwnd));
}

bool PageView::MoveFocus(bool backwards)
{
    CWnd* const focus = GetFocus();
    const HWND from = focus != nullptr && IsChild(focus) ? focus->m_hWnd : nullptr;
    const HWND next = ::GetNextDlgTabItem(m_hWnd, from, backwards);
    if (next == nullptr || next == from)
        return false;
    ::SetFocus(next);
    return true;
}

LatLon PageView::ChartCenter() const
{
    for (const std::unique_ptr<Page>& page : m_pages)
    {
        if (const auto* const chart = dynamic_cast<const ChartPage*>(page.get()))
            return chart->Center();
    }
    return {};
}

ToolTipCtrlEx& PageView::Tips()
{
    return m_tips.Window();
}

void PageView::RefreshPage()
{
    m_pages[m_current]->Refresh();
    Layout();
    Invalidate(FALSE);
}

BOOL PageView::OnEraseBkgnd(CDC*)
{
    return TRUE; // every pixel is painted by OnDraw
}

void PageView::OnSize(UINT type, int width, int height)
{
    CView::OnSize(type, width, height);
    Layout();
    Invalidate(FALSE);
}

CRect PageView::RailArea() const
{
    CRect area;
    GetClientRect(&area);
    area.top += m_theme->Px(kBandHeight);
    area.right = std::min<LONG>(area.right, m_theme->Px(kRailWidth));
    return area;
}

CRect PageView::RailItem(std::size_t index) const
{
    CRect item = RailArea();
    item.top += m_theme->Px(kMargin / 2) + static_cast<int>(index) * m_theme->Px(kRailItemHeight);
    item.bottom = item.top + m_theme->Px(kRailItemHeight);
    return item;
}

CRect PageView::PageArea() const
{
    CRect area;
    GetClientRect(&area);
    area.top += m_theme->Px(kBandHeight);
    area.left += m_theme->Px(kRailWidth);
    return area;
}

CRect PageView::ScrolledPage() const
{
    CRect page = PageArea();
    page.OffsetRect(0, -m_scroll);
    page.bottom = std::max<LONG>(page.bottom, page.top + m_pageHeight);
    return page;
}

void PageView::Layout()
{
    if (m_theme == nullptr)
        return;
    const CRect area = PageArea();
    const bool fills = m_pages[m_current]->FillsWindow();
    m_pageHeight = fills ? area.Height() : m_pages[m_current]->HeightFor(area.Width(), *m_theme);
    m_scroll = std::clamp(m_scroll, 0, std::max(0, m_pageHeight - area.Height()));
    if (!fills)
        ShowScrollPosition(area.Height());
    m_pages[m_current]->PlaceControls(ScrolledPage(), *m_theme);
    m_tips.Moved();
}

void PageView::OnLButtonDown(UINT flags, CPoint point)
{
    CView::OnLButtonDown(flags, point);
    SetFocus();
    for (std::size_t index = 0; index < m_pages.size(); ++index)
    {
        if (RailItem(index).PtInRect(point))
            ShowPage(index);
    }
}

void PageView::OnMouseMove(UINT flags, CPoint point)
{
    CView::OnMouseMove(flags, point);
    if (m_pages[m_current]->OnPointer(ScrolledPage(), point, *m_theme))
        Invalidate(FALSE);
}

BOOL PageView::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (lParam != 0 && m_pages[m_current]->OnControl(LOWORD(wParam), HIWORD(wParam)))
    {
        Layout();
        Invalidate(FALSE);
        return TRUE;
    }
    return CView::OnCommand(wParam, lParam);
}

void PageView::OnDraw(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    BufferedDC buffer(*dc, client);
    CDC& target = buffer.Get();
    target.FillSolidRect(client, m_theme->window);
    PaintPage(target);
    PaintBand(target);
    PaintRail(target);
}

void PageView::PaintPage(CDC& dc) const
{
    const CRect area = PageArea();
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(&area);
    m_pages[m_current]->Paint(dc, ScrolledPage(), *m_theme);
    dc.RestoreDC(saved);
}

void PageView::PaintBand(CDC& dc) const
{
    CRect band;
    GetClientRect(&band);
    band.bottom = m_theme->Px(kBandHeight);
    dc.FillSolidRect(band, m_theme->band);
    band.DeflateRect(m_theme->Px(kMargin), m_theme->Px(7), m_theme->Px(kMargin), m_theme->Px(7));
    CRect line(band);
    line.bottom = line.top + m_theme->Px(26);
    CString name;
    AfxLoadString(IDS_SAMPLE_TITLE, name);
    DrawLine(dc, line, name, m_theme->title, m_theme->bandText, DT_LEFT);
    line.top = line.bottom;
    line.bottom = band.bottom;
    AfxLoadString(IDS_SAMPLE_SUBTITLE, name);
    DrawLine(dc, line, name, m_theme->note, m_theme->bandMuted, DT_LEFT);
}

void PageView::PaintRail(CDC& dc) const
{
    dc.FillSolidRect(RailArea(), m_theme->bandActive);
    for (std::size_t index = 0; index < m_pages.size(); ++index)
    {
        CRect item = RailItem(index);
        const bool current = index == m_current;
        if (current)
            dc.FillSolidRect(item, m_theme->window);
        item.left += m_theme->Px(kMargin);
        DrawLine(dc, item, m_pages[index]->Name(), current ? m_theme->bold : m_theme->body,
                 current ? m_theme->text : m_theme->bandText, DT_LEFT);
    }
}

HBRUSH PageView::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HBRUSH usual = CView::OnCtlColor(dc, control, type);
    if (type != CTLCOLOR_STATIC && type != CTLCOLOR_BTN)
        return usual;
    dc->SetBkColor(m_theme->window);
    return m_theme->windowBrush;
}

BOOL PageView::OnPreparePrinting(CPrintInfo* info)
{
    info->SetMaxPage(1);
    return VornCommonApp::Inst()->OnPreparePrinting(this, info) ? TRUE : FALSE;
}

void PageView::OnPrint(CDC* dc, CPrintInfo* info)
{
    const Theme paper(dc->GetDeviceCaps(LOGPIXELSY));
    m_pages[m_current]->Print(*dc, info->m_rectDraw, paper);
}
