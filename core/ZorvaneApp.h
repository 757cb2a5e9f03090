// The module's application object: what must stand before the host's first call.
#pragma once

#include <afxwin.h>

#include <string>

class CMainDlg;

class CZorvaneApp : public CWinApp
{
public:
    CZorvaneApp();

    BOOL InitInstance() override;
    /// Relays mouse clicks to the host on show, so that its page can end what the click is outside
    /// of. It never eats a message.
    BOOL PreTranslateMessage(MSG* message) override;

    /// The settings window while it runs, else null.
    void SetOpenWindow(CMainDlg* window) { m_openWindow = window; }

private:
    void LoadSkin(const std::string& hostFolder);

    CMainDlg* m_openWindow = nullptr;
    HBITMAP m_skinBitmaps[3] = {}; // kept for the life of the process
};

extern CZorvaneApp theApp;
