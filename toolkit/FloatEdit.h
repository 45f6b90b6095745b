#pragma once

#include "frame/core/Export.h"
#include "framework/include/afxwin.h"

/// An edit field for one decimal number. While it has the focus it shows the plain number; otherwise the number with a
/// text before and one behind it ("FL 100", "12.5 kt"). Only characters of a number can be typed and pasted; a text on
/// the clipboard that does not fit is told in a message box.
class VORNCOMMON_API FloatEdit : public CEdit
{
    DECLARE_DYNAMIC(FloatEdit)
public:
    FloatEdit();
    ~FloatEdit() override;

    /// @param decimals how many are kept, 0 to 15; 2 at first.
    /// @param point whether a decimal point may be typed at all; true at first. Without decimals it may not.
    void SetAttributes(short decimals, bool point);
    /// Null is the empty text.
    void SetPrefix(LPCSTR prefix);
    void SetSuffix(LPCSTR suffix);

    /// What is no number counts as 0.
    void SetValue(double value);
    /// The number, rounded; while the field is being edited the one that stands there, 0 for a text that is none.
    double GetValue() const;

    /// Shows the number: plain, or with prefix and suffix.
    void SetNumericText(bool plain);

    /// Whether a character may be typed at a position (counted from 0) of the present text: digits and control
    /// characters; "-" at position 0; "." where one may be typed and there is none.
    bool DoesCharacterPass(UINT character, int position) const;

    /// Rounded to so many decimals, halves away from zero; numbers too large to have them stay.
    static double RoundToDecimal(double value, short decimals);

protected:
    void PreSubclassWindow() override;

    afx_msg void OnChar(UINT character, UINT repeats, UINT flags);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnSetfocus();
    afx_msg BOOL OnKillfocus();
    DECLARE_MESSAGE_MAP()

private:
    CString Text() const;
    CString PlainText() const;
    bool MayHavePoint() const;
    void Show();
    void RefusePaste(const CString& pasted);

    short m_decimals = 2;
    bool m_point = true;
    bool m_hasValue = false;
    bool m_editing = false;
    bool m_asking = false; ///< a message box has the focus for a while
    double m_value = 0;
    CString m_prefix;
    CString m_suffix;
};
