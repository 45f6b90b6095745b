#include "framework/dialog/DialogDataValidation.h"

#include "framework/core/NumberScan.h"
#include "framework/dialog/ControlText.h"
#include "framework/include/afxres.h"
#include "framework/window/CWinApp.h"
#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"

#include <commctrl.h>

#include <string>

namespace
{
[[noreturn]] void Refuse(CDataExchange* exchange, UINT messageId, const std::string& first, const std::string& second)
{
    CString text;
    AfxFormatString2(text, messageId, first.c_str(), second.c_str());
    AfxMessageBox(text, MB_ICONEXCLAMATION, messageId);
    exchange->Fail();
}

template <class T>
void CheckWhole(CDataExchange* exchange, T value, T lowest, T highest)
{
    if (exchange->m_bSaveAndValidate && (value < lowest || value > highest))
        Refuse(exchange, AFX_IDP_PARSE_INT_RANGE, std::to_string(lowest), std::to_string(highest));
}

void CheckReal(CDataExchange* exchange, double value, double lowest, double highest, int digits)
{
    // Written so that not-a-number fails.
    const bool inside = value >= lowest && value <= highest;
    if (exchange->m_bSaveAndValidate && !inside)
        Refuse(exchange, AFX_IDP_PARSE_REAL_RANGE, vorn::RealText(lowest, digits), vorn::RealText(highest, digits));
}

/// Tells the control of the last exchange how many characters it may take.
void LimitLastControl(CDataExchange* exchange, int count)
{
    const HWND control = ::GetDlgItem(exchange->m_pDlgWnd->GetSafeHwnd(), exchange->m_idLastControl);
    if (control && exchange->m_bEditLastControl)
        ::SendMessageA(control, vorn::IsComboBox(control) ? CB_LIMITTEXT : EM_LIMITTEXT, static_cast<WPARAM>(count), 0);
}
} // namespace

void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE lowest, BYTE highest)
{
    CheckWhole(exchange, value, lowest, highest);
}

void DDV_MinMaxShort(CDataExchange* exchange, short value, short lowest, short highest)
{
    CheckWhole(exchange, value, lowest, highest);
}

void DDV_MinMaxInt(CDataExchange* exchange, int value, int lowest, int highest)
{
    CheckWhole(exchange, value, lowest, highest);
}

void DDV_MinMaxLong(CDataExchange* exchange, long value, long lowest, long highest)
{
    CheckWhole(exchange, value, lowest, highest);
}

void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT lowest, UINT highest)
{
    CheckWhole(exchange, value, lowest, highest);
}

void DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD lowest, DWORD highest)
{
    CheckWhole(exchange, value, lowest, highest);
}

void DDV_MinMaxLongLong(CDataExchange* exchange, LONGLONG value, LONGLONG lowest, LONGLONG highest)
{
    CheckWhole(exchange, value, lowest, highest);
}

void DDV_MinMaxULongLong(CDataExchange* exchange, ULONGLONG value, ULONGLONG lowest, ULONGLONG highest)
{
    CheckWhole(exchange, value, lowest, highest);
}

void DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float lowest, float highest, int precision)
{
    CheckReal(exchange, static_cast<double>(value), static_cast<double>(lowest), static_cast<double>(highest),
              precision);
}

void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double lowest, double highest, int precision)
{
    CheckReal(exchange, value, lowest, highest, precision);
}

void DDV_MinMaxSlider(CDataExchange* exchange, DWORD value, DWORD lowest, DWORD highest)
{
    if (exchange->m_bSaveAndValidate)
    {
        CheckWhole(exchange, value, lowest, highest);
        return;
    }
    const HWND slider = ::GetDlgItem(exchange->m_pDlgWnd->GetSafeHwnd(), exchange->m_idLastControl);
    ::SendMessageA(slider, TBM_SETRANGEMIN, FALSE, static_cast<LPARAM>(lowest));
    ::SendMessageA(slider, TBM_SETRANGEMAX, TRUE, static_cast<LPARAM>(highest));
    // The exchange before this check set the position within the old range.
    ::SendMessageA(slider, TBM_SETPOS, TRUE, static_cast<LPARAM>(value));
}

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int count)
{
    if (!exchange->m_bSaveAndValidate)
        LimitLastControl(exchange, count);
    else if (value.GetLength() > count)
        Refuse(exchange, AFX_IDP_PARSE_STRING_SIZE, std::to_string(count), {});
}
