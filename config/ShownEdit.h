#pragma once

#include "framework/include/afxwin.h"

namespace vorn
{

/// An edit field that shows a stored text and knows whether the user has made another one of it.
class ShownEdit : public CEdit
{
public:
    /// Shows a text, null as an empty one; without `there` the field is emptied and disabled.
    void Show(const char* text, bool there);

    /// Takes the text that stands in the field for the stored one.
    void TakeAsShown();

    CString Text() const;
    bool HasChanged() const;

private:
    CString m_shown;
};

} // namespace vorn
