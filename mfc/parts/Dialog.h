#pragma once

#include "mfc/parts/Wnd.h"

/// A dialog made of a template in the module's resources, modal (DoModal) or modeless (Create).
class CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog() = default;
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    // Modeless. The window is visible if its template says so.
    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);

    /// A modal dialog of a template in memory, which must live until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Shows the dialog and runs until EndDialog. The owner is disabled meanwhile: the parent that
    /// was given, or else the main window (see CWinThread::GetMainWnd) or its last active popup.
    /// Returns what EndDialog was given; -1 when the window can't be made or the thread has to
    /// quit.
    virtual INT_PTR DoModal();
    /// Ends DoModal as soon as the handler at hand returns; in OnInitDialog, before the dialog
    /// shows.
    void EndDialog(int nResult);

    void NextDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, FALSE, FALSE); }
    void PrevDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, TRUE, FALSE); }
    void GotoDlgCtrl(CWnd* pWndCtrl)
    {
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(CWnd::HandleOf(pWndCtrl)), TRUE);
    }
    void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }
    DWORD GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }

    /// Loads the template's initial data and then the controls by UpdateData(FALSE). TRUE lets
    /// Windows set the focus to the first control.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont*) { Default(); }

    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// Commands that the dialog doesn't handle go to its parent, then to the application object;
    /// notifications of controls don't.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    /// Ends the dialog with IDOK, if the data of its controls is valid.
    virtual void OnOK();
    virtual void OnCancel();

    CWnd* m_pParentWnd = nullptr;
    LPCTSTR m_lpszTemplateName = nullptr;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void SetTemplateName(LPCTSTR name);
    void RunModal(CWnd* owner);
    bool WantsCentering() const;

    CString m_templateName; ///< holds the name of a template that has no number
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
};
