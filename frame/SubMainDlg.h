// What the settings window knows of a page host.
#pragma once

#include <afxdialogex.h>

/// Tells a host that a mouse button went down somewhere in the client: screen x in the low word of
/// wParam, y in the high word.
constexpr UINT kMsgMousePressed = WM_USER + 4;

/// A dialog inside the settings window. Its template carries WS_EX_CONTROLPARENT and not DS_CONTROL:
/// the system hands Return and Escape of a DS_CONTROL dialog to the window around it, and they would
/// confirm or close that.
class CChildDlg : public CDialogEx
{
public:
    CChildDlg(UINT templateId, CWnd* parent);

    /// Makes the window, hidden, unless it is there.
    void EnsureWindow(CWnd* parent);

protected:
    /// Tab walks through the whole settings window, and so out of a page again.
    BOOL PreTranslateMessage(MSG* message) override;

    // Return and Escape inside never close anything.
    void OnOK() override;
    void OnCancel() override;
};

/// One per entry of the settings window's list.
class CSubMainDlg : public CChildDlg
{
public:
    /// @param templateId the host's dialog template
    explicit CSubMainDlg(UINT templateId, CWnd* parent = nullptr);

    /// Puts the factory values into the controls of the page on the selected tab. Neither record nor
    /// file changes.
    virtual void RestoreCurrentPage();
    /// Makes the page with this TParamSetPage value the visible one.
    virtual void SelectPage(int pageId);
    /// Copies what the host's pages show into the working record and the files that pages own.
    virtual void SavePages();
};
