#include "framework/core/Exception.h"
#include "framework/dialog/DialogDataExchange.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
enum : UINT
{
    kCheck = 2001,
    kRadio1 = 2002,
    kRadio2 = 2003,
    kRadio3 = 2004,
    kAfterRadios = 2005,
    kList = 2006,
    kCombo = 2007,
    kDropList = 2008,
    kScroll = 2009,
    kSlider = 2010
};

DialogTemplateBuilder ExchangeTemplate()
{
    using B = DialogTemplateBuilder;
    B builder;
    builder.Style(WS_POPUP | WS_CAPTION).Title("Exchange").At({0, 0, 200, 200}).Font(8, "MS Shell Dlg");
    builder.Add(B::Edit, kFirstEdit, WS_TABSTOP | ES_AUTOHSCROLL, {0, 0, 80, 12});
    builder.Add(B::Button, kCheck, BS_AUTO3STATE, {0, 15, 50, 12}, "check");
    builder.Add(B::Button, kRadio1, BS_AUTORADIOBUTTON | WS_GROUP, {0, 30, 50, 12}, "a");
    builder.Add(B::Static, 65535, 0, {0, 36, 50, 12}, "a text between the buttons");
    builder.Add(B::Button, kRadio2, BS_AUTORADIOBUTTON, {0, 42, 50, 12}, "b");
    builder.Add(B::Button, kRadio3, BS_AUTORADIOBUTTON, {0, 54, 50, 12}, "c");
    builder.Add(B::Button, kAfterRadios, BS_AUTORADIOBUTTON | WS_GROUP, {0, 66, 50, 12}, "another group");
    builder.Add(B::ListBox, kList, WS_BORDER, {0, 80, 80, 40});
    builder.Add(B::ComboBox, kCombo, CBS_DROPDOWN, {90, 0, 80, 60});
    builder.Add(B::ComboBox, kDropList, CBS_DROPDOWNLIST, {90, 20, 80, 60});
    builder.Add(B::ScrollBar, kScroll, SBS_HORZ, {90, 40, 80, 12});
    return builder.Add("msctls_trackbar32", kSlider, 0, {90, 60, 80, 20});
}

class DataExchange : public testing::Test
{
protected:
    DataExchange() : m_dialog(nullptr, ExchangeTemplate())
    {
        m_dialog.CreateIndirect(AsTemplate(m_dialog.m_bytes));
        m_dialog.ShowWindow(SW_SHOW);
        for (const UINT message : {LB_ADDSTRING, CB_ADDSTRING})
            for (const char* text : {"Alpha", "Beta", "Alphabet", "beta two"})
                Fill(message, text);
        g_app.m_messages.clear();
    }
    ~DataExchange() override
    {
        m_dialog.DestroyWindow();
    }

    void Fill(UINT message, const char* text)
    {
        const auto parameter = reinterpret_cast<LPARAM>(text);
        if (message == LB_ADDSTRING)
            m_dialog.SendDlgItemMessage(kList, message, 0, parameter);
        else
            for (const int id : {static_cast<int>(kCombo), static_cast<int>(kDropList)})
                m_dialog.SendDlgItemMessage(id, message, 0, parameter);
    }

    template <class Function>
    BOOL Exchange(bool save, Function function)
    {
        m_dialog.m_onExchange = [&](NotingDialog&, CDataExchange* exchange)
        {
            function(exchange);
        };
        const BOOL good = m_dialog.UpdateData(save);
        m_dialog.m_onExchange = nullptr;
        return good;
    }

    template <class T>
    std::string Shown(T value)
    {
        EXPECT_TRUE(Exchange(false,
                             [&](CDataExchange* exchange)
                             {
                                 DDX_Text(exchange, kFirstEdit, value);
                             }));
        return EditText();
    }

    /// What the text gives as a T; `before` when it is refused.
    template <class T>
    T Read(const char* text, T before)
    {
        m_dialog.SetDlgItemText(kFirstEdit, text);
        m_good = Exchange(true,
                          [&](CDataExchange* exchange)
                          {
                              DDX_Text(exchange, kFirstEdit, before);
                          });
        return before;
    }

    std::string EditText()
    {
        CString text;
        m_dialog.GetDlgItemText(kFirstEdit, text);
        return text.GetString();
    }

    NotingDialog m_dialog;
    BOOL m_good = FALSE;
};
} // namespace

TEST_F(DataExchange, NumbersAreShown)
{
    EXPECT_EQ(Shown<int>(-42), "-42");
    EXPECT_EQ(Shown<BYTE>(255), "255");
    EXPECT_EQ(Shown<short>(-32768), "-32768");
    EXPECT_EQ(Shown<UINT>(4294967295u), "4294967295");
    EXPECT_EQ(Shown<long>(-2147483647 - 1), "-2147483648");
    EXPECT_EQ(Shown<DWORD>(4000000000u), "4000000000");
    EXPECT_EQ(Shown<LONGLONG>(-5000000000LL), "-5000000000");
    EXPECT_EQ(Shown<ULONGLONG>(18446744073709551615ULL), "18446744073709551615");
    EXPECT_EQ(Shown<double>(0.1), "0.1");
    EXPECT_EQ(Shown<double>(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(Shown<float>(1.0f / 3), "0.333333");
}

TEST_F(DataExchange, NumbersAreRead)
{
    EXPECT_EQ(Read<int>(" -42 ", 0), -42);
    EXPECT_EQ(Read<BYTE>("255", 0), 255);
    EXPECT_EQ(Read<short>("-32768", 0), -32768);
    EXPECT_EQ(Read<UINT>("4294967295", 0), 4294967295u);
    EXPECT_EQ(Read<long>("2147483647", 0), 2147483647);
    EXPECT_EQ(Read<DWORD>("4000000000", 0), 4000000000u);
    EXPECT_EQ(Read<LONGLONG>("-5000000000", 0), -5000000000LL);
    EXPECT_EQ(Read<ULONGLONG>("18446744073709551615", 0), 18446744073709551615ULL);
    EXPECT_EQ(Read<double>("-1.5e3", 0), -1500.0);
    EXPECT_EQ(Read<float>("0.25", 0), 0.25f);
    EXPECT_TRUE(m_good);
    EXPECT_TRUE(g_app.m_messages.empty());
}

TEST_F(DataExchange, WrongTextsLeaveTheVariableAndShowAMessage)
{
    EXPECT_EQ(Read<int>("x", 7), 7);
    EXPECT_FALSE(m_good);
    EXPECT_EQ(Read<int>("2147483648", 7), 7);
    EXPECT_EQ(Read<int>("", 7), 7);
    EXPECT_EQ(Read<BYTE>("256", 7), 7);
    EXPECT_EQ(Read<UINT>("-1", 7), 7u);
    EXPECT_EQ(Read<double>("1,5", 7), 7.0);
    EXPECT_EQ(Read<float>("1e39", 7), 7.0f);
    EXPECT_FALSE(m_good);
    const std::vector<std::string> expected = {
        "Please enter a whole number.",
        "Please enter a whole number.",
        "Please enter a whole number.",
        "Please enter a whole number between 0 and 255.",
        "Please enter a positive whole number.",
        "Please enter a number.",
        "Please enter a number.",
    };
    EXPECT_EQ(g_app.m_messages, expected);
}

TEST_F(DataExchange, FailureFocusesTheControlAndSelectsItsText)
{
    ::SetFocus(m_dialog.GetDlgItem(kCheck)->m_hWnd);
    Read<int>("12x", 0);
    EXPECT_EQ(::GetFocus(), m_dialog.GetDlgItem(kFirstEdit)->m_hWnd);
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kFirstEdit, EM_GETSEL), MAKELONG(0, 3));
}

TEST_F(DataExchange, FailureStopsTheExchange)
{
    m_dialog.SetDlgItemText(kFirstEdit, "x");
    int number = 0;
    bool reached = false;
    Exchange(true,
             [&](CDataExchange* exchange)
             {
                 DDX_Text(exchange, kFirstEdit, number);
                 reached = true;
             });
    EXPECT_FALSE(reached);
}

TEST_F(DataExchange, MissingControlIsReportedAndFails)
{
    int number = 0;
    EXPECT_FALSE(Exchange(true,
                          [&](CDataExchange* exchange)
                          {
                              DDX_Text(exchange, 9999, number);
                          }));
    EXPECT_EQ(g_app.m_messages.size(), 1u);
}

TEST_F(DataExchange, TextsGoBothWays)
{
    CString text = "Aerodrome \xB0";
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_Text(data, kFirstEdit, text);
    };
    EXPECT_TRUE(Exchange(false, exchange));
    EXPECT_EQ(EditText(), "Aerodrome \xB0");
    m_dialog.SetDlgItemText(kFirstEdit, "");
    EXPECT_TRUE(Exchange(true, exchange));
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(DataExchange, EqualTextIsNotSetAgain)
{
    CString text = "same";
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_Text(data, kFirstEdit, text);
    };
    Exchange(false, exchange);
    m_dialog.SendDlgItemMessage(kFirstEdit, EM_SETMODIFY, TRUE); // setting a text would clear it
    Exchange(false, exchange);
    EXPECT_TRUE(m_dialog.SendDlgItemMessage(kFirstEdit, EM_GETMODIFY));
}

TEST_F(DataExchange, TextBufferIsCutAndEnded)
{
    char buffer[5] = {'?', '?', '?', '?', '?'};
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_Text(data, kFirstEdit, buffer, 4);
    };
    m_dialog.SetDlgItemText(kFirstEdit, "abcdef");
    EXPECT_TRUE(Exchange(true, exchange));
    EXPECT_EQ(std::string(buffer, 5), std::string("abc\0?", 5));
}

TEST_F(DataExchange, CheckBoxHasThreeStates)
{
    int value = BST_INDETERMINATE;
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_Check(data, kCheck, value);
    };
    Exchange(false, exchange);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(kCheck), static_cast<UINT>(BST_INDETERMINATE));
    m_dialog.CheckDlgButton(kCheck, BST_CHECKED);
    Exchange(true, exchange);
    EXPECT_EQ(value, BST_CHECKED);
    value = 17;
    Exchange(false, exchange);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(kCheck), static_cast<UINT>(BST_UNCHECKED));
}

TEST_F(DataExchange, RadioButtonsCountWithinTheirGroup)
{
    int value = 2;
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_Radio(data, kRadio1, value);
    };
    m_dialog.CheckDlgButton(kAfterRadios, BST_CHECKED);
    Exchange(false, exchange);
    EXPECT_TRUE(m_dialog.IsDlgButtonChecked(kRadio3));
    EXPECT_FALSE(m_dialog.IsDlgButtonChecked(kRadio1));
    EXPECT_TRUE(m_dialog.IsDlgButtonChecked(kAfterRadios));
    m_dialog.CheckRadioButton(kRadio1, kRadio3, kRadio2);
    Exchange(true, exchange);
    EXPECT_EQ(value, 1);
    value = -1;
    Exchange(false, exchange);
    EXPECT_FALSE(m_dialog.IsDlgButtonChecked(kRadio2));
    value = 5;
    Exchange(true, exchange);
    EXPECT_EQ(value, -1);
}

TEST_F(DataExchange, ListBoxByTextAndByNumber)
{
    CString text = "beta";
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_LBString(data, kList, text);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kList, LB_GETCURSEL), 1);
    text = "alphab";
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_LBString(data, kList, text);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kList, LB_GETCURSEL), 2);
    Exchange(true,
             [&](CDataExchange* data)
             {
                 DDX_LBString(data, kList, text);
             });
    EXPECT_EQ(text, "Alphabet");
    text = "alph";
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_LBStringExact(data, kList, text);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kList, LB_GETCURSEL), LB_ERR);
    int index = 3;
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_LBIndex(data, kList, index);
             });
    index = 0;
    Exchange(true,
             [&](CDataExchange* data)
             {
                 DDX_LBIndex(data, kList, index);
             });
    EXPECT_EQ(index, 3);
}

TEST_F(DataExchange, ListBoxWithoutSelectionIsEmptyAndMinusOne)
{
    CString text = "x";
    int index = 5;
    Exchange(true,
             [&](CDataExchange* data)
             {
                 DDX_LBString(data, kList, text);
                 DDX_LBIndex(data, kList, index);
             });
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(index, -1);
}

TEST_F(DataExchange, EmptyTextSelectsNothing)
{
    m_dialog.SendDlgItemMessage(kList, LB_SETCURSEL, 1);
    CString text;
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_LBString(data, kList, text);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kList, LB_GETCURSEL), LB_ERR);
}

TEST_F(DataExchange, ComboBoxTakesTextsOutsideItsList)
{
    CString text = "Gamma";
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_CBString(data, kCombo, text);
    };
    Exchange(false, exchange);
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kCombo, CB_GETCURSEL), CB_ERR);
    text.Empty();
    Exchange(true, exchange);
    EXPECT_EQ(text, "Gamma");
}

TEST_F(DataExchange, ComboBoxSelectsByPrefixOrExactly)
{
    CString text = "bet";
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_CBString(data, kCombo, text);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kCombo, CB_GETCURSEL), 1);
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_CBStringExact(data, kCombo, text);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kCombo, CB_GETCURSEL), CB_ERR);
    text = "BETA TWO";
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_CBStringExact(data, kDropList, text);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kDropList, CB_GETCURSEL), 3);
    Exchange(true,
             [&](CDataExchange* data)
             {
                 DDX_CBStringExact(data, kDropList, text);
             });
    EXPECT_EQ(text, "beta two");
}

TEST_F(DataExchange, ComboBoxByNumber)
{
    int index = 2;
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_CBIndex(data, kDropList, index);
    };
    Exchange(false, exchange);
    index = 0;
    Exchange(true, exchange);
    EXPECT_EQ(index, 2);
    index = -1;
    Exchange(false, exchange);
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kDropList, CB_GETCURSEL), CB_ERR);
}

TEST_F(DataExchange, ScrollBarAndSliderPositions)
{
    ::SetScrollRange(m_dialog.GetDlgItem(kScroll)->m_hWnd, SB_CTL, 0, 50, FALSE);
    int scroll = 33;
    int slider = 44;
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_Scroll(data, kScroll, scroll);
        DDX_Slider(data, kSlider, slider);
    };
    Exchange(false, exchange);
    scroll = slider = 0;
    Exchange(true, exchange);
    EXPECT_EQ(scroll, 33);
    EXPECT_EQ(slider, 44);
}

TEST_F(DataExchange, ControlIsSubclassedOnce)
{
    class Probe : public CWnd
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            m_sets += message == WM_SETTEXT;
            return CWnd::WindowProc(message, wParam, lParam);
        }
        int m_sets = 0;
    };
    Probe probe;
    const auto exchange = [&](CDataExchange* data)
    {
        DDX_Control(data, kFirstEdit, probe);
    };
    EXPECT_TRUE(Exchange(false, exchange));
    EXPECT_TRUE(Exchange(true, exchange));
    EXPECT_EQ(m_dialog.GetDlgItem(kFirstEdit), &probe);
    m_dialog.SetDlgItemText(kFirstEdit, "x");
    EXPECT_EQ(probe.m_sets, 1);
    EXPECT_EQ(EditText(), "x");
}
