#pragma once

#include "mfc/parts/Object.h"

/// Exceptions are thrown and caught as pointers; who catches one and doesn't throw it on calls
/// Delete. A window procedure of the framework lets none out.
class CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    explicit CException(BOOL bAutoDelete = TRUE);

    /// Deletes an exception from the heap; leaves the framework's own shared ones.
    void Delete();

    /// Fills a text of at most nMaxError bytes, NUL included. FALSE when there is none.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError) const;
    virtual int ReportError(UINT nType = MB_OK);

private:
    BOOL m_bAutoDelete;
};

/// No memory for what was asked.
class CMemoryException : public CException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    using CException::CException;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError) const override;
};

/// A resource of the system, such as a window class or a device context, can't be had.
class CResourceException : public CException
{
    DECLARE_DYNAMIC(CResourceException)

public:
    using CException::CException;
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError) const override;
};

/// The user has already been told; the operation just ends.
class CUserException : public CException
{
    DECLARE_DYNAMIC(CUserException)

public:
    using CException::CException;
};

[[noreturn]] void AFXAPI AfxThrowMemoryException();
[[noreturn]] void AFXAPI AfxThrowResourceException();
[[noreturn]] void AFXAPI AfxThrowUserException();
