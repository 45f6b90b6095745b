#include "apps/briefing/BriefingDialog.h"

#include "apps/briefing/resource.h"

BEGIN_MESSAGE_MAP(BriefingDialog, LayoutManagement::LayoutDialog)
ON_BN_CLICKED(IDC_BRIEFING_TAKE, &BriefingDialog::OnTakeOver)
ON_WM_SIZE()
END_MESSAGE_MAP()

BriefingDialog::BriefingDialog(Currency currency)
    : LayoutDialog(IDD_BRIEFING, nullptr, "Briefing"), m_currency(currency)
{
}

void BriefingDialog::DoDataExchange(CDataExchange* exchange)
{
    LayoutDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_BRIEFING_LIST, m_list);
}

BOOL BriefingDialog::OnInitDialog()
{
    LayoutDialog::OnInitDialog();
    m_icons.Put(*this, IDR_BRIEFING);
    LayoutMgr::CPane root = CreateRoot(Vertical, 7, 0);
    root << item(IDC_BRIEFING_LIST, Greedy, 0, 0, 240, 120);
    LayoutMgr::CPane buttons = pane(Horizontal, FixedHeight, 7);
    buttons << item(IDC_BRIEFING_TAKE, FixedBoth) << itemSpace(Horizontal) << item(IDCANCEL, FixedBoth);
    root << buttons;
    UpdateLayout(false);
    AddColumns();
    Fill();
    return TRUE;
}

void BriefingDialog::AddColumns()
{
    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_LABELTIP);
    int column = 0;
    for (const char* const title : {"What", kThisProgram, kSample})
        m_list.InsertColumn(column++, title, LVCFMT_LEFT, 0);
    FitColumns();
}

/// Dates and folders are longer than what they are of.
void BriefingDialog::FitColumns()
{
    CRect window;
    m_list.GetWindowRect(&window); // as if there were always a scroll bar
    const int width = window.Width() - 2 * ::GetSystemMetrics(SM_CXEDGE) - ::GetSystemMetrics(SM_CXVSCROLL);
    const int first = width * 27 / 100;
    const int second = width * 39 / 100;
    m_list.SetColumnWidth(0, first);
    m_list.SetColumnWidth(1, second);
    m_list.SetColumnWidth(2, width - first - second);
}

void BriefingDialog::OnSize(UINT type, int width, int height)
{
    LayoutDialog::OnSize(type, width, height);
    if (m_list.m_hWnd != nullptr)
        FitColumns();
}

void BriefingDialog::Fill()
{
    m_list.DeleteAllItems();
    int index = 0;
    for (const BriefingRow& row : Briefing(m_currency))
    {
        const bool heading = row.own.empty() && row.sample.empty();
        m_list.InsertItem(index, (heading ? row.what : "    " + row.what).c_str());
        m_list.SetItemText(index, 1, row.own.c_str());
        m_list.SetItemText(index, 2, row.sample.c_str());
        ++index;
    }
}

void BriefingDialog::OnTakeOver()
{
    TakeOverUnits();
    Fill();
}
