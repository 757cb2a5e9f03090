#include "hotkeys/HeldModifiers.h"

#include "hotkeys/HotKeyRecord.h"

#include <windows.h>

uint8_t (*gReadHeldModifiers)() = ReadKeyboardModifiers;

namespace
{
uint8_t BitIfHeld(int vk, HotKeyModifier bit)
{
    return GetKeyState(vk) < 0 ? bit : 0;
}
} // namespace

uint8_t ReadKeyboardModifiers()
{
    return BitIfHeld(VK_CONTROL, kModifierCtrl) | BitIfHeld(VK_MENU, kModifierAlt) |
           BitIfHeld(VK_SHIFT, kModifierShift);
}
