#include "apps/planner/shots/Picture.h"
#include "tests/support/DialogTemplateBuilder.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/gallery/GalleryTest.h"

// The check of a window's look finds what is wrong with real windows.
namespace vorn::test
{
namespace
{

constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;

/// A dialog of 150 by 100 dialog units with what a test puts into it.
class Looked : public testing::Test
{
protected:
    ~Looked() override
    {
        m_dialog.DestroyWindow();
    }
    DialogTemplateBuilder& Template()
    {
        return m_template.Style(WS_POPUP | WS_CAPTION).At({20, 20, 150, 100}).Font(8, "MS Shell Dlg");
    }
    std::string Faults()
    {
        const std::vector<std::uint8_t> bytes = m_template.Bytes();
        EXPECT_TRUE(m_dialog.CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(bytes.data())));
        m_dialog.ShowWindow(SW_SHOW);
        return FaultsText(m_dialog);
    }

    DialogTemplateBuilder m_template;
    CDialog m_dialog;
};

TEST_F(Looked, AWellMadeDialogHasNoFault)
{
    Template()
        .Add(DialogTemplateBuilder::Button, 1, kChild | BS_GROUPBOX, {5, 5, 140, 60}, "Route")
        .Add(DialogTemplateBuilder::Static, 2, kChild, {10, 20, 60, 10}, "&Departure")
        .Add(DialogTemplateBuilder::Edit, 3, kChild | WS_BORDER, {75, 18, 60, 13}, "a text that is much longer than it")
        .Add(DialogTemplateBuilder::ComboBox, 4, kChild | CBS_DROPDOWN, {10, 40, 60, 80})
        .Add(DialogTemplateBuilder::Button, 5, kChild, {90, 80, 50, 14}, "OK");
    EXPECT_EQ(Faults(), "");
}

TEST_F(Looked, AControlBeyondTheEdgeIsCut)
{
    Template().Add(DialogTemplateBuilder::Edit, 7, kChild, {100, 5, 60, 13});
    EXPECT_EQ(Faults(), "Edit 7 \"\" is cut by its parent\n");
}

TEST_F(Looked, AHiddenControlHasNoFault)
{
    Template().Add(DialogTemplateBuilder::Edit, 7, kChild, {100, 5, 60, 13});
    EXPECT_NE(Faults(), "");
    m_dialog.GetDlgItem(7)->ShowWindow(SW_HIDE);
    EXPECT_EQ(FaultsText(m_dialog), "");
}

TEST_F(Looked, TwoControlsOverlap)
{
    Template()
        .Add(DialogTemplateBuilder::Edit, 7, kChild, {5, 5, 60, 13})
        .Add(DialogTemplateBuilder::Button, 8, kChild, {60, 10, 40, 14}, "Add");
    EXPECT_EQ(Faults(), "Edit 7 \"\" and Button 8 \"Add\" overlap\n");
}

TEST_F(Looked, ALabelIsTooNarrowForItsText)
{
    Template().Add(DialogTemplateBuilder::Static, 9, kChild, {5, 5, 20, 10}, "Departure airport");
    EXPECT_NE(Faults().find("Static 9 \"Departure airport\" is "), std::string::npos);
}

TEST_F(Looked, ALabelOfTwoLinesIsTooLowForThree)
{
    Template().Add(DialogTemplateBuilder::Static, 9, kChild, {5, 5, 60, 18},
                   "One and two and three and four and five and six and seven and eight");
    EXPECT_NE(Faults().find(", its text needs "), std::string::npos);
}

TEST_F(Looked, AButtonAndACheckBoxAreTooNarrowForTheirTexts)
{
    Template()
        .Add(DialogTemplateBuilder::Button, 1, kChild, {5, 5, 30, 14}, "Swap both ends")
        .Add(DialogTemplateBuilder::Button, 2, kChild | BS_AUTOCHECKBOX, {5, 30, 30, 10}, "Print the log");
    const std::string faults = Faults();
    EXPECT_NE(faults.find("Button 1 \"Swap both ends\" is "), std::string::npos) << faults;
    EXPECT_NE(faults.find("Button 2 \"Print the log\" is "), std::string::npos) << faults;
}

TEST_F(Looked, ATextThatMayBeCutMayBeTooLong)
{
    Template().Add(DialogTemplateBuilder::Static, 9, kChild | SS_ENDELLIPSIS, {5, 5, 20, 10}, "Departure airport");
    EXPECT_EQ(Faults(), "");
}

TEST_F(Looked, ThePagesOfATabControlLieInIt)
{
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_TAB_CLASSES};
    InitCommonControlsEx(&classes);
    Template()
        .Add(DialogTemplateBuilder::Edit, 7, kChild, {20, 30, 60, 13})
        .Add("SysTabControl32", 10, kChild | WS_CLIPSIBLINGS, {5, 5, 140, 90});
    EXPECT_EQ(Faults(), "");
}

TEST_F(Looked, AWindowPartlyBeyondTheScreenIsNotWhole)
{
    Template();
    EXPECT_EQ(Faults(), "");
    EXPECT_TRUE(planner::IsWholeOnScreen(m_dialog));
    const CSize screen(GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN));
    const CSize size = WindowRect(m_dialog).Size();
    for (const CPoint corner : {CPoint(-1, 0), CPoint(0, -1), CPoint(screen.cx - size.cx + 1, 0),
                                CPoint(0, screen.cy - size.cy + 1), CPoint(9000, 9000)})
    {
        m_dialog.SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        EXPECT_FALSE(planner::IsWholeOnScreen(m_dialog)) << corner.x << ' ' << corner.y;
    }
    m_dialog.SetWindowPos(nullptr, screen.cx - size.cx, screen.cy - size.cy, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_TRUE(planner::IsWholeOnScreen(m_dialog));
}

TEST_F(Looked, APictureHasTheSizeOfItsWindowAndGoesOntoTheContactSheet)
{
    ScratchFolder folder;
    Template().Add(DialogTemplateBuilder::Button, 1, kChild, {5, 5, 60, 14}, "OK");
    EXPECT_EQ(Faults(), "");
    DIB picture;
    ASSERT_TRUE(planner::TakePicture({m_dialog.m_hWnd}, picture));
    EXPECT_EQ(picture.Width(), WindowRect(m_dialog).Width());
    EXPECT_EQ(picture.Height(), WindowRect(m_dialog).Height());
    ASSERT_TRUE(picture.WritePNG(folder.File("one.png").c_str()));
    ASSERT_TRUE(picture.WritePNG(folder.File("two.png").c_str()));
    const std::string one = folder.File("one.png");
    const std::string path = one.substr(0, one.find_last_of('\\'));
    ASSERT_TRUE(planner::WriteContactSheet(path));
    DIB sheet;
    ASSERT_TRUE(sheet.ReadPNG((path + "\\contact.png").c_str()));
    EXPECT_GT(sheet.Width(), 2 * 260);
    EXPECT_EQ(planner::WriteContactSheet(path + "\\no such folder"), false);
}

} // namespace
} // namespace vorn::test
