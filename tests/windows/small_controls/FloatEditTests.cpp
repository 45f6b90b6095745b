#include "tests/support/DialogDriver.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/small_controls/ControlDialog.h"
#include "toolkit/FloatEdit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using namespace vorn::test;

namespace
{
class NumberField : public testing::Test
{
protected:
    NumberField()
    {
        m_edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(10, 10, 150, 30), &m_dialog, 7);
        m_other.Create(WS_CHILD | WS_VISIBLE, CRect(10, 50, 150, 70), &m_dialog, 8);
        m_other.SetFocus();
    }

    std::string Text() const
    {
        return TextOf(m_edit.m_hWnd);
    }

    void Type(const std::string& keys)
    {
        for (const char key : keys)
        {
            m_edit.SendMessage(WM_CHAR, static_cast<unsigned char>(key), 1);
        }
    }

    /// Pastes, and answers the message box that comes. @return its text.
    std::string PasteRefused(const std::string& text)
    {
        SetClipboard(text);
        std::string said;
        DialogDriver driver(
            [&said]
            {
                const HWND box = FindDialog(HostCaption().c_str());
                if (box == nullptr)
                {
                    return false;
                }
                said = TextOf(::GetDlgItem(box, 0xFFFF));
                ::PostMessage(box, WM_COMMAND, IDOK, 0);
                return true;
            });
        m_edit.SendMessage(WM_PASTE);
        EXPECT_TRUE(driver.IsDone());
        return said;
    }

    ControlDialog m_dialog;
    FloatEdit m_edit;
    CEdit m_other;
};
} // namespace

TEST_F(NumberField, ShowsItsNumberWithWhatStandsAroundIt)
{
    m_edit.SetPrefix("FL ");
    m_edit.SetSuffix(" (%s)");
    m_edit.SetValue(123.456);
    EXPECT_EQ("FL 123.46 (%s)", Text());
    EXPECT_EQ(123.46, m_edit.GetValue());
    m_edit.SetPrefix(nullptr);
    m_edit.SetSuffix("5 -");
    EXPECT_EQ("123.465 -", Text());
    EXPECT_EQ(123.46, m_edit.GetValue()) << "the text around it is no part of the number";
}

TEST_F(NumberField, ShowsThePlainNumberWhileItIsEdited)
{
    m_edit.SetSuffix(" kt");
    m_edit.SetValue(12.5);
    m_edit.SetFocus();
    EXPECT_EQ("12.5", Text());
    m_edit.SetSel(0, -1);
    Type("7.125");
    EXPECT_EQ("7.125", Text());
    EXPECT_EQ(7.13, m_edit.GetValue()) << "what stands there now";
    m_other.SetFocus();
    EXPECT_EQ("7.13 kt", Text());
    EXPECT_EQ(7.13, m_edit.GetValue());
}

TEST_F(NumberField, WhatWasSelectedStaysSelectedOfThePlainNumber)
{
    m_edit.SetPrefix("FL ");
    m_edit.SetSuffix(" ft");
    m_edit.SetValue(245);
    const auto selectedOf = [this](int start, int end)
    {
        m_other.SetFocus();
        m_edit.SetSel(start, end);
        m_edit.SetFocus();
        int first = -1;
        int last = -1;
        m_edit.GetSel(first, last);
        return std::pair(first, last);
    };
    EXPECT_EQ(selectedOf(0, -1), std::pair(0, 3)) << "as dialogs select a field on the way of TAB";
    EXPECT_EQ(selectedOf(5, 5), std::pair(2, 2));
    EXPECT_EQ(selectedOf(1, 4), std::pair(0, 1));
    EXPECT_EQ(selectedOf(7, 9), std::pair(3, 3)) << "behind the number";
}

TEST_F(NumberField, TakenOverWithTheFocusItIsBeingEdited)
{
    CEdit plain;
    plain.Create(WS_CHILD | WS_VISIBLE, CRect(10, 90, 150, 110), &m_dialog, 9);
    plain.SetFocus();
    FloatEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(plain.Detach()));
    edit.SetSuffix(" kt");
    edit.SetValue(122);
    EXPECT_EQ("122", TextOf(edit));
    m_other.SetFocus();
    EXPECT_EQ("122 kt", TextOf(edit));
}

TEST_F(NumberField, ATextThatIsNoNumberIsZero)
{
    m_edit.SetSuffix(" kt");
    for (const char* text : {"", "-", ".", "--5"})
    {
        m_edit.SetFocus();
        m_edit.SetWindowText(text);
        EXPECT_EQ(0, m_edit.GetValue()) << text;
        m_other.SetFocus();
        EXPECT_EQ("0 kt", Text());
    }
}

TEST_F(NumberField, DecimalsAreFromZeroToFifteen)
{
    m_edit.SetValue(2.5);
    m_edit.SetAttributes(0, true);
    EXPECT_EQ("3", Text());
    m_edit.SetAttributes(-4, true);
    EXPECT_EQ("3", Text());
    m_edit.SetAttributes(1, true);
    EXPECT_EQ("2.5", Text()) << "the number itself is kept";
    m_edit.SetAttributes(99, true);
    m_edit.SetValue(0.1);
    EXPECT_EQ("0.1", Text());
    EXPECT_EQ(-0.13, FloatEdit::RoundToDecimal(-0.125, 2));
}

TEST_F(NumberField, WhatIsNoNumberCountsAsZero)
{
    m_edit.SetValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ("0", Text());
    EXPECT_EQ(0, m_edit.GetValue());
    m_edit.SetValue(std::numeric_limits<double>::infinity());
    EXPECT_EQ("0", Text());
    EXPECT_TRUE(std::isnan(FloatEdit::RoundToDecimal(std::numeric_limits<double>::quiet_NaN(), 2)));
}

TEST_F(NumberField, OnlyCharactersOfANumberAreTyped)
{
    m_edit.SetFocus();
    m_edit.SetWindowText("");
    Type("1a2 -3.\x96.5,e");
    EXPECT_EQ("123.5", Text());
    m_edit.SetSel(0, 0);
    Type("-");
    EXPECT_EQ("-123.5", Text());
    Type("\b");
    EXPECT_EQ("123.5", Text());
}

TEST_F(NumberField, ASelectedPointMayBeReplacedByAnother)
{
    m_edit.SetFocus();
    m_edit.SetWindowText("1.25");
    m_edit.SetSel(0, 3);
    Type(".");
    EXPECT_EQ(".5", Text());
    m_edit.SetSel(2, 2);
    Type(".");
    EXPECT_EQ(".5", Text());
}

TEST_F(NumberField, WithoutDecimalsThereIsNoPoint)
{
    m_edit.SetAttributes(0, true);
    m_edit.SetFocus();
    m_edit.SetWindowText("");
    Type("1.5");
    EXPECT_EQ("15", Text());
    m_edit.SetAttributes(2, false);
    EXPECT_FALSE(m_edit.DoesCharacterPass('.', 0));
    m_edit.SetAttributes(2, true);
    EXPECT_TRUE(m_edit.DoesCharacterPass('.', 0));
    EXPECT_TRUE(m_edit.DoesCharacterPass('-', 0));
    EXPECT_FALSE(m_edit.DoesCharacterPass('-', 1));
    EXPECT_FALSE(m_edit.DoesCharacterPass(0x130, 1));
}

TEST_F(NumberField, PastesANumber)
{
    m_edit.SetFocus();
    m_edit.SetWindowText("100");
    m_edit.SetSel(1, 2);
    SetClipboard("2.5");
    m_edit.SendMessage(WM_PASTE);
    EXPECT_EQ("12.50", Text());
}

TEST_F(NumberField, RefusesToPasteAnythingElse)
{
    m_edit.SetFocus();
    m_edit.SetWindowText("12.345");
    m_edit.SetSel(1, 4);
    EXPECT_EQ("Format of the following value is not compatible with this control\n\"12a\"\nPaste Command Ignored.",
              PasteRefused("12a"));
    EXPECT_EQ("12.345", Text()) << "not even rounded by the box that took the focus";
    int start = 0;
    int end = 0;
    m_edit.GetSel(start, end);
    EXPECT_EQ(1, start);
    EXPECT_EQ(4, end);
    EXPECT_NE(std::string::npos, PasteRefused("1.2.3").find("\"1.2.3\""));
    EXPECT_NE(std::string::npos, PasteRefused("%s%n").find("\"%s%n\""));
    EXPECT_EQ("12.345", Text());
}

TEST_F(NumberField, AReadOnlyOnePastesNothing)
{
    m_edit.SetWindowText("1");
    m_edit.SetReadOnly();
    SetClipboard("abc");
    m_edit.SendMessage(WM_PASTE);
    EXPECT_EQ("1", Text());
}

TEST_F(NumberField, AnEmptyClipboardPastesNothing)
{
    m_edit.SetFocus();
    m_edit.SetWindowText("1");
    ASSERT_TRUE(::OpenClipboard(nullptr));
    ::EmptyClipboard();
    ::CloseClipboard();
    m_edit.SendMessage(WM_PASTE);
    EXPECT_EQ("1", Text());
}

TEST_F(NumberField, ABusyClipboardPastesNothing)
{
    SetClipboard("5");
    m_edit.SetFocus();
    m_edit.SetWindowText("1");
    m_edit.SetSel(0, 0);
    ASSERT_TRUE(::OpenClipboard(m_dialog.m_hWnd));
    const DWORD start = ::GetTickCount();
    m_edit.SendMessage(WM_PASTE);
    const DWORD time = ::GetTickCount() - start;
    ::CloseClipboard();
    EXPECT_EQ("1", Text());
    EXPECT_GE(time, 35U) << "five tries of ten milliseconds";
    EXPECT_LT(time, 2000U);
    m_edit.SendMessage(WM_PASTE);
    EXPECT_EQ("51", Text());
}

TEST_F(NumberField, PastesUpToTheEndOfALine)
{
    m_edit.SetFocus();
    m_edit.SetWindowText("");
    SetClipboard("7.5\r\n8");
    m_edit.SendMessage(WM_PASTE);
    EXPECT_EQ("7.5", Text());
}

TEST_F(NumberField, TheParentIsNotifiedToo)
{
    m_dialog.notifications = 0;
    m_edit.SetFocus();
    EXPECT_GT(m_dialog.notifications, 0);
}

TEST_F(NumberField, WithoutAWindowItKeepsItsNumber)
{
    FloatEdit edit;
    edit.SetSuffix(" ft");
    edit.SetValue(12.5);
    EXPECT_EQ(12.5, edit.GetValue());
    EXPECT_TRUE(edit.DoesCharacterPass('1', 0));
    CEdit plain;
    plain.Create(WS_CHILD | WS_VISIBLE, CRect(10, 90, 150, 110), &m_dialog, 9);
    const HWND window = plain.Detach();
    ASSERT_TRUE(edit.SubclassWindow(window));
    EXPECT_EQ("12.5 ft", TextOf(window));
}
