#include <afxwin.h>

#include <cstdlib>

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    const HWND control = ::GetDlgItem(CWnd::HandleOf(m_pDlgWnd), nIDC);
    if (!control)
    {
        TRACE1("Error: no control with id %d to exchange data with.\n", nIDC);
        AfxThrowUserException();
    }
    m_lastControl = control;
    m_lastIsEdit = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND control = PrepareCtrl(nIDC);
    m_lastIsEdit = true;
    return control;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_lastControl)
    {
        ::SetFocus(m_lastControl);
        if (m_lastIsEdit)
        {
            ::SendMessage(m_lastControl, EM_SETSEL, 0, -1);
        }
    }
    AfxThrowUserException();
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (!rControl.m_hWnd)
    {
        rControl.SubclassWindow(pDX->PrepareCtrl(nIDC));
    }
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        CWnd::FromHandle(control)->GetWindowText(value);
        return;
    }
    CString shown;
    CWnd::FromHandle(control)->GetWindowText(shown);
    // Equal text is left alone: the caret and the selection stay.
    if (shown != value)
    {
        ::SetWindowText(control, value);
    }
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    CString text;
    if (!pDX->m_bSaveAndValidate)
    {
        text.Format("%d", value);
        DDX_Text(pDX, nIDC, text);
        return;
    }
    DDX_Text(pDX, nIDC, text);
    text.Trim();
    char* end = nullptr;
    errno = 0;
    const long number = std::strtol(text, &end, 10);
    if (text.IsEmpty() || *end != '\0' || errno == ERANGE)
    {
        AfxMessageBox("Please enter an integer.");
        pDX->Fail();
    }
    value = static_cast<int>(number);
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
    }
    else
    {
        ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
    }
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        value = -1;
    }
    int place = 0;
    do
    {
        if (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON)
        {
            if (!pDX->m_bSaveAndValidate)
            {
                ::SendMessage(control, BM_SETCHECK, place == value, 0);
            }
            else if (::SendMessage(control, BM_GETCHECK, 0, 0) == BST_CHECKED)
            {
                value = place;
            }
            ++place;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control && !(::GetWindowLong(control, GWL_STYLE) & WS_GROUP));
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        index = static_cast<int>(::SendMessage(control, CB_GETCURSEL, 0, 0));
    }
    else
    {
        ::SendMessage(control, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
}
