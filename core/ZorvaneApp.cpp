#include "core/ZorvaneApp.h"

#include "core/DefaultTables.h"
#include "core/HostFolder.h"
#include "core/Text.h"
#include "frame/MainDlg.h"
#include "frame/SubMainDlg.h"
#include "pages/SelectConditionOrderMode.h"
#include "pages/ShippedSettings.h"
#include "skin/SkinCache.h"

CZorvaneApp theApp;

CZorvaneApp::CZorvaneApp()
    : CWinApp(nullptr)
{
}

BOOL CZorvaneApp::InitInstance()
{
    // Every relative path of the module rests on this folder.
    const std::string hostFolder = HostFolder();
    SetCurrentDirectoryA(hostFolder.c_str());

    // Nothing here may need what the host gives by its calls: none came yet.
    if (OpenSelectConditionOrderMode() == 1 && !HasRunBefore())
        CSelectConditionOrderMode().DoModal();

    LoadSkin(hostFolder);
    LoadStockDefaults();
    LoadOptionsDefaults(false);
    return CWinApp::InitInstance();
}

void CZorvaneApp::LoadSkin(const std::string& hostFolder)
{
    char settings[1024];
    PrintTo(settings, sizeof(settings), "%s\\cfg\\System\\other.ini", hostFolder.c_str());
    char skin[64];
    GetPrivateProfileStringA("Skin", "Active", "蓝色空间", skin, sizeof(skin), settings);

    char folder[1024];
    PrintTo(folder, sizeof(folder), "%s\\skin\\%s\\Trade\\", hostFolder.c_str(), skin);
    const char* const files[] = {"6.bmp", "7.bmp", "p11.bmp"};
    for (size_t i = 0; i < std::size(files); ++i)
        m_skinBitmaps[i] = LoadBitmapFile((std::string(folder) + files[i]).c_str(), 0);
}

BOOL CZorvaneApp::PreTranslateMessage(MSG* message)
{
    const bool isPress = message->message == WM_LBUTTONDOWN || message->message == WM_RBUTTONDOWN;
    if (isPress && m_openWindow && m_openWindow->GetSafeHwnd() && m_openWindow->CurrentHost())
        m_openWindow->CurrentHost()->SendMessage(
            kMsgMousePressed, static_cast<WPARAM>(message->pt.y) << 16 | LOWORD(message->pt.x), 0);
    return CWinApp::PreTranslateMessage(message);
}
