#pragma once

/// @file
/// The framework's exceptions. They are thrown by pointer; whoever catches one either lets the CATCH
/// macros end its life or calls Delete().
#include "framework/core/Object.h"

/// Base of the exceptions. Each derived class carries IMPLEMENT_DYNAMIC.
class HOSTFRAMEWORK_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

    CException() = default;

    /// `bAutoDelete` TRUE: the object was made with new and Delete() frees it. FALSE: a static object that stays.
    explicit CException(BOOL bAutoDelete);

    /// Ends the use of a caught exception; frees it when it was made on the heap.
    void Delete();

    /// Writes at most nMaxError - 1 characters and a zero. False, with an empty text, when there is no description.
    /// @param pnHelpContext receives the help context (0) when not null.
    virtual BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const;

    /// Shows the description in a message box (standard error where there is none).
    /// @param nMessageID string resource shown when there is no description.
    /// @return the message box's answer, 0 when nothing could be shown.
    virtual int ReportError(UINT nType = 0, UINT nMessageID = 0);

    /// Shows a message for ReportError(). The windowed part of the framework registers it at load.
    using ReportFunction = int (*)(LPCSTR message, UINT type, UINT messageId);
    static void SetReportFunction(ReportFunction report);

protected:
    BOOL m_bAutoDelete = TRUE;
};

/// Base of the exceptions whose description is known from the start and that need no memory.
class HOSTFRAMEWORK_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

    CSimpleException() = default;
    explicit CSimpleException(BOOL bAutoDelete);
    /// @param message a text that outlives the exception (a literal); null for none.
    CSimpleException(BOOL bAutoDelete, LPCSTR message);

    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;

private:
    LPCSTR m_message = nullptr;
};

/// Memory could not be had, or more was asked for than can exist.
class HOSTFRAMEWORK_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)
    CMemoryException();
    explicit CMemoryException(BOOL bAutoDelete);
};

/// The operation is not offered by this object.
class HOSTFRAMEWORK_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)
    CNotSupportedException();
    explicit CNotSupportedException(BOOL bAutoDelete);
};

/// An argument is outside its range.
class HOSTFRAMEWORK_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)
    CInvalidArgException();
    explicit CInvalidArgException(BOOL bAutoDelete);
};

/// A resource was not found or could not be created.
class HOSTFRAMEWORK_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)
    CResourceException();
    explicit CResourceException(BOOL bAutoDelete);
};

/// Stops an operation of the user; the message was already shown.
class HOSTFRAMEWORK_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)
    CUserException();
    explicit CUserException(BOOL bAutoDelete);
};

[[noreturn]] HOSTFRAMEWORK_API void AfxThrowMemoryException();
[[noreturn]] HOSTFRAMEWORK_API void AfxThrowNotSupportedException();
[[noreturn]] HOSTFRAMEWORK_API void AfxThrowInvalidArgException();
[[noreturn]] HOSTFRAMEWORK_API void AfxThrowResourceException();
[[noreturn]] HOSTFRAMEWORK_API void AfxThrowUserException();

namespace vorn
{
/// Ends the life of a caught exception at the end of its handler, unless it is thrown on.
class CaughtException
{
public:
    explicit CaughtException(CException* exception) : m_exception(exception)
    {
    }
    ~CaughtException()
    {
        if (m_exception != nullptr)
        {
            m_exception->Delete();
        }
    }
    CaughtException(const CaughtException&) = delete;
    CaughtException& operator=(const CaughtException&) = delete;
    void Keep()
    {
        m_exception = nullptr;
    }

private:
    CException* m_exception;
};

/// Copies `text` into a caller's buffer of `size` characters, cut to fit and always ended; false for no buffer.
HOSTFRAMEWORK_API BOOL CopyErrorText(LPCSTR text, LPSTR buffer, UINT size);
} // namespace vorn

#define TRY                                                                                                            \
    try                                                                                                                \
    {
#define CATCH(class, e)                                                                                                \
    }                                                                                                                  \
    catch (class * e)                                                                                                  \
    {                                                                                                                  \
        [[maybe_unused]] vorn::CaughtException vornCaughtException(e);
#define AND_CATCH(class, e) CATCH(class, e)
#define END_CATCH }
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH_ALL }
#define THROW(e) throw e
/// Throws the exception of the enclosing CATCH block on.
#define THROW_LAST() (vornCaughtException.Keep(), throw)
