#include "tests/mfc/TestApp.h"

#include <gtest/gtest.h>

CTestApp theApp;

// clang-format off
BEGIN_MESSAGE_MAP(CTestApp, CWinApp)
    ON_COMMAND(kAppCommand, &ThisClass::OnAppCommand)
END_MESSAGE_MAP()
// clang-format on

BOOL CTestApp::PreTranslateMessage(MSG* pMsg)
{
    if (onPreTranslate && onPreTranslate(*pMsg))
    {
        return TRUE;
    }
    return CWinApp::PreTranslateMessage(pMsg);
}

BOOL CTestApp::ProcessMessageFilter(int code, LPMSG lpMsg)
{
    ++filtered;
    return CWinApp::ProcessMessageFilter(code, lpMsg);
}

void PumpPending()
{
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
    {
        if (!AfxPumpMessage())
        {
            break;
        }
    }
    theApp.OnIdle(0);
}

CTestFrame::CTestFrame(bool visible)
{
    CreateEx(0, nullptr, "frame", WS_OVERLAPPEDWINDOW | (visible ? WS_VISIBLE : 0), 50, 50, 400,
             300, nullptr, nullptr);
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
    {
        return 1;
    }
    const int result = RUN_ALL_TESTS();
    AfxWinTerm();
    return result;
}
