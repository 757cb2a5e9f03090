#include "hotkeys/KeyName.h"

#include "core/Text.h"
#include "hotkeys/HotKeyRecord.h"

#include <cstring>

namespace
{
struct KeyText
{
    unsigned int first;
    unsigned int last;
    const char* format; ///< prints the code less `base`, if anything
    unsigned int base;
};

const KeyText kKeyTexts[] = {
    {112, 123, "F%d", 111},
    {65, 90, "%c", 0},
    {48, 57, "%d", 48},
    {96, 105, "小键盘 %d", 96},
    {13, 13, "回车", 0},
    {33, 33, "Page Up", 0},
    {34, 34, "Page Down", 0},
    {35, 35, "End", 0},
    {36, 36, "Home", 0},
    {37, 37, "向左键", 0},
    {38, 38, "向上键", 0},
    {39, 39, "向右键", 0},
    {40, 40, "向下键", 0},
    {45, 45, "Insert", 0},
    {46, 46, "Del", 0},
    {106, 106, "小键盘 *", 0},
    {107, 107, "小键盘 +", 0},
    {109, 109, "小键盘 -", 0},
    {110, 110, "小键盘 .", 0},
    {111, 111, "小键盘 /", 0},
    {144, 144, "Num Lock", 0},
    {186, 186, ";", 0},
    {187, 187, "=", 0},
    {188, 188, ",", 0},
    {189, 189, "-", 0},
    {190, 190, ".", 0},
    {191, 191, "/", 0},
    {219, 219, "[", 0},
    {221, 221, "]", 0},
    {222, 222, "'", 0},
    // The backslash stands at 230, 220 has no name, and neither has 192. This is meant.
    {230, 230, "\\", 0},
};

const KeyText* FindKeyText(unsigned int vk)
{
    for (const KeyText& key : kKeyTexts)
    {
        if (vk >= key.first && vk <= key.last)
            return &key;
    }
    return nullptr;
}
} // namespace

void MakeKeyName(unsigned int modifiers, unsigned int vk, char* out)
{
    char text[64] = {};
    if (modifiers & kModifierCtrl)
        strcat(text, "Ctrl + ");
    if (modifiers & kModifierAlt)
        strcat(text, "Alt + ");
    if (modifiers & kModifierShift)
        strcat(text, "Shift + ");

    const size_t prefix = strlen(text);
    const KeyText* key = FindKeyText(vk);
    if (key)
        PrintTo(text + prefix, sizeof(text) - prefix, key->format, vk - key->base);
    else
        text[0] = '\0';
    memcpy(out, text, kKeyNameSize);
}
