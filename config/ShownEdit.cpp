#include "config/ShownEdit.h"

namespace vorn
{

void ShownEdit::Show(const char* text, bool there)
{
    SetWindowText(there && text ? text : "");
    EnableWindow(there);
    TakeAsShown();
}

void ShownEdit::TakeAsShown()
{
    // Read back: a field may show less than it was given.
    m_shown = Text();
}

CString ShownEdit::Text() const
{
    CString text;
    GetWindowText(text);
    return text;
}

bool ShownEdit::HasChanged() const
{
    return Text() != m_shown;
}

} // namespace vorn
