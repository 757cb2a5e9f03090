#include "host/Session.h"

#include "host/Picture.h"

#include <windows.h>

#include <functional>
#include <vector>

namespace
{

constexpr UINT kStepMilliseconds = 300;
constexpr int kTabStrip = 6000;
constexpr int kTabWidth = 100;
constexpr int kPageList = 6001;
constexpr int kOneOpen = 6002;
constexpr int kOpenPrompt = 6003;

// The entries of the list, with what their pictures are called.
struct Entry
{
    const char* name;
    int tabs;
};

const Entry kEntries[] = {{"public", 2}, {"options", 6},   {"future", 3},
                          {"stock", 4},  {"indicator", 1}, {"other", 1}};
constexpr int kIndicatorRow = 4; // the entry with the two boxes

std::vector<std::function<void()>> steps;
size_t nextStep = 0;

HWND SettingsWindow()
{
    return FindWindowA(nullptr, "参数设置");
}

struct Search
{
    int id;
    HWND found;
};

// Pages share numbers: the control that the trader sees is meant.
BOOL CALLBACK MatchVisible(HWND child, LPARAM parameter)
{
    auto* const search = reinterpret_cast<Search*>(parameter);
    if (GetDlgCtrlID(child) == search->id && IsWindowVisible(child))
        search->found = child;
    return !search->found;
}

HWND FindDescendant(HWND parent, int id)
{
    Search search = {id, nullptr};
    EnumChildWindows(parent, MatchVisible, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void ClickAt(POINT screen)
{
    SetCursorPos(screen.x, screen.y);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
}

void Click(HWND control, int x, int y)
{
    POINT point = {x, y};
    ClientToScreen(control, &point);
    ClickAt(point);
}

void ClickControl(int id)
{
    const HWND control = FindDescendant(SettingsWindow(), id);
    RECT client;
    GetClientRect(control, &client);
    Click(control, 10, client.bottom / 2);
}

void ClickRow(int row)
{
    const HWND list = FindDescendant(SettingsWindow(), kPageList);
    RECT item;
    SendMessageA(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&item));
    Click(list, item.right / 2, (item.top + item.bottom) / 2);
}

void ClickTab(int tab)
{
    Click(FindDescendant(SettingsWindow(), kTabStrip), tab * kTabWidth + kTabWidth / 2, 20);
}

void PlanPicture(const std::string& folder, const std::string& name)
{
    steps.push_back([=] { SavePicture(SettingsWindow(), folder + "\\" + name + ".bmp"); });
}

void PlanEntry(const std::string& folder, int row, const Entry& entry)
{
    steps.push_back([row] { ClickRow(row); });
    PlanPicture(folder, std::string(entry.name) + "-1");
    for (int tab = 1; tab < entry.tabs; ++tab)
    {
        steps.push_back([tab] { ClickTab(tab); });
        PlanPicture(folder, entry.name + ("-" + std::to_string(tab + 1)));
    }
}

void PlanSession(const std::string& folder)
{
    int row = 0;
    for (const Entry& entry : kEntries)
        PlanEntry(folder, row++, entry);
    steps.push_back([] { ClickRow(kIndicatorRow); });
    steps.push_back([] { ClickControl(kOneOpen); });
    steps.push_back([] { ClickControl(kOpenPrompt); });
    PlanPicture(folder, "indicator-changed");
    steps.push_back([] { ClickControl(IDOK); });
}

void CALLBACK TakeStep(HWND, UINT, UINT_PTR timer, DWORD)
{
    if (nextStep == 0 && !IsWindowVisible(SettingsWindow()))
        return; // not yet there
    steps[nextStep++]();
    if (nextStep == steps.size())
        KillTimer(nullptr, timer);
}

/// Takes the steps from the moment when the window is there.
void Start(const std::string& pictureFolder, const std::function<void()>& plan)
{
    CreateDirectoryA(pictureFolder.c_str(), nullptr);
    steps.clear();
    nextStep = 0;
    plan();
    SetTimer(nullptr, 0, kStepMilliseconds, TakeStep);
}

} // namespace

void StartSession(const std::string& pictureFolder)
{
    Start(pictureFolder, [&] { PlanSession(pictureFolder); });
}

void StartPicture(const std::string& pictureFolder, const std::string& name)
{
    Start(pictureFolder,
          [&]
          {
              PlanPicture(pictureFolder, name);
              steps.push_back([] { ClickControl(IDCANCEL); });
          });
}
