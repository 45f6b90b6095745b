#include "tests/windows/layout_sheets/LaidSheets.h"

ProfileApp g_app;

std::vector<std::uint8_t> PageTemplate(const char* title)
{
    using B = DialogTemplateBuilder;
    B builder;
    builder.Style(WS_CHILD | WS_CAPTION).Title(title).At({0, 0, 160, 80}).Font(8, "MS Shell Dlg");
    builder.Add(B::Edit, kPageEdit, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, {5, 5, 70, 12}, "one");
    return builder.Bytes();
}

CRect PlaceIn(HWND parent, HWND control)
{
    CRect rect;
    ::GetWindowRect(control, &rect);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(static_cast<RECT*>(&rect)), 2);
    return rect;
}

PlannerPage::PlannerPage(const char* title) : m_bytes(PageTemplate(title))
{
    m_psp.dwFlags |= PSP_DLGINDIRECT;
    m_psp.pResource = reinterpret_cast<LPCDLGTEMPLATE>(m_bytes.data());
}

PlannerPage::~PlannerPage()
{
    if (m_deaths != nullptr)
    {
        ++*m_deaths;
    }
}

BOOL PlannerPage::OnInitDialog()
{
    const BOOL result = LayoutPropertyPage::OnInitDialog();
    CreateRoot(Vertical, 5, 0) << item(kPageEdit, Greedy, 0, 0, 50, 20);
    return result;
}

CRect PlannerPage::Edit() const
{
    return PlaceIn(m_hWnd, ::GetDlgItem(m_hWnd, kPageEdit));
}

CRect PlannerPage::Client() const
{
    CRect rect;
    GetClientRect(&rect);
    return rect;
}

PlainPage::PlainPage(const char* title) : m_bytes(PageTemplate(title))
{
    m_psp.dwFlags |= PSP_DLGINDIRECT;
    m_psp.pResource = reinterpret_cast<LPCDLGTEMPLATE>(m_bytes.data());
}

PlannerSheet::PlannerSheet(LPCSTR section, bool repositionBars)
    : LayoutPropertySheet("Planning", nullptr, 0, section, repositionBars)
{
    ModelessWithButtons(true);
}

PlannerSheet::~PlannerSheet()
{
    if (m_deaths != nullptr)
    {
        ++*m_deaths;
    }
}

BOOL PlannerSheet::OnInitDialog()
{
    const BOOL result = LayoutPropertySheet::OnInitDialog();
    if (m_onInit)
    {
        m_onInit(*this);
    }
    return result;
}

CSize PlannerSheet::Client() const
{
    CRect rect;
    GetClientRect(&rect);
    return rect.Size();
}

CSize PlannerSheet::Outer() const
{
    CRect rect;
    GetWindowRect(&rect);
    return rect.Size();
}

CSize PlannerSheet::Frame() const
{
    return Outer() - Client();
}

void PlannerSheet::Size(CSize outer)
{
    SetWindowPos(nullptr, 0, 0, static_cast<int>(outer.cx), static_cast<int>(outer.cy),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void PlannerSheet::SizeBy(int more, int lower)
{
    Size(Outer() + CSize(more, lower));
}

HWND PlannerSheet::Part(int id) const
{
    return ::GetDlgItem(m_hWnd, id);
}

bool PlannerSheet::Shows(int id) const
{
    return Part(id) != nullptr && (::GetWindowLongA(Part(id), GWL_STYLE) & WS_VISIBLE) != 0;
}

CRect PlannerSheet::Place(int id) const
{
    return PlaceIn(m_hWnd, Part(id));
}

CRect PlannerSheet::Tabs() const
{
    return PlaceIn(m_hWnd, GetTabControl()->m_hWnd);
}

CRect PlannerSheet::PageArea() const
{
    CRect area = Tabs();
    GetTabControl()->SendMessage(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(static_cast<RECT*>(&area)));
    return area;
}

CRect PlannerSheet::PlaceOf(const CWnd& page) const
{
    return PlaceIn(m_hWnd, page.m_hWnd);
}

SheetOfThree::SheetOfThree()
{
    m_sheet.AddPage(&m_route);
    m_sheet.AddPage(&m_fuel);
    m_sheet.AddPage(&m_plain);
}

SheetOfThree::~SheetOfThree()
{
    m_sheet.DestroyWindow();
}
