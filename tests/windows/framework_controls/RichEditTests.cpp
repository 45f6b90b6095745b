#include "framework/controls/CRichEditCtrl.h"
#include "tests/windows/framework_controls/ControlHost.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace
{
class RichEditTest : public ControlTest
{
protected:
    RichEditTest()
    {
        m_edit.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL, m_rect, &m_host, kId);
    }

    void Write(const std::string& text)
    {
        m_edit.SetSel(0, -1);
        m_edit.ReplaceSel(text.c_str());
    }

    CRichEditCtrl m_edit;
};

std::string Lines(int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += "line " + std::to_string(i) + "\r\n";
    return all;
}

/// Gives a text in pieces, then takes one.
struct Flow
{
    std::string text;
    std::size_t at = 0;

    static DWORD CALLBACK Give(DWORD_PTR flow, LPBYTE buffer, LONG room, LONG* given)
    {
        auto& self = *reinterpret_cast<Flow*>(flow);
        const std::size_t most = std::min<std::size_t>(static_cast<std::size_t>(room), 100);
        const std::size_t size = std::min(most, self.text.size() - self.at);
        std::memcpy(buffer, self.text.data() + self.at, size);
        self.at += size;
        *given = static_cast<LONG>(size);
        return 0;
    }
    static DWORD CALLBACK Take(DWORD_PTR flow, LPBYTE buffer, LONG size, LONG* taken)
    {
        reinterpret_cast<Flow*>(flow)->text.append(reinterpret_cast<const char*>(buffer),
                                                   static_cast<std::size_t>(size));
        *taken = size;
        return 0;
    }
    static DWORD CALLBACK Fail(DWORD_PTR, LPBYTE, LONG, LONG* given)
    {
        *given = 0;
        return 17;
    }
};
} // namespace

TEST(RichEditLibraries, AreLoadedAndStay)
{
    EXPECT_TRUE(AfxInitRichEdit());
    EXPECT_TRUE(AfxInitRichEdit());
    EXPECT_NE(nullptr, ::GetModuleHandle("riched32.dll"));
    EXPECT_TRUE(AfxInitRichEdit2());
    EXPECT_NE(nullptr, ::GetModuleHandle("riched20.dll"));
    WNDCLASSA windowClass{};
    EXPECT_TRUE(::GetClassInfoA(nullptr, "RICHEDIT", &windowClass));
    EXPECT_TRUE(::GetClassInfoA(nullptr, "RichEdit20A", &windowClass));
}

TEST_F(RichEditTest, TextIsReplacedAndRead)
{
    Write("Denver to Aspen");
    EXPECT_EQ(15, m_edit.GetTextLength());
    m_edit.SetSel(10, 15);
    EXPECT_EQ("Aspen", m_edit.GetSelText());
    m_edit.ReplaceSel("Vail");
    CString text;
    EXPECT_EQ(14, m_edit.GetTextRange(0, 14, text));
    EXPECT_EQ("Denver to Vail", text);
    EXPECT_EQ(6, m_edit.GetTextRange(0, 6, text));
    EXPECT_EQ("Denver", text);
    EXPECT_EQ(4, m_edit.GetTextRange(10, -1, text)) << "to the end";
    EXPECT_EQ("Vail", text);
}

TEST_F(RichEditTest, TheSelectionIsGivenInBothForms)
{
    Write("0123456789");
    m_edit.SetSel(2, 5);
    long start = -1;
    long end = -1;
    m_edit.GetSel(start, end);
    EXPECT_EQ(2, start);
    EXPECT_EQ(5, end);
    CHARRANGE range{1, 4};
    m_edit.SetSel(range);
    CHARRANGE read{};
    m_edit.GetSel(read);
    EXPECT_EQ(1, read.cpMin);
    EXPECT_EQ(4, read.cpMax);
    m_edit.SetSel(0, -1);
    m_edit.GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_GE(end, 10) << "all";
    EXPECT_NE(0, m_edit.GetSelectionType() & SEL_TEXT);
}

TEST_F(RichEditTest, LinesAreCountedMeasuredAndScrolled)
{
    Write(Lines(100));
    EXPECT_EQ(101, m_edit.GetLineCount());
    char buffer[64];
    const int length = m_edit.GetLine(7, buffer, sizeof(buffer));
    EXPECT_EQ("line 7", std::string(buffer, static_cast<std::size_t>(length)).substr(0, 6));
    EXPECT_EQ(7, m_edit.LineFromChar(m_edit.LineIndex(7)));
    EXPECT_EQ(6, m_edit.LineLength(m_edit.LineIndex(7)));
    m_edit.SetSel(0, 0);
    m_edit.SendMessage(EM_SCROLLCARET);
    EXPECT_EQ(0, m_edit.GetFirstVisibleLine());
    m_edit.LineScroll(40);
    EXPECT_EQ(40, m_edit.GetFirstVisibleLine());
    m_edit.LineScroll(-15);
    EXPECT_EQ(25, m_edit.GetFirstVisibleLine());
}

TEST_F(RichEditTest, CharactersHavePlaces)
{
    Write("abc\r\ndef");
    const CPoint first = m_edit.GetCharPos(0);
    const CPoint second = m_edit.PosFromChar(1);
    EXPECT_GT(second.x, first.x);
    EXPECT_EQ(second.y, first.y);
    EXPECT_EQ(1, m_edit.CharFromPos(CPoint(second.x + 1, second.y + 1)));
}

TEST_F(RichEditTest, MoreThanTheUsualLimitIsTakenWhenItIsRaised)
{
    m_edit.LimitText(300000);
    EXPECT_EQ(300000, m_edit.GetLimitText());
    std::string text;
    for (int i = 0; i < 1300; ++i)
        text += std::string(98, 'x') + "\r\n";
    Write(text);
    EXPECT_EQ(130000, m_edit.GetTextLength());
    EXPECT_EQ(130000, m_edit.GetTextLengthEx(GTL_NUMCHARS | GTL_USECRLF));
    EXPECT_EQ(130000 - 1300, m_edit.GetTextLengthEx(GTL_NUMCHARS)) << "a line's end is one character";
}

TEST_F(RichEditTest, AReadOnlyEditRefusesKeys)
{
    Write("kept");
    m_edit.SetReadOnly();
    EXPECT_NE(0u, m_edit.GetStyle() & ES_READONLY);
    m_edit.SetFocus();
    m_edit.SendMessage(WM_CHAR, 'x', 1);
    EXPECT_EQ(4, m_edit.GetTextLength());
    m_edit.SetReadOnly(FALSE);
    m_edit.SetSel(4, 4);
    m_edit.SendMessage(WM_CHAR, 'x', 1);
    EXPECT_EQ(5, m_edit.GetTextLength());
}

TEST_F(RichEditTest, BackgroundAndRectangleAreSet)
{
    m_edit.SetBackgroundColor(FALSE, RGB(200, 0, 0));
    m_edit.RedrawWindow();
    const HDC dc = ::GetDC(m_edit.m_hWnd);
    EXPECT_EQ(RGB(200, 0, 0), ::GetPixel(dc, 60, 60));
    m_edit.SetBackgroundColor(TRUE, 0);
    m_edit.RedrawWindow();
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), ::GetPixel(dc, 60, 60));
    ::ReleaseDC(m_edit.m_hWnd, dc);
    const CRect wanted(10, 12, 90, 80);
    m_edit.SetRect(&wanted);
    CRect rect;
    m_edit.GetRect(&rect);
    EXPECT_EQ(wanted, rect);
}

TEST_F(RichEditTest, CharactersHaveFormats)
{
    Write("plain slant"); // the usual font may be bold
    m_edit.SetSel(6, 11);
    CHARFORMATA slanted{};
    slanted.dwMask = CFM_ITALIC | CFM_COLOR;
    slanted.dwEffects = CFE_ITALIC;
    slanted.crTextColor = RGB(0, 0, 255);
    EXPECT_TRUE(m_edit.SetSelectionCharFormat(slanted));
    CHARFORMATA read{};
    m_edit.GetSelectionCharFormat(read);
    EXPECT_EQ(CFE_ITALIC, read.dwEffects & CFE_ITALIC);
    EXPECT_EQ(RGB(0, 0, 255), read.crTextColor);
    m_edit.SetSel(0, 5);
    m_edit.GetSelectionCharFormat(read);
    EXPECT_EQ(0u, read.dwEffects & CFE_ITALIC);
    m_edit.SetSel(0, 11);
    EXPECT_EQ(0u, m_edit.GetSelectionCharFormat(read) & CFM_ITALIC) << "not the same everywhere";
    CHARFORMATA underlined{};
    underlined.dwMask = CFM_UNDERLINE;
    underlined.dwEffects = CFE_UNDERLINE;
    EXPECT_TRUE(m_edit.SetDefaultCharFormat(underlined));
    CHARFORMATA usual{};
    m_edit.GetDefaultCharFormat(usual);
    EXPECT_EQ(CFE_UNDERLINE, usual.dwEffects & CFE_UNDERLINE);
}

TEST_F(RichEditTest, ParagraphsHaveFormats)
{
    Write("centred");
    PARAFORMAT centred{};
    centred.dwMask = PFM_ALIGNMENT;
    centred.wAlignment = PFA_CENTER;
    EXPECT_TRUE(m_edit.SetParaFormat(centred));
    PARAFORMAT read{};
    m_edit.GetParaFormat(read);
    EXPECT_EQ(PFA_CENTER, read.wAlignment);
}

TEST_F(RichEditTest, TextStreamsInAndOut)
{
    Flow in{Lines(50)};
    EDITSTREAM from{reinterpret_cast<DWORD_PTR>(&in), 0, Flow::Give};
    EXPECT_EQ(static_cast<long>(in.text.size()), m_edit.StreamIn(SF_TEXT, from));
    EXPECT_EQ(0u, from.dwError);
    EXPECT_EQ(51, m_edit.GetLineCount());
    Flow out{""};
    EDITSTREAM to{reinterpret_cast<DWORD_PTR>(&out), 0, Flow::Take};
    m_edit.StreamOut(SF_TEXT, to);
    EXPECT_EQ(in.text, out.text);
}

TEST_F(RichEditTest, FormattedTextStreamsIn)
{
    Flow in{"{\\rtf1 one {\\i two}}"};
    EDITSTREAM from{reinterpret_cast<DWORD_PTR>(&in), 0, Flow::Give};
    m_edit.StreamIn(SF_RTF, from);
    CString text;
    m_edit.GetTextRange(0, 7, text);
    EXPECT_EQ("one two", text);
    m_edit.SetSel(4, 7);
    CHARFORMATA read{};
    m_edit.GetSelectionCharFormat(read);
    EXPECT_EQ(CFE_ITALIC, read.dwEffects & CFE_ITALIC);
}

TEST_F(RichEditTest, AStreamThatFailsTellsItsError)
{
    EDITSTREAM from{0, 0, Flow::Fail};
    m_edit.StreamIn(SF_TEXT, from);
    EXPECT_EQ(17u, from.dwError);
}

TEST_F(RichEditTest, TextIsFound)
{
    Write("VOR NDB VOR");
    FINDTEXTEXA find{{1, -1}, "VOR", {}};
    EXPECT_EQ(8, m_edit.FindText(FR_DOWN | FR_MATCHCASE, &find));
    EXPECT_EQ(8, find.chrgText.cpMin);
    EXPECT_EQ(11, find.chrgText.cpMax);
    FINDTEXTEXA missing{{0, -1}, "ILS", {}};
    EXPECT_EQ(-1, m_edit.FindText(FR_DOWN, &missing));
}

TEST_F(RichEditTest, EditingIsUndone)
{
    EXPECT_FALSE(m_edit.GetModify());
    m_edit.ReplaceSel("typed", TRUE);
    EXPECT_TRUE(m_edit.GetModify());
    EXPECT_TRUE(m_edit.CanUndo());
    EXPECT_TRUE(m_edit.Undo());
    EXPECT_EQ(0, m_edit.GetTextLength());
    m_edit.EmptyUndoBuffer();
    EXPECT_FALSE(m_edit.CanUndo());
    m_edit.SetModify(FALSE);
    EXPECT_FALSE(m_edit.GetModify());
}

TEST_F(RichEditTest, TheParentHearsWhatItAskedFor)
{
    EXPECT_EQ(0, m_edit.GetEventMask());
    m_edit.SetEventMask(ENM_CHANGE);
    EXPECT_EQ(ENM_CHANGE, m_edit.GetEventMask());
    EXPECT_EQ(static_cast<DWORD>(ENM_CHANGE), m_edit.SetEventMask(0));
}
