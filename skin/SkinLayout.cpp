#include "skin/SkinLayout.h"

#include "core/Gbk.h"

#include <cstring>

namespace
{

// Button styles as the dialog template holds them.
constexpr uint32_t kButtonTypeMask = 0xF;
constexpr uint32_t kPushButton = 0;
constexpr uint32_t kDefaultPushButton = 1;
constexpr uint32_t kAutoCheckBox = 3;
constexpr int kOkId = 1;
constexpr int kCancelId = 2;

constexpr int kListImageLeft = 16;
constexpr int kListImageTextGap = 24;
constexpr int kListCheckLeft = 10;
constexpr int kListCheckTextGap = 18;
constexpr int kListCheckedCell = 2;

DrawnControl ChooseDrawnButton(uint32_t style, int id)
{
    const uint32_t type = style & kButtonTypeMask;
    if (type == kAutoCheckBox)
        return DrawnControl::CheckBox;
    const bool isPushButton = type == kPushButton || type == kDefaultPushButton;
    const bool endsDialog = id == kOkId || id == kCancelId;
    return isPushButton && endsDialog ? DrawnControl::DialogButton : DrawnControl::None;
}

int Centred(const Box& item, int height)
{
    return item.top + (item.height - height) / 2;
}

uint32_t CaptionChannel(uint32_t channel)
{
    constexpr double kShare = 0.7;
    const uint32_t rest = 255 - channel;
    return static_cast<uint32_t>(rest < 128 ? channel - channel * kShare : channel + rest * kShare);
}

} // namespace

void CopyCut(char* buffer, size_t capacity, const char* text)
{
    const size_t length = GbkPrefixLength(text, capacity - 1);
    memcpy(buffer, text, length);
    buffer[length] = 0;
}

DrawnControl ChooseDrawnControl(const char* className, uint32_t style, int id)
{
    if (strstr(className, "ComboBox"))
        return DrawnControl::ComboBox;
    if (strstr(className, "Button"))
        return ChooseDrawnButton(style, id);
    if (strstr(className, "RichEdit"))
        return DrawnControl::RichEdit;
    if (strstr(className, "ListBox"))
        return DrawnControl::ListBox;
    return DrawnControl::None;
}

int CheckBoxCell(bool checked, bool enabled, bool pressed)
{
    if (checked)
        return !enabled ? 7 : pressed ? 4 : 5;
    return !enabled ? 3 : pressed ? 2 : 0;
}

BitmapPart CheckBoxPart(int cell, int cellWidth, int cellHeight, int clientHeight)
{
    return {{cell * cellWidth, 0, cellWidth, cellHeight},
            {0, (clientHeight - cellHeight) / 2, cellWidth, cellHeight}};
}

int CheckBoxTextLeft(int cellWidth, int textGap)
{
    return textGap ? cellWidth + textGap : cellWidth * 2;
}

bool HitsClientArea(int x, int y, int width, int height)
{
    return x >= 0 && y >= 0 && x <= width && y <= height;
}

BitmapPart ComboArrowPart(int faceWidth, int faceHeight, int bitmapWidth, int bitmapHeight,
                          bool pressed)
{
    const int half = bitmapWidth / 2;
    return {{pressed ? half : 0, 1, half - 1, bitmapHeight - 2},
            {faceWidth - half, 1, half - 1, faceHeight - 2}};
}

BitmapPart ListImagePart(const Box& item, const ListStrip& strip, int image, bool selected)
{
    if (image < 0 || image >= strip.columns)
        return {};
    const int width = strip.CellWidth();
    const int height = strip.height / 2;
    return {{image * width, selected ? height : 0, width, height},
            {item.left + kListImageLeft, Centred(item, height), width, height}};
}

BitmapPart ListCheckPart(const Box& item, const ListStrip& strip, bool checked)
{
    const int width = strip.CellWidth();
    return {{checked ? kListCheckedCell * width : 0, 0, width, strip.height},
            {item.left + kListCheckLeft, Centred(item, strip.height), width, strip.height}};
}

int ListImageTextLeft(const Box& item, const ListStrip& strip)
{
    return item.left + strip.CellWidth() + kListImageTextGap;
}

int ListCheckTextLeft(const Box& item, const ListStrip& strip)
{
    return item.left + strip.CellWidth() + kListCheckTextGap;
}

ButtonState NextButtonState(ButtonState state, ButtonEvent event)
{
    if (event == ButtonEvent::LookDisabled)
        return ButtonState::Disabled;
    if (event == ButtonEvent::LookEnabled)
        return ButtonState::Normal;
    if (state == ButtonState::Disabled)
        return state;

    switch (event)
    {
    case ButtonEvent::MouseEnters:
        return ButtonState::Hover;
    case ButtonEvent::Down:
        return ButtonState::Pressed;
    case ButtonEvent::FocusShown:
        return state == ButtonState::Normal ? ButtonState::Hover : state;
    default: // mouse leaves, up, focus lost
        return ButtonState::Normal;
    }
}

uint32_t CaptionColorOn(uint32_t face)
{
    const uint32_t red = CaptionChannel(face & 0xFF);
    const uint32_t green = CaptionChannel(face >> 8 & 0xFF);
    const uint32_t blue = CaptionChannel(face >> 16 & 0xFF);
    return red | green << 8 | blue << 16;
}
