#pragma once

/// @file
/// Failures that are described by a system result code.
#include "framework/core/Exception.h"

/// Carries a result code (HRESULT). Also what the value types throw for an argument out of range (E_INVALIDARG).
class HOSTFRAMEWORK_API COleException : public CException
{
    DECLARE_DYNAMIC(COleException)

    COleException() = default;

    BOOL GetErrorMessage(LPSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;

    /// The result code that stands for an exception: its own for a COleException, E_OUTOFMEMORY for a memory
    /// exception, E_INVALIDARG for an invalid argument, otherwise E_FAIL.
    static SCODE Process(const CException* pAnyException);

    SCODE m_sc = 0;
};

/// Throws a COleException (made on the heap) with that code.
[[noreturn]] HOSTFRAMEWORK_API void AfxThrowOleException(SCODE sc);

/// Throws the exception that stands for a result code: the memory exception for E_OUTOFMEMORY, otherwise a
/// COleException*.
[[noreturn]] HOSTFRAMEWORK_API void AtlThrow(HRESULT hr);
