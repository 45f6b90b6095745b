#pragma once

/// @file
/// What happens after an exception that no message handler caught; not public interface.
#include "framework/core/Exception.h"

#include <windows.h>

#include <string>

namespace vorn
{

/// Stands for an exception that is none of the framework's own, so that the application's
/// ProcessWndProcException hears of it too.
class UncaughtException : public CException
{
public:
    explicit UncaughtException(const char* what) : CException(FALSE), m_what(what)
    {
    }

    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override
    {
        if (pnHelpContext)
        {
            *pnHelpContext = 0;
        }
        return CopyErrorText(m_what.c_str(), lpszError, nMaxError) && !m_what.empty();
    }

private:
    std::string m_what;
};

/// What a window procedure answers after an exception, without any report.
LRESULT DefaultAfterException(const MSG& message);

} // namespace vorn
