#include "framework/dialog/DialogDataExchange.h"
#include "framework/dialog/DialogDataValidation.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
enum : UINT
{
    kValidatedCombo = 2001,
    kValidatedSlider = 2002
};

DialogTemplateBuilder ValidationTemplate()
{
    auto builder = StandardTemplate();
    builder.Add(DialogTemplateBuilder::ComboBox, kValidatedCombo, CBS_DROPDOWN, {90, 0, 60, 60});
    return builder.Add("msctls_trackbar32", kValidatedSlider, 0, {90, 20, 60, 20});
}

class DataValidation : public testing::Test
{
protected:
    DataValidation() : m_dialog(nullptr, ValidationTemplate())
    {
        m_dialog.CreateIndirect(AsTemplate(m_dialog.m_bytes));
        m_dialog.ShowWindow(SW_SHOW);
        g_app.m_messages.clear();
    }
    ~DataValidation() override
    {
        m_dialog.DestroyWindow();
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

    /// The message that the check shows while saving; empty for a good value.
    template <class Function>
    std::string Complaint(Function function)
    {
        g_app.m_messages.clear();
        const BOOL good = Exchange(true, function);
        EXPECT_EQ(good, g_app.m_messages.empty());
        EXPECT_TRUE(Exchange(false, function)); // while loading nothing is refused
        return g_app.m_messages.empty() ? std::string() : g_app.m_messages.front();
    }

    NotingDialog m_dialog;
};
} // namespace

#define COMPLAINT(call)                                                                                                \
    Complaint(                                                                                                         \
        [&](CDataExchange* data)                                                                                       \
        {                                                                                                              \
            call;                                                                                                      \
        })

TEST_F(DataValidation, LimitsBelongToTheRange)
{
    EXPECT_EQ(COMPLAINT(DDV_MinMaxInt(data, -5, -5, 5)), "");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxInt(data, 5, -5, 5)), "");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxDouble(data, 0.5, 0.5, 0.5)), "");
}

TEST_F(DataValidation, ValuesOutsideNameTheRange)
{
    EXPECT_EQ(COMPLAINT(DDV_MinMaxInt(data, -6, -5, 5)), "Please enter a whole number between -5 and 5.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxByte(data, 9, 10, 20)), "Please enter a whole number between 10 and 20.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxShort(data, 21, 10, 20)), "Please enter a whole number between 10 and 20.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxLong(data, 6, -5, 5)), "Please enter a whole number between -5 and 5.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxUInt(data, 0, 1, 4294967295u)),
              "Please enter a whole number between 1 and 4294967295.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxDWord(data, 4000000000u, 0, 1)), "Please enter a whole number between 0 and 1.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxLongLong(data, 1, -5000000000LL, 0)),
              "Please enter a whole number between -5000000000 and 0.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxULongLong(data, 0, 1, 2)), "Please enter a whole number between 1 and 2.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxDouble(data, 1.6, 0.1, 1.5)), "Please enter a number between 0.1 and 1.5.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxFloat(data, 1.6f, 0.1f, 1.5f)), "Please enter a number between 0.1 and 1.5.");
    EXPECT_EQ(COMPLAINT(DDV_MinMaxDouble(data, 2, 0, 1.0 / 3, 3)), "Please enter a number between 0 and 0.333.");
}

TEST_F(DataValidation, NotANumberIsOutsideEveryRange)
{
    EXPECT_NE(COMPLAINT(DDV_MinMaxDouble(data, std::nan(""), -1e300, 1e300)), "");
}

TEST_F(DataValidation, FailureFocusesTheControlExchangedLast)
{
    ::SetFocus(m_dialog.GetDlgItem(kFirstEdit)->m_hWnd);
    m_dialog.SetDlgItemText(kSecondEdit, "700");
    int value = 0;
    EXPECT_FALSE(Exchange(true,
                          [&](CDataExchange* data)
                          {
                              DDX_Text(data, kSecondEdit, value);
                              DDV_MinMaxInt(data, value, 0, 600);
                          }));
    EXPECT_EQ(::GetFocus(), m_dialog.GetDlgItem(kSecondEdit)->m_hWnd);
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kSecondEdit, EM_GETSEL), MAKELONG(0, 3));
}

TEST_F(DataValidation, TextLengthIsChecked)
{
    EXPECT_EQ(COMPLAINT(DDV_MaxChars(data, CString("abc"), 3)), "");
    EXPECT_EQ(COMPLAINT(DDV_MaxChars(data, CString("abcd"), 3)), "Please enter no more than 3 characters.");
}

TEST_F(DataValidation, LoadingLimitsWhatCanBeTyped)
{
    CString text = "ab";
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_Text(data, kFirstEdit, text);
                 DDV_MaxChars(data, text, 4);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kFirstEdit, EM_GETLIMITTEXT), 4);
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_CBString(data, kValidatedCombo, text);
                 DDV_MaxChars(data, text, 6);
             });
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(::GetComboBoxInfo(m_dialog.GetDlgItem(kValidatedCombo)->m_hWnd, &info));
    EXPECT_EQ(::SendMessageA(info.hwndItem, EM_GETLIMITTEXT, 0, 0), 6);
}

TEST_F(DataValidation, SliderGetsRangeAndPosition)
{
    int value = 250;
    Exchange(false,
             [&](CDataExchange* data)
             {
                 DDX_Slider(data, kValidatedSlider, value);
                 DDV_MinMaxSlider(data, static_cast<DWORD>(value), 200, 300);
             });
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kValidatedSlider, TBM_GETRANGEMIN), 200);
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kValidatedSlider, TBM_GETRANGEMAX), 300);
    EXPECT_EQ(m_dialog.SendDlgItemMessage(kValidatedSlider, TBM_GETPOS), 250);
}
