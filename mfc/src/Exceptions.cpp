#include <afxwin.h>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CUserException, CException)

namespace
{
BOOL CopyMessage(LPCSTR message, LPTSTR buffer, UINT capacity)
{
    if (!buffer || capacity == 0)
    {
        return FALSE;
    }
    ::lstrcpynA(buffer, message, static_cast<int>(capacity));
    return TRUE;
}
} // namespace

CException::CException(BOOL bAutoDelete)
    : m_bAutoDelete(bAutoDelete)
{
}

void CException::Delete()
{
    if (m_bAutoDelete)
    {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError) const
{
    if (lpszError && nMaxError > 0)
    {
        lpszError[0] = '\0';
    }
    return FALSE;
}

int CException::ReportError(UINT nType)
{
    char message[512];
    if (!GetErrorMessage(message, sizeof(message)))
    {
        ::lstrcpynA(message, "The operation failed.", sizeof(message));
    }
    return AfxMessageBox(message, nType);
}

BOOL CMemoryException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError) const
{
    return CopyMessage("Out of memory.", lpszError, nMaxError);
}

BOOL CResourceException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError) const
{
    return CopyMessage("A required resource was unavailable.", lpszError, nMaxError);
}

// Shared objects: where memory or resources have run out, none is left for the exception.

void AFXAPI AfxThrowMemoryException()
{
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowResourceException()
{
    static CResourceException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowUserException()
{
    static CUserException exception(FALSE);
    throw &exception;
}
