#include "apps/briefing/BriefingDialog.h"

#include "apps/briefing/resource.h"

BEGIN_MESSAGE_MAP(BriefingDialog, LayoutManagement::LayoutDialog)
ON_BN_CLICKED(IDC_BRIEFING_TAKE, &BriefingDialog::OnTakeOver)
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
    CRect client;
    m_list.GetClientRect(&client);
    const int first = client.Width() * 3 / 10;
    const int others = (client.Width() - first - ::GetSystemMetrics(SM_CXVSCROLL)) / 2;
    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    m_list.InsertColumn(0, "What", LVCFMT_LEFT, first);
    m_list.InsertColumn(1, kThisProgram, LVCFMT_LEFT, others);
    m_list.InsertColumn(2, kSample, LVCFMT_LEFT, others);
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
