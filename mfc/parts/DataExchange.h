#pragma once

#include "mfc/parts/Controls.h"

/// One run of UpdateData.
class CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate)
        , m_pDlgWnd(pDlgWnd)
    {
    }

    BOOL m_bSaveAndValidate; ///< TRUE: from the controls into the members
    CWnd* m_pDlgWnd;

    /// The control; throws CUserException where there is none.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    /// Gives the focus back to the control prepared last and ends the run. Throws CUserException.
    [[noreturn]] void Fail();

private:
    HWND m_lastControl = nullptr;
    bool m_lastIsEdit = false;
};

/// Subclasses the control in the first run.
void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
/// Text that is no number is told to the user, and fails.
void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// Place of the checked button in its group, whose first button is nIDC; -1 for none.
void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
