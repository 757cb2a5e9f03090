// Where the drawn controls put things and which part of a skin bitmap they take: everything about
// the small controls that can be said without a window. Free of windows.h.
#pragma once

#include <cstddef>
#include <cstdint>

/// A rectangle by its corner and size, in pixels.
struct Box
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool IsEmpty() const { return width <= 0 || height <= 0; }
};

/// A part of a bitmap and the place it is drawn to. Nothing is to be drawn when either is empty.
struct BitmapPart
{
    Box source;
    Box target;

    bool IsEmpty() const { return source.IsEmpty() || target.IsEmpty(); }
};

// ---- Texts

/// Copies a text into a buffer of `capacity` bytes (at least 1). What is cut leaves no half of a
/// double-byte character.
void CopyCut(char* buffer, size_t capacity, const char* text);

template <size_t kCapacity>
void CopyCut(char (&buffer)[kCapacity], const char* text)
{
    CopyCut(buffer, kCapacity, text);
}

// ---- Which stock control gets which drawn one

enum class DrawnControl
{
    None,
    ComboBox,
    CheckBox,
    DialogButton,
    RichEdit,
    ListBox
};

/// @param className window class; any name that contains a known one counts
/// @param style     window style  @param id control id
DrawnControl ChooseDrawnControl(const char* className, uint32_t style, int id);

// ---- Check box

constexpr int kCheckCells = 8;

/// The cell of the check strip that shows a state.
int CheckBoxCell(bool checked, bool enabled, bool pressed);

/// The cell at its place: at the left, in the middle of the client area's height.
BitmapPart CheckBoxPart(int cell, int cellWidth, int cellHeight, int clientHeight);

/// Where the text begins. @param textGap pixels behind the cell; 0 means a cell's width
int CheckBoxTextLeft(int cellWidth, int textGap);

/// Whether a mouse message's point lies in the client area, its right and bottom edges included.
bool HitsClientArea(int x, int y, int width, int height);

// ---- Combo box

/// The arrow at the right end of a face of the given size. The bitmap has two halves, normal and
/// pressed.
BitmapPart ComboArrowPart(int faceWidth, int faceHeight, int bitmapWidth, int bitmapHeight,
                          bool pressed);

// ---- List box

/// The strip of a list box.
struct ListStrip
{
    int width = 0;
    int height = 0;
    int columns = 1; ///< at least 1

    int CellWidth() const { return width / columns; }
};

/// An item's image: a column of the strip, of the lower row when the item is selected. Empty for an
/// image below 0 or behind the last column.
BitmapPart ListImagePart(const Box& item, const ListStrip& strip, int image, bool selected);

/// An item's check mark.
BitmapPart ListCheckPart(const Box& item, const ListStrip& strip, bool checked);

int ListImageTextLeft(const Box& item, const ListStrip& strip);
int ListCheckTextLeft(const Box& item, const ListStrip& strip);

/// The first row that holds a point, among the rows from `top` on that begin above the client area's
/// lower edge.
/// @param heightOf   pixels of a row   @param holdsPoint whether a row holds the point
/// @return -1 when none does
template <typename HeightOf, typename HoldsPoint>
int FindVisibleRow(int top, int count, int clientHeight, HeightOf heightOf, HoldsPoint holdsPoint)
{
    int used = 0;
    for (int row = top; row < count && used < clientHeight; ++row)
    {
        if (holdsPoint(row))
            return row;
        used += heightOf(row);
    }
    return -1;
}

// ---- Buttons

enum class ButtonState
{
    Normal,
    Hover,
    Pressed,
    Third, ///< focus or default
    Disabled
};

enum class ButtonEvent
{
    MouseEnters,
    MouseLeaves,
    Down,
    Up,
    FocusLost,
    FocusShown, ///< drawn while it has the focus
    LookDisabled,
    LookEnabled
};

/// The state machine of the drawn buttons. Only LookEnabled leads out of Disabled.
ButtonState NextButtonState(ButtonState state, ButtonEvent event);

/// A caption colour that reads well on a face: lighter on a dark one, darker on a light one.
/// @param face 0x00BBGGRR, as the result
uint32_t CaptionColorOn(uint32_t face);
