#include "toolkit/FloatEdit.h"

#include "config/HostName.h"
#include "toolkit/ClipboardText.h"
#include "toolkit/core/NumberEditing.h"

#include <algorithm>
#include <cmath>
#include <string_view>

IMPLEMENT_DYNAMIC(FloatEdit, CEdit)

BEGIN_MESSAGE_MAP(FloatEdit, CEdit)
ON_WM_CHAR()
ON_MESSAGE(WM_PASTE, &FloatEdit::OnPaste)
ON_CONTROL_REFLECT_EX(EN_SETFOCUS, &FloatEdit::OnSetfocus)
ON_CONTROL_REFLECT_EX(EN_KILLFOCUS, &FloatEdit::OnKillfocus)
END_MESSAGE_MAP()

namespace
{
std::string_view ViewOfText(const CString& text)
{
    return {static_cast<LPCSTR>(text), static_cast<std::size_t>(text.GetLength())};
}

/// The text without what is selected, and where the selection begins.
int TakeSelectionOut(const CEdit& edit, CString& text)
{
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    text.Delete(start, end - start);
    return start;
}

/// Selects what of a longer text's selection lies in the number that stands alone now: all, if all was selected.
void SelectNumber(CEdit& edit, int start, int end)
{
    const int length = edit.GetWindowTextLength();
    edit.SetSel(std::clamp(start, 0, length), std::clamp(end, 0, length));
}
} // namespace

FloatEdit::FloatEdit() = default;

FloatEdit::~FloatEdit() = default;

void FloatEdit::SetAttributes(short decimals, bool point)
{
    m_decimals = std::clamp<short>(decimals, 0, vorn::kMostDecimals);
    m_point = point;
    Show();
}

void FloatEdit::SetPrefix(LPCSTR prefix)
{
    m_prefix = prefix;
    Show();
}

void FloatEdit::SetSuffix(LPCSTR suffix)
{
    m_suffix = suffix;
    Show();
}

void FloatEdit::SetValue(double value)
{
    m_value = std::isfinite(value) ? value : 0;
    m_hasValue = true;
    SetNumericText(m_editing);
}

double FloatEdit::GetValue() const
{
    const double value = m_editing ? vorn::TypedNumber(ViewOfText(Text())) : m_value;
    return RoundToDecimal(value, m_decimals);
}

void FloatEdit::SetNumericText(bool plain)
{
    if (m_hWnd != nullptr)
    {
        const CString number = PlainText();
        SetWindowText(plain ? number : m_prefix + number + m_suffix);
    }
}

bool FloatEdit::DoesCharacterPass(UINT character, int position) const
{
    const CString text = Text();
    return vorn::PassesIntoNumber(character, {ViewOfText(text), position, MayHavePoint()});
}

double FloatEdit::RoundToDecimal(double value, short decimals)
{
    return vorn::RoundedToDecimals(value, decimals);
}

void FloatEdit::PreSubclassWindow()
{
    CEdit::PreSubclassWindow();
    m_editing = ::GetFocus() == m_hWnd; // a dialog that is shown early gives the focus before it takes controls over
    if (m_hasValue)
    {
        SetNumericText(m_editing);
    }
}

void FloatEdit::OnChar(UINT, UINT, UINT)
{
    CString text = Text();
    const int position = TakeSelectionOut(*this, text);
    const UINT character = static_cast<UINT>(GetCurrentMessage()->wParam);
    if (vorn::PassesIntoNumber(character, {ViewOfText(text), position, MayHavePoint()}))
    {
        Default();
    }
}

LRESULT FloatEdit::OnPaste(WPARAM, LPARAM)
{
    CString pasted;
    if ((GetStyle() & ES_READONLY) != 0 || !vorn::GetClipboardText(*this, pasted))
    {
        return 0;
    }
    CString text = Text();
    const int position = TakeSelectionOut(*this, text);
    if (!vorn::PassesIntoNumber(ViewOfText(pasted), vorn::EditedNumber{ViewOfText(text), position, MayHavePoint()}))
    {
        RefusePaste(pasted);
        return 0;
    }
    return Default();
}

BOOL FloatEdit::OnSetfocus()
{
    if (!m_asking)
    {
        int start = 0;
        int end = 0;
        GetSel(start, end);
        SetNumericText(true);
        m_editing = true;
        SelectNumber(*this, start - m_prefix.GetLength(), end - m_prefix.GetLength());
    }
    return FALSE; // for the parent, too
}

BOOL FloatEdit::OnKillfocus()
{
    if (!m_asking)
    {
        m_value = GetValue();
        m_hasValue = true;
        m_editing = false;
        SetNumericText(false);
    }
    return FALSE;
}

CString FloatEdit::Text() const
{
    CString text;
    if (m_hWnd != nullptr)
    {
        GetWindowText(text);
    }
    return text;
}

CString FloatEdit::PlainText() const
{
    return CString(vorn::NumberText(RoundToDecimal(m_value, m_decimals)).c_str());
}

bool FloatEdit::MayHavePoint() const
{
    return m_point && m_decimals > 0;
}

/// Shows a number that was set, unless somebody is editing it.
void FloatEdit::Show()
{
    if (m_hasValue && !m_editing)
    {
        SetNumericText(false);
    }
}

void FloatEdit::RefusePaste(const CString& pasted)
{
    int start = 0;
    int end = 0;
    GetSel(start, end);
    const HWND self = m_hWnd;
    m_asking = true;
    ::MessageBox(::GetAncestor(self, GA_ROOT), vorn::RefusedPasteMessage(ViewOfText(pasted)).c_str(),
                 vorn::HostName().c_str(), MB_OK | MB_ICONINFORMATION);
    if (::IsWindow(self))
    {
        m_asking = false;
        SetSel(start, end);
    }
}
