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
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
    {
        if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST)
            DispatchMessageA(&message);
    }
}

void Send(uint8_t modifiers, DWORD flags)
{
    for (const ModifierKey& key : kKeys)
    {
        if (modifiers & key.bit)
            keybd_event(key.vk, 0, flags, 0);
    }
}

// Sends keys until the thread has seen what is expected then, and says what it sees. Input takes its
// time on a busy machine, and is lost while a new window is not yet the display's.
uint8_t HeldAfterSending(uint8_t keys, DWORD flags, uint8_t expected)
{
    for (int i = 0; i < 500 && ReadKeyboardModifiers() != expected; ++i)
    {
        if (i % 50 == 0)
            Send(keys, flags);
        Sleep(10);
        PumpMessages();
    }
    return ReadKeyboardModifiers();
}

// Asks again and again: a window that is not on the display yet does not get the focus.
void TakeFocus(HWND window)
{
    for (int i = 0; i < 500; ++i)
    {
        SetForegroundWindow(window);
        SetFocus(window);
        PumpMessages();
        if (GetForegroundWindow() == window && GetFocus() == window)
            return;
        Sleep(10);
    }
    ADD_FAILURE() << "the window does not get the focus";
}

void Press(uint8_t modifiers)
{
    EXPECT_EQ(modifiers, HeldAfterSending(modifiers, 0, modifiers));
}

void Release(uint8_t modifiers)
{
    EXPECT_EQ(0, HeldAfterSending(modifiers, KEYEVENTF_KEYUP, 0));
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
            TakeFocus(window);
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
                Press(static_cast<uint8_t>(modifiers));
                Release(static_cast<uint8_t>(modifiers));
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
            Press(kModifierCtrl | kModifierShift);
            char name[kKeyNameSize] = {};
            EXPECT_TRUE(keys.CaptureKey(0, 'A', name));
            EXPECT_STREQ("Ctrl + Shift + A", name);
            EXPECT_EQ(&keys.list[0], keys.FindHeldKey('A'));
            Release(kModifierCtrl | kModifierShift);
            EXPECT_EQ(nullptr, keys.FindHeldKey('A'));
        });
}
