// Entry point of a DLL that has an application object.

#include <afxwin.h>

namespace
{
/// ExitInstance runs once, and not unless InitInstance has run: a DLL that refuses to be loaded is
/// told of its end as well.
bool instanceRuns = false;

BOOL Start(HINSTANCE module)
{
    AfxGetStaticModuleState()->m_bDLL = true;
    static char noCommandLine[] = "";
    if (!AfxWinInit(module, nullptr, noCommandLine, 0))
    {
        return FALSE;
    }
    CWinApp* app = AfxGetApp();
    instanceRuns = app != nullptr;
    return !app || app->InitInstance();
}

void End()
{
    if (instanceRuns)
    {
        instanceRuns = false;
        AfxGetApp()->ExitInstance();
    }
    AfxWinTerm();
}
} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason != DLL_PROCESS_ATTACH && dwReason != DLL_PROCESS_DETACH)
    {
        return TRUE;
    }
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (dwReason == DLL_PROCESS_ATTACH && Start(hInstance))
    {
        return TRUE;
    }
    End();
    return dwReason == DLL_PROCESS_DETACH;
}
