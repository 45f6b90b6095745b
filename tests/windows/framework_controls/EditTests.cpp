#include "framework/controls/CEdit.h"
#include "tests/windows/framework_controls/ControlHost.h"

namespace
{
class EditTest : public ControlTest
{
protected:
    void Make(DWORD style, const char* text)
    {
        ASSERT_TRUE(m_edit.Create(WS_CHILD | WS_VISIBLE | style, m_rect, &m_host, kId));
        m_edit.SetWindowText(text);
    }

    std::string Text() const
    {
        CString text;
        m_edit.GetWindowText(text);
        return text.GetString();
    }

    CEdit m_edit;
};
} // namespace

TEST_F(EditTest, SelectionIsSetReadAndReplaced)
{
    Make(ES_AUTOHSCROLL, "heading 090");
    m_edit.SetSel(8, 11);
    int start = -1;
    int end = -1;
    m_edit.GetSel(start, end);
    EXPECT_EQ(start, 8);
    EXPECT_EQ(end, 11);
    EXPECT_EQ(m_edit.GetSel(), static_cast<DWORD>(MAKELONG(8, 11)));
    m_edit.ReplaceSel("270", TRUE);
    EXPECT_EQ(Text(), "heading 270");
    EXPECT_TRUE(m_edit.CanUndo());
    m_edit.Undo();
    EXPECT_EQ(Text(), "heading 090");
}

TEST_F(EditTest, PackedSelectionKnowsMinusOne)
{
    Make(ES_AUTOHSCROLL, "abc");
    m_edit.SetSel(static_cast<DWORD>(MAKELONG(0, -1)));
    EXPECT_EQ(m_edit.GetSel(), static_cast<DWORD>(MAKELONG(0, 3)));
}

TEST_F(EditTest, PackedSelectionReachesFarIntoLongTexts)
{
    Make(ES_MULTILINE, "");
    m_edit.SendMessage(EM_SETLIMITTEXT, 100000);
    std::string text;
    while (text.size() < 60000)
        text += "a line\r\n";
    m_edit.SetWindowText(text.c_str());
    m_edit.SetSel(static_cast<DWORD>(MAKELONG(40000, 50000)));
    int start = -1;
    int end = -1;
    m_edit.GetSel(start, end);
    EXPECT_EQ(start, 40000);
    EXPECT_EQ(end, 50000);
    m_edit.SetSel(m_edit.GetSel());
    m_edit.GetSel(start, end);
    EXPECT_EQ(start, 40000);
    EXPECT_EQ(end, 50000);
}

TEST_F(EditTest, ReplacementWithoutUndoCannotBeUndone)
{
    Make(ES_AUTOHSCROLL, "abc");
    m_edit.SetSel(0, -1);
    m_edit.ReplaceSel("x");
    EXPECT_FALSE(m_edit.CanUndo());
}

TEST_F(EditTest, LinesAreCountedAndCopied)
{
    Make(ES_MULTILINE, "one\r\ntwo and more\r\nthree");
    EXPECT_EQ(m_edit.GetLineCount(), 3);
    EXPECT_EQ(m_edit.LineIndex(1), 5);
    EXPECT_EQ(m_edit.LineFromChar(6), 1);
    EXPECT_EQ(m_edit.LineLength(5), 12);
    char buffer[16] = {};
    EXPECT_EQ(m_edit.GetLine(1, buffer, sizeof(buffer)), 12);
    EXPECT_EQ(std::string(buffer, 12), "two and more");
}

TEST_F(EditTest, LineBufferIsNeverOverrun)
{
    Make(ES_MULTILINE, "abcdefgh");
    char buffer[6] = {'?', '?', '?', '?', '?', '?'};
    EXPECT_EQ(m_edit.GetLine(0, buffer, 1), 0);
    EXPECT_EQ(buffer[0], '?');
    EXPECT_EQ(m_edit.GetLine(0, buffer, 4), 4);
    EXPECT_EQ(std::string(buffer, 6), "abcd??");
}

TEST_F(EditTest, ModifyFlagAndReadOnly)
{
    Make(0, "x");
    EXPECT_FALSE(m_edit.GetModify());
    m_edit.SetModify();
    EXPECT_TRUE(m_edit.GetModify());
    EXPECT_TRUE(m_edit.SetReadOnly());
    EXPECT_TRUE(m_edit.GetStyle() & ES_READONLY);
}

TEST_F(EditTest, LimitsPasswordAndMargins)
{
    Make(ES_PASSWORD, "");
    m_edit.SetLimitText(12);
    EXPECT_EQ(m_edit.GetLimitText(), 12u);
    m_edit.SetPasswordChar('#');
    EXPECT_EQ(m_edit.GetPasswordChar(), '#');
    m_edit.SetMargins(3, 5);
    EXPECT_EQ(m_edit.GetMargins(), static_cast<DWORD>(MAKELONG(3, 5)));
}

TEST_F(EditTest, FormattingRectangleOfSeveralLines)
{
    Make(ES_MULTILINE, "text");
    const RECT wanted{4, 4, 100, 60};
    m_edit.SetRect(&wanted);
    RECT rect{};
    m_edit.GetRect(&rect);
    EXPECT_EQ(rect.left, 4);
    EXPECT_EQ(rect.top, 4);
    EXPECT_EQ(rect.right, 100);
}

TEST_F(EditTest, PositionsOfCharactersGrow)
{
    Make(0, "mmmm");
    const CPoint first = m_edit.PosFromChar(0);
    const CPoint third = m_edit.PosFromChar(2);
    EXPECT_GT(third.x, first.x);
    EXPECT_EQ(LOWORD(m_edit.CharFromPos(CPoint(third.x + 1, third.y + 1))), 2);
}

TEST_F(EditTest, ClipboardRoundTrip)
{
    Make(ES_AUTOHSCROLL, "squawk");
    m_edit.SetSel(0, -1);
    m_edit.Cut();
    EXPECT_EQ(Text(), "");
    m_edit.Paste();
    m_edit.Paste();
    EXPECT_EQ(Text(), "squawksquawk");
}
