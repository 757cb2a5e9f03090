#pragma once

#include "mfc/parts/WinThread.h"

/// The application object, of which a module has one, constructed before its entry point runs.
class CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    /// Without a name the title in the string table counts, or else the module's file name.
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr; ///< file name of the module without folder and extension

    virtual BOOL InitApplication() { return TRUE; }
    BOOL InitInstance() override { return TRUE; }
    int Run() override;

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const
    {
        return ::LoadCursor(nullptr, lpszCursorName);
    }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }

    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

    /// Tells the object of its module; the framework's entry points do so.
    void SetCurrentHandles(HINSTANCE hInstance, LPTSTR lpCmdLine, int nCmdShow);

private:
    CString m_appName;
    CString m_exeName;
};

CWinApp* AFXAPI AfxGetApp();

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

/// Starts the framework in a program with an entry point of its own.
BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                       int nCmdShow);
void AFXAPI AfxWinTerm();
/// Body of WinMain: start, InitInstance, Run, end.
int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);

/// Load the library of the rich edit control, version 1.0 and 2.0; dialogs with such controls
/// can't be made before.
BOOL AFXAPI AfxInitRichEdit();
BOOL AFXAPI AfxInitRichEdit2();
