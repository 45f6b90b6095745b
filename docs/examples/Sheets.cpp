#include <VornCommon.h>

#include <cstdio>

using namespace LayoutManagement;

namespace
{

constexpr UINT kRoutePage = 101; // templates, as in Sheets.rc
constexpr UINT kFuelPage = 102;
constexpr UINT kForm = 103; // for a view and for a bar
constexpr UINT kNotes = 1000;
constexpr UINT kBar = 0xE880;

int WidthOf(const CWnd* window)
{
    CRect place;
    window->GetWindowRect(&place);
    return place.Width();
}

// A page with one field, which fills it at every size.
class NotesPage : public LayoutPropertyPage
{
public:
    explicit NotesPage(UINT id, bool isLast = false) : LayoutPropertyPage(id), m_isLast(isLast)
    {
    }

    BOOL OnInitDialog() override
    {
        const BOOL result = LayoutPropertyPage::OnInitDialog();
        CreateRoot(Vertical, 5) << item(kNotes, Greedy, 0, 0, 80, 40);
        return result;
    }

    BOOL OnSetActive() override
    {
        CPropertySheet* const sheet = GetParentSheet();
        if (sheet->IsWizard())
        {
            sheet->SetWizardButtons(m_isLast ? PSWIZB_BACK | PSWIZB_FINISH : PSWIZB_NEXT);
            sheet->PostMessage(PSM_PRESSBUTTON, m_isLast ? PSBTN_FINISH : PSBTN_NEXT); // in place of a user
        }
        return LayoutPropertyPage::OnSetActive();
    }

private:
    bool m_isLast;
};

class NotesView : public LayoutFormView
{
public:
    NotesView() : LayoutFormView(kForm, nullptr)
    {
    }
    void OnInitialUpdate() override
    {
        LayoutFormView::OnInitialUpdate();
        CreateRoot(Vertical, 5) << item(kNotes, Greedy, 0, 0, 80, 40);
        UpdateLayout(false);
    }
};

class NotesBar : public ResizableDialogBar
{
protected:
    BOOL OnInitDialog() override
    {
        const BOOL result = ResizableDialogBar::OnInitDialog();
        CreateRoot(Vertical, 5) << item(kNotes, Greedy, 0, 0, 80, 40);
        return result;
    }
};

class Host : public CWinApp, public VornCommonApp
{
public:
    Host() : CWinApp("SheetsExample")
    {
        VornCommonApp::Inst(this);
    }
};

void ShowSheetAndWizard()
{
    NotesPage route(kRoutePage);
    NotesPage fuel(kFuelPage, true);

    LayoutPropertySheet sheet("Flight", nullptr, 0, nullptr);
    sheet.ModelessWithButtons();
    sheet.AddPage(&route);
    sheet.AddPage(&fuel);
    sheet.Create();
    const int before = WidthOf(route.GetDlgItem(kNotes));
    CRect place;
    sheet.GetWindowRect(&place);
    sheet.MoveWindow(place.left, place.top, place.Width() + 100, place.Height() + 60);
    std::printf("page: its field is %d wider\n", WidthOf(route.GetDlgItem(kNotes)) - before);
    sheet.DestroyWindow();

    LayoutPropertySheet wizard("New flight", nullptr, 0, nullptr);
    wizard.SetWizardMode();
    wizard.AddPage(&route);
    wizard.AddPage(&fuel);
    std::printf("wizard: %s\n", wizard.DoModal() == ID_WIZFINISH ? "finished" : "cancelled");
}

void ShowViewAndBar()
{
    auto* const frame = new CFrameWnd; // frames and views delete themselves with their windows
    frame->Create(nullptr, "Notes", WS_OVERLAPPEDWINDOW, CRect(50, 50, 650, 450));
    auto* const view = new NotesView;
    view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), frame, AFX_IDW_PANE_FIRST);
    view->OnInitialUpdate();

    NotesBar bar;
    bar.Create(frame, kForm, CBRS_LEFT, kBar, TRUE, 0);
    bar.EnableDocking(CBRS_ALIGN_ANY);
    frame->EnableDocking(CBRS_ALIGN_ANY);
    frame->DockControlBar(&bar);
    bar.SetDockedSize(CSize(220, 200));
    frame->RecalcLayout();
    const int before = WidthOf(view->GetDlgItem(kNotes));
    bar.SetDockedSize(CSize(250, 200));
    frame->RecalcLayout();
    std::printf("bar: %d wide, the view's field %d narrower\n", WidthOf(&bar),
                before - WidthOf(view->GetDlgItem(kNotes)));
    frame->DestroyWindow();
}

} // namespace

int main()
{
    Host host;
    ShowSheetAndWizard();
    ShowViewAndBar();

    CString entry;
    entry.Format("Docked%u", kBar);
    std::printf("kept: %s\n", host.GetSettingString("Dialog Bar Sizes", entry, "").GetString());
    host.WriteSettingString("Dialog Bar Sizes", nullptr, nullptr);
    VornCommonApp::FreeInst();
    AppRegMgr::FreeInst();
    return 0;
}
