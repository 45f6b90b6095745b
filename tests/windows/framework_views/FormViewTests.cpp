#include "framework/dialog/DialogDataExchange.h"
#include "framework/frames/CDocument.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/framework_views/ViewHost.h"
#include "tests/windows/framework_views/resource.h"

namespace
{

int g_living = 0;

/// A form for one item of the load.
class WeightForm : public CFormView
{
    DECLARE_DYNCREATE(WeightForm)

public:
    explicit WeightForm(UINT templateId = IDD_WEIGHT) : CFormView(templateId)
    {
        ++g_living;
    }
    ~WeightForm() override
    {
        --g_living;
    }

    CString name = "Baggage";
    int weight = 120;
    BOOL freight = TRUE;
    int computed = 0;

    using CFormView::OnActivateView;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Text(exchange, IDC_NAME, name);
        DDX_Text(exchange, IDC_WEIGHT, weight);
        DDX_Check(exchange, IDC_FREIGHT, freight);
    }
    afx_msg void OnCompute()
    {
        ++computed;
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(WeightForm, CFormView)

BEGIN_MESSAGE_MAP(WeightForm, CFormView)
ON_BN_CLICKED(IDC_COMPUTE, &WeightForm::OnCompute)
END_MESSAGE_MAP()

class FormDocument : public CDocument
{
};

class FormView : public testing::Test
{
protected:
    FormView() : m_frame(ShowHostFrame(400, 300))
    {
    }
    ~FormView() override
    {
        m_frame->DestroyWindow();
        vorn::test::PumpWaiting();
        EXPECT_EQ(0, g_living) << "every view ends with its window";
    }

    WeightForm* Show(DWORD style = WS_CHILD | WS_VISIBLE, const CRect& rect = CRect(0, 0, 400, 300))
    {
        auto* const view = new WeightForm;
        if (!view->Create(nullptr, nullptr, style, rect, m_frame, AFX_IDW_PANE_FIRST))
            return nullptr;
        view->OnInitialUpdate();
        m_frame->SetForegroundWindow();
        return view;
    }

    /// Puts a key down in the control that has the focus, as a message loop does.
    static void Press(CWnd& view, WPARAM key, UINT message = WM_KEYDOWN)
    {
        MSG press{};
        press.hwnd = ::GetFocus();
        press.message = message;
        press.wParam = key;
        press.lParam = 1;
        view.PreTranslateMessage(&press);
    }
    static int FocusedId()
    {
        return ::GetDlgCtrlID(::GetFocus());
    }

    CFrameWnd* m_frame;
};

CString TextOf(CWnd& view, int id)
{
    CString text;
    view.GetDlgItemText(id, text);
    return text;
}

} // namespace

TEST_F(FormView, ItsControlsComeFromItsTemplate)
{
    WeightForm* const view = Show();
    ASSERT_NE(nullptr, view);
    EXPECT_EQ(AFX_IDW_PANE_FIRST, view->GetDlgCtrlID());
    EXPECT_EQ(m_frame, view->GetParent());
    EXPECT_TRUE(view->IsWindowVisible());
    EXPECT_EQ(CRect(0, 0, 400, 300), PlaceInParent(view->m_hWnd));
    ASSERT_NE(nullptr, view->GetDlgItem(IDC_COMPUTE));
    EXPECT_EQ(2, view->SendDlgItemMessage(IDC_KIND, CB_GETCOUNT)) << "its first contents";
}

TEST_F(FormView, ItIsHiddenUnlessAskedFor)
{
    WeightForm* const view = Show(WS_CHILD);
    EXPECT_FALSE(view->IsWindowVisible());
}

TEST_F(FormView, AWantedBorderIsASunkenEdge)
{
    WeightForm* const view = Show(AFX_WS_DEFAULT_VIEW);
    EXPECT_NE(0u, view->GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(0u, view->GetStyle() & WS_BORDER);
}

TEST_F(FormView, ItShowsItsValuesAndTakesThemBack)
{
    WeightForm* const view = Show();
    EXPECT_EQ("Baggage", TextOf(*view, IDC_NAME));
    EXPECT_EQ("120", TextOf(*view, IDC_WEIGHT));
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), view->IsDlgButtonChecked(IDC_FREIGHT));
    view->SetDlgItemText(IDC_NAME, "Passenger");
    view->SetDlgItemInt(IDC_WEIGHT, 175);
    view->CheckDlgButton(IDC_FREIGHT, BST_UNCHECKED);
    EXPECT_TRUE(view->UpdateData());
    EXPECT_EQ("Passenger", view->name);
    EXPECT_EQ(175, view->weight);
    EXPECT_FALSE(view->freight);
}

TEST_F(FormView, ItHearsItsControls)
{
    WeightForm* const view = Show();
    view->GetDlgItem(IDC_COMPUTE)->SendMessage(BM_CLICK);
    EXPECT_EQ(1, view->computed);
}

TEST_F(FormView, TabGoesThroughItsControls)
{
    WeightForm* const view = Show();
    view->SetFocus();
    EXPECT_EQ(IDC_NAME, FocusedId()) << "the first one";
    Press(*view, VK_TAB);
    EXPECT_EQ(IDC_WEIGHT, FocusedId());
    Press(*view, VK_TAB);
    EXPECT_EQ(IDC_FREIGHT, FocusedId());
    Press(*view, VK_TAB);
    EXPECT_EQ(IDC_KIND, FocusedId());
    Press(*view, VK_TAB);
    EXPECT_EQ(IDC_COMPUTE, FocusedId());
    Press(*view, VK_TAB);
    EXPECT_EQ(IDC_NAME, FocusedId());
}

TEST_F(FormView, MnemonicsAndEscapeLeaveItAlive)
{
    WeightForm* const view = Show();
    view->SetFocus();
    Press(*view, 'w', WM_SYSCHAR);
    EXPECT_EQ(IDC_WEIGHT, FocusedId());
    Press(*view, VK_ESCAPE);
    Press(*view, VK_RETURN);
    EXPECT_TRUE(::IsWindow(view->m_hWnd));
    EXPECT_TRUE(view->IsWindowVisible());
}

TEST_F(FormView, TheFocusGoesBackToTheControlThatHadIt)
{
    WeightForm* const view = Show();
    m_frame->SetActiveView(view, FALSE);
    view->GetDlgItem(IDC_KIND)->SetFocus();
    view->OnActivateView(FALSE, nullptr, view);
    ::SetFocus(m_frame->m_hWnd);
    view->SetFocus();
    EXPECT_EQ(IDC_KIND, FocusedId());
    view->OnActivateView(FALSE, nullptr, view);
    view->GetDlgItem(IDC_KIND)->EnableWindow(FALSE);
    ::SetFocus(nullptr);
    view->SetFocus();
    EXPECT_EQ(IDC_NAME, FocusedId()) << "a disabled control cannot have it";
}

TEST_F(FormView, ItScrollsOverItsTemplate)
{
    WeightForm* const view = Show();
    const CSize whole = view->GetTotalSize();
    EXPECT_GT(whole.cx, 100);
    BOOL horizontal = TRUE;
    BOOL vertical = TRUE;
    view->CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(horizontal || vertical);
    const CRect before = PlaceInParent(view->GetDlgItem(IDC_COMPUTE)->m_hWnd);
    view->MoveWindow(0, 0, 100, 80);
    view->CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal && vertical);
    view->SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 30));
    EXPECT_EQ(before.top - 30, PlaceInParent(view->GetDlgItem(IDC_COMPUTE)->m_hWnd).top);
    view->MoveWindow(0, 0, 400, 300);
    EXPECT_EQ(before, PlaceInParent(view->GetDlgItem(IDC_COMPUTE)->m_hWnd));
}

TEST_F(FormView, ItIsMadeByAFrameAndJoinsItsDocument)
{
    FormDocument document;
    document.m_bAutoDelete = FALSE;
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(WeightForm);
    context.m_pCurrentDoc = &document;
    auto* const view = DYNAMIC_DOWNCAST(WeightForm, m_frame->CreateView(&context));
    ASSERT_NE(nullptr, view);
    EXPECT_EQ(&document, view->GetDocument());
    m_frame->InitialUpdateFrame(&document, TRUE);
    m_frame->RecalcLayout();
    EXPECT_EQ(view, m_frame->GetActiveView());
    EXPECT_EQ("Baggage", TextOf(*view, IDC_NAME)) << "it got its first content";
    EXPECT_EQ(ClientSize(*m_frame), CSize(PlaceInParent(view->m_hWnd).Size()));
    view->DestroyWindow();
}

TEST_F(FormView, AnyWindowMayBeItsParent)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr);
    auto* const view = new WeightForm;
    ASSERT_TRUE(view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(5, 6, 205, 106), &parent, 77));
    view->SendMessage(WM_INITIALUPDATE);
    EXPECT_EQ("120", TextOf(*view, IDC_WEIGHT));
    EXPECT_EQ(nullptr, view->GetDocument());
    EXPECT_EQ(CRect(5, 6, 205, 106), PlaceInParent(view->m_hWnd));
    parent.DestroyWindow();
}

TEST_F(FormView, ItMayBeAWindowOfItsOwn)
{
    auto* const view = new WeightForm(IDD_WINDOW_OF_ITS_OWN);
    ASSERT_TRUE(view->Create(nullptr, nullptr, WS_VISIBLE, CRect(0, 0, 0, 0), nullptr, 0));
    EXPECT_EQ(0u, view->GetStyle() & WS_CHILD);
    EXPECT_TRUE(view->IsWindowVisible());
    EXPECT_GT(ClientSize(*view).cx, 100) << "its template's size";
    EXPECT_TRUE(view->DestroyWindow());
}

TEST_F(FormView, WithoutTemplateItIsNotCreated)
{
    auto* const view = new WeightForm(4999);
    EXPECT_FALSE(view->Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 9, 9), m_frame, 1));
    EXPECT_EQ(0, g_living) << "and is gone";
}

TEST_F(FormView, ScreenReadersAskTheSystem)
{
    WeightForm* const view = Show();
    long count = 0;
    VARIANT variant{};
    BSTR name = nullptr;
    IDispatch* dispatch = nullptr;
    EXPECT_EQ(S_FALSE, view->accHitTest(0, 0, &variant));
    EXPECT_EQ(S_FALSE, view->accLocation(&count, &count, &count, &count, variant));
    EXPECT_EQ(S_FALSE, view->get_accChild(variant, &dispatch));
    EXPECT_EQ(S_FALSE, view->get_accChildCount(&count));
    EXPECT_EQ(S_FALSE, view->get_accName(variant, &name));
}
