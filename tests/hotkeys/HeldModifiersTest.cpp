// Real modifier keys, held down on the machine's keyboard.
#include "hotkeys/HeldModifiers.h"

#include "hotkeys/HotKey.h"
#include "hotkeys/KeyName.h"

#include <gtest/gtest.h>
#include <thread>
#include <windows.h>

namespace
{
struct ModifierKey
{
    BYTE vk;
    uint8_t bit;
};

const ModifierKey kKeys[] = {
    {VK_CONTROL, kModifierCtrl},
    {VK_MENU, kModifierAlt},
    {VK_SHIFT, kModifierShift},
};

// Keys are taken and not handed on: Alt alone would open the window's menu and wait in it.
void PumpMessages()
{
    for (int i = 0; i < 5; ++i)
    {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        {
            if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST)
                DispatchMessageA(&message);
        }
        Sleep(5);
    }
}

void Press(uint8_t modifiers, DWORD flags)
{
    for (const ModifierKey& key : kKeys)
    {
        if (modifiers & key.bit)
            keybd_event(key.vk, 0, flags, 0);
    }
    PumpMessages();
}

// Runs `body` in a thread of its own with a window that has the focus.
template <class Body>
void WithFocus(Body body)
{
    std::thread(
        [body]
        {
            const HWND window =
                CreateWindowExA(0, "STATIC", "keys", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                                100, nullptr, nullptr, nullptr, nullptr);
            SetForegroundWindow(window);
            SetFocus(window);
            PumpMessages();
            body();
            DestroyWindow(window);
        })
        .join();
}
} // namespace

TEST(HeldModifiers, EveryCombinationIsSeen)
{
    WithFocus(
        []
        {
            for (int modifiers = 0; modifiers < 8; ++modifiers)
            {
                Press(static_cast<uint8_t>(modifiers), 0);
                EXPECT_EQ(modifiers, ReadKeyboardModifiers());
                Press(static_cast<uint8_t>(modifiers), KEYEVENTF_KEYUP);
                EXPECT_EQ(0, ReadKeyboardModifiers());
            }
        });
}

TEST(HeldModifiers, StoresSeeTheKeyboard)
{
    WithFocus(
        []
        {
            CHotKey keys(2);
            keys.AddRow();
            Press(kModifierCtrl | kModifierShift, 0);
            char name[kKeyNameSize] = {};
            EXPECT_TRUE(keys.CaptureKey(0, 'A', name));
            EXPECT_STREQ("Ctrl + Shift + A", name);
            EXPECT_EQ(&keys.list[0], keys.FindHeldKey('A'));
            Press(kModifierCtrl | kModifierShift, KEYEVENTF_KEYUP);
            EXPECT_EQ(nullptr, keys.FindHeldKey('A'));
        });
}
