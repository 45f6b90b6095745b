// Exchange of texts and of numbers written as texts.
#include "framework/core/NumberScan.h"
#include "framework/dialog/ControlText.h"
#include "framework/dialog/DialogDataExchange.h"
#include "framework/include/afxres.h"
#include "framework/window/CWinApp.h"
#include "framework/window/CWnd.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

namespace
{
[[noreturn]] void Refuse(CDataExchange* exchange, UINT messageId)
{
    AfxMessageBox(messageId, MB_ICONEXCLAMATION);
    exchange->Fail();
}

template <class T>
constexpr UINT RefusalOf()
{
    if (std::is_same_v<T, BYTE>)
        return AFX_IDP_PARSE_BYTE;
    return std::is_signed_v<T> ? AFX_IDP_PARSE_INT : AFX_IDP_PARSE_UINT;
}

/// The text as a number of type T; false for other texts and for numbers outside its range.
template <class T>
bool ReadWhole(const CString& text, T& value)
{
    const std::string_view view(text.GetString(), static_cast<std::size_t>(text.GetLength()));
    const auto store = [&value](const auto& number)
    {
        if (!number || !std::in_range<T>(*number))
            return false;
        value = static_cast<T>(*number);
        return true;
    };
    return std::is_signed_v<T> ? store(vorn::ScanWhole(view)) : store(vorn::ScanUnsigned(view));
}

template <class T>
void ExchangeWhole(CDataExchange* exchange, int id, T& value)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate)
        vorn::SetControlText(control, std::to_string(value).c_str());
    else if (!ReadWhole(vorn::ControlText(control), value))
        Refuse(exchange, RefusalOf<T>());
}

template <class T>
void ExchangeReal(CDataExchange* exchange, int id, T& value, int digits)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        vorn::SetControlText(control, vorn::RealText(static_cast<double>(value), digits).c_str());
        return;
    }
    const CString text = vorn::ControlText(control);
    const auto number = vorn::ScanReal({text.GetString(), static_cast<std::size_t>(text.GetLength())});
    if (!number || std::abs(*number) > static_cast<double>(std::numeric_limits<T>::max()))
        Refuse(exchange, AFX_IDP_PARSE_REAL);
    value = static_cast<T>(*number);
}
} // namespace

void DDX_Text(CDataExchange* exchange, int id, BYTE& value)
{
    ExchangeWhole(exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, short& value)
{
    ExchangeWhole(exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, int& value)
{
    ExchangeWhole(exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, UINT& value)
{
    ExchangeWhole(exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, long& value)
{
    ExchangeWhole(exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, DWORD& value)
{
    ExchangeWhole(exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, LONGLONG& value)
{
    ExchangeWhole(exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value)
{
    ExchangeWhole(exchange, id, value);
}

void DDX_Text(CDataExchange* exchange, int id, float& value)
{
    ExchangeReal(exchange, id, value, FLT_DIG);
}

void DDX_Text(CDataExchange* exchange, int id, double& value)
{
    ExchangeReal(exchange, id, value, DBL_DIG);
}

void DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = vorn::ControlText(control);
    else
        vorn::SetControlText(control, value);
}

void DDX_Text(CDataExchange* exchange, int id, LPTSTR value, int maxLength)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!value || maxLength <= 0)
        return;
    if (exchange->m_bSaveAndValidate)
        value[::GetWindowTextA(control, value, maxLength)] = '\0';
    else
        vorn::SetControlText(control, value);
}
