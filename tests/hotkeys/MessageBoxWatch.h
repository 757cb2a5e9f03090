// Closes the message boxes of one test and keeps what they said. Windows only.
#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <vector>
#include <windows.h>

class MessageBoxWatch
{
public:
    MessageBoxWatch()
        : watcher([this] { Watch(); })
    {
    }

    ~MessageBoxWatch() { Stop(); }

    /// "title: text" of each box so far.
    std::vector<std::string> Stop()
    {
        stopped = true;
        if (watcher.joinable())
            watcher.join();
        return boxes;
    }

private:
    void Watch()
    {
        while (!stopped)
        {
            const HWND box = FindWindowA("#32770", nullptr);
            if (box && IsWindowVisible(box))
                Answer(box);
            Sleep(10);
        }
    }

    void Answer(HWND box)
    {
        char title[64] = {};
        char text[64] = {};
        GetWindowTextA(box, title, sizeof(title));
        GetDlgItemTextA(box, 0xFFFF, text, sizeof(text));
        std::string said = std::string(title) + ": " + text;
        if (GetWindow(box, GW_OWNER))
            said += " (owned)";
        if (GetDlgItem(box, IDOK) && GetDlgItem(box, IDCANCEL))
            said += " (with a choice)";
        boxes.push_back(said);
        PostMessageA(box, WM_CLOSE, 0, 0);
        while (IsWindow(box) && !stopped)
            Sleep(10);
    }

    std::vector<std::string> boxes;
    std::atomic<bool> stopped{false};
    std::thread watcher;
};
