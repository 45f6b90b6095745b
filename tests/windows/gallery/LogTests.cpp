#include "apps/planner/FlightLog.h"
#include "apps/planner/UnitChoices.h"
#include "apps/planner/resource.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/gallery/GalleryTest.h"

// The flight log: a form beside the other windows, without a loop of its own.
namespace vorn::test
{
namespace
{

class GalleryLog : public GalleryTest
{
protected:
    GalleryLog() : m_open(Open(GalleryWindowNamed("Log")))
    {
    }
    ~GalleryLog() override
    {
        m_open.reset(); // while its settings are there
    }

    HWND Control(int id)
    {
        return ::GetDlgItem(m_open->ControlsOwner(), id);
    }
    /// A key as the application's loop handles it.
    void Press(WPARAM key)
    {
        ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 0);
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
            AfxGetThread()->PumpMessage();
    }
    void Type(const std::string& text)
    {
        for (const char key : text)
            ::SendMessage(::GetFocus(), WM_CHAR, static_cast<WPARAM>(key), 0);
    }
    std::string Cell(int line, int column)
    {
        const auto& list = static_cast<const CListCtrl&>(*CWnd::FromHandle(Control(IDC_LOG_LIST)));
        return list.GetItemText(line, column).GetString();
    }

    std::unique_ptr<OpenWindow> m_open;
};

TEST_F(GalleryLog, TabWalksFromTheTimeOverTheLegsToTheNotes)
{
    ::SetFocus(Control(IDC_LOG_TIME));
    std::vector<int> foci;
    for (int i = 0; i < 3; ++i)
    {
        Press(VK_TAB);
        foci.push_back(::GetDlgCtrlID(::GetFocus()));
    }
    EXPECT_EQ(foci, (std::vector<int>{IDC_LOG_LIST, IDC_LOG_NOTES, IDC_LOG_TIME}));
}

TEST_F(GalleryLog, TheTimesOverFollowTheTimeOfDeparture)
{
    EXPECT_EQ(Cell(0, 5), "09:39"); // 39 minutes of the first leg
    ::SetFocus(Control(IDC_LOG_TIME));
    ::SendMessage(Control(IDC_LOG_TIME), EM_SETSEL, 0, -1);
    Type("2330");
    EXPECT_EQ(Cell(0, 5), "00:09");
    EXPECT_EQ(m_data.plan.departureTime, "0900") << "while it is being typed";
    Press(VK_TAB);
    EXPECT_EQ(m_data.plan.departureTime, "2330");
}

TEST_F(GalleryLog, DistancesAreInTheUnitOfTheUser)
{
    auto& list = static_cast<CListCtrl&>(*CWnd::FromHandle(Control(IDC_LOG_LIST)));
    const auto heading = [&list]
    {
        char text[16] = {};
        LVCOLUMN column{};
        column.mask = LVCF_TEXT;
        column.pszText = text;
        column.cchTextMax = sizeof text;
        list.GetColumn(3, &column);
        return std::string(text);
    };
    EXPECT_EQ(heading(), "NM");
    const double miles = std::stod(Cell(0, 3));
    planner::StoreUnit(planner::UnitChoices()[0], UNIT_KM);
    static_cast<planner::FlightLogFrame&>(m_open->Window()).View().Refresh();
    EXPECT_EQ(heading(), "KM");
    EXPECT_NEAR(std::stod(Cell(0, 3)), miles * 1.852, 0.15);
    EXPECT_NE(TextOf(Control(IDC_LOG_TOTAL)).find(" KM, "), std::string::npos);
}

TEST_F(GalleryLog, HeadingsStandOverTheirNumbers)
{
    const auto header = reinterpret_cast<HWND>(::SendMessage(Control(IDC_LOG_LIST), LVM_GETHEADER, 0, 0));
    for (WPARAM column = 0; column < 6; ++column)
    {
        HDITEM item{};
        item.mask = HDI_FORMAT;
        ASSERT_TRUE(::SendMessage(header, HDM_GETITEM, column, reinterpret_cast<LPARAM>(&item)));
        EXPECT_EQ(item.fmt & HDF_JUSTIFYMASK, column < 2 ? HDF_LEFT : HDF_RIGHT) << column;
    }
}

TEST_F(GalleryLog, NotesAreOfSeveralLinesAndKeptWhenTheyAreLeft)
{
    ::SetFocus(Control(IDC_LOG_NOTES));
    Type("Call ahead");
    Press(VK_RETURN);
    Type("Ice");
    EXPECT_EQ(::GetFocus(), Control(IDC_LOG_NOTES));
    ::SetFocus(Control(IDC_LOG_LIST));
    EXPECT_EQ(m_data.plan.notes, "Call ahead\r\nIce");
}

TEST_F(GalleryLog, EscapeClosesNothing)
{
    for (const int id : {IDC_LOG_TIME, IDC_LOG_LIST, IDC_LOG_NOTES})
    {
        ::SetFocus(Control(id));
        Press(VK_ESCAPE);
        ASSERT_TRUE(::IsWindow(m_open->ControlsOwner())) << id;
        EXPECT_TRUE(::IsWindowVisible(m_open->ControlsOwner())) << id;
        EXPECT_TRUE(m_open->Window().IsWindowVisible()) << id;
    }
}

TEST_F(GalleryLog, TheFrameIsAsSmallAsItsFormAllows)
{
    SizeTo(m_open->Window(), 1, 1);
    MINMAXINFO ofForm{};
    ::SendMessage(m_open->ControlsOwner(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&ofForm));
    CRect client;
    m_open->Window().GetClientRect(&client);
    EXPECT_EQ(client.Size(), CSize(ofForm.ptMinTrackSize.x, ofForm.ptMinTrackSize.y));
    EXPECT_GT(client.Width(), 200);
}

TEST_F(GalleryLog, HasTheIconOfItsProgram)
{
    const auto icon = reinterpret_cast<HICON>(m_open->Window().SendMessage(WM_GETICON, ICON_SMALL));
    EXPECT_NE(icon, nullptr);
}

} // namespace
} // namespace vorn::test
