#include "skin/scroll/PartDrawing.h"

#include <algorithm>

namespace
{

constexpr COLORREF kAllColorBits = 0xFFFFFF;

/// The two colours of a flat arrow.
struct FlatColors
{
    int glyph; // COLOR_ values
    int back;
};

FlatColors FlatArrowColors(UINT state, int style)
{
    if (state == CDIS_DISABLED)
        return {COLOR_3DSHADOW, COLOR_3DFACE};
    if (state == CDIS_SELECTED)
        return {COLOR_3DHILIGHT, COLOR_3DDKSHADOW};
    if (state == CDIS_HOT && style == kCoolSBHot)
        return {COLOR_3DHILIGHT, COLOR_3DSHADOW};
    return {COLOR_BTNTEXT, COLOR_3DFACE};
}

UINT ArrowForm(bool vertical, bool forward)
{
    if (vertical)
        return forward ? DFCS_SCROLLDOWN : DFCS_SCROLLUP;
    return forward ? DFCS_SCROLLRIGHT : DFCS_SCROLLLEFT;
}

UINT StandardArrowState(UINT state)
{
    if (state == CDIS_DISABLED)
        return DFCS_INACTIVE;
    return state == CDIS_SELECTED ? DFCS_PUSHED | DFCS_FLAT : 0;
}

/// A memory device context with a bitmap of its own.
class BitmapDC
{
public:
    BitmapDC(HDC dc, HBITMAP bitmap)
        : memory(CreateCompatibleDC(dc))
        , bitmap(bitmap)
        , old(SelectObject(memory, bitmap))
    {
    }
    ~BitmapDC()
    {
        SelectObject(memory, old);
        DeleteObject(bitmap);
        DeleteDC(memory);
    }
    BitmapDC(const BitmapDC&) = delete;
    BitmapDC& operator=(const BitmapDC&) = delete;
    operator HDC() const { return memory; }

private:
    HDC memory;
    HBITMAP bitmap;
    HGDIOBJ old;
};

/// Draws the arrow alone into a monochrome mask: black on white.
void DrawArrowMask(HDC mask, HDC dc, SIZE size, UINT form)
{
    const BitmapDC colored(dc, CreateCompatibleBitmap(dc, size.cx, size.cy));
    // The control's own border falls outside the bitmap.
    RECT control = {-2, -2, size.cx + 2, size.cy + 2};
    DrawFrameControl(colored, &control, DFC_SCROLL, form | DFCS_FLAT);
    // What has the background colour becomes white, anything else black.
    SetBkColor(colored, GetSysColor(COLOR_3DFACE));
    BitBlt(mask, 0, 0, size.cx, size.cy, colored, 0, 0, SRCCOPY);
}

void DrawFlatArrow(HDC dc, const RECT& rect, UINT form, FlatColors colors)
{
    const SIZE size = {rect.right - rect.left, rect.bottom - rect.top};
    const BitmapDC mask(dc, CreateBitmap(size.cx, size.cy, 1, 1, nullptr));
    DrawArrowMask(mask, dc, size, form);
    // Black is copied in the text colour, white in the background colour.
    const COLORREF oldText = SetTextColor(dc, GetSysColor(colors.glyph));
    const COLORREF oldBack = SetBkColor(dc, GetSysColor(colors.back));
    BitBlt(dc, rect.left, rect.top, size.cx, size.cy, mask, 0, 0, SRCCOPY);
    SetTextColor(dc, oldText);
    SetBkColor(dc, oldBack);
}

/// A checkerboard, made once and kept.
HBRUSH CheckeredBrush()
{
    static const HBRUSH brush = []
    {
        const WORD rows[8] = {0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55};
        const HBITMAP bitmap = CreateBitmap(8, 8, 1, 1, rows);
        const HBRUSH pattern = CreatePatternBrush(bitmap);
        DeleteObject(bitmap);
        return pattern;
    }();
    return brush;
}

void FillCheckered(HDC dc, const RECT& rect, COLORREF fore, COLORREF back)
{
    const COLORREF oldText = SetTextColor(dc, fore);
    const COLORREF oldBack = SetBkColor(dc, back);
    const HGDIOBJ oldBrush = SelectObject(dc, CheckeredBrush());
    PatBlt(dc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, PATCOPY);
    SelectObject(dc, oldBrush);
    SetTextColor(dc, oldText);
    SetBkColor(dc, oldBack);
}

COLORREF PageAreaFore()
{
    const COLORREF hilight = GetSysColor(COLOR_3DHILIGHT);
    const bool looksLikeWindow =
        hilight == GetSysColor(COLOR_WINDOW) && hilight != RGB(255, 255, 255);
    return looksLikeWindow ? GetSysColor(COLOR_3DFACE) : hilight;
}

COLORREF Inverse(COLORREF color)
{
    return ~color & kAllColorBits;
}

// Inserted buttons

void DrawButtonFace(HDC dc, RECT rect, UINT state, int style)
{
    const bool isHot = state == CDIS_HOT;
    const bool isPressed = state == CDIS_SELECTED;
    // In the hot style a button lies flat until the mouse is above it.
    const bool isFlat = style == kCoolSBHot && !isHot && !isPressed;
    if (!isFlat)
        DrawEdge(dc, &rect, isPressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT | BF_ADJUST);
    FillRect(dc, &rect, GetSysColorBrush(isHot ? COLOR_3DLIGHT : COLOR_3DFACE));
}

void DrawButtonBitmap(HDC dc, const RECT& rect, HBITMAP bitmap)
{
    BITMAP size = {};
    if (!GetObjectA(bitmap, sizeof size, &size))
        return;
    const int width = std::min<int>(size.bmWidth, rect.right - rect.left);
    const int height = std::min<int>(size.bmHeight, rect.bottom - rect.top);
    const int left = rect.left + (rect.right - rect.left - width) / 2;
    const int top = rect.top + (rect.bottom - rect.top - height) / 2;
    // A monochrome bitmap takes the colours of a button.
    const COLORREF oldText = SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    const COLORREF oldBack = SetBkColor(dc, GetSysColor(COLOR_3DFACE));
    const HDC memory = CreateCompatibleDC(dc);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(dc, left, top, width, height, memory, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    DeleteDC(memory);
    SetTextColor(dc, oldText);
    SetBkColor(dc, oldBack);
}

void DrawPushButton(HDC dc, const RECT& rect, const CoolSBButton& button, UINT state, int style)
{
    DrawButtonFace(dc, rect, state, style);
    RECT inside = rect;
    InflateRect(&inside, -2, -2);
    if (state == CDIS_SELECTED)
        OffsetRect(&inside, 1, 1);
    if (button.bitmap)
        DrawButtonBitmap(dc, inside, button.bitmap);
    if (button.metafile)
        PlayEnhMetaFile(dc, button.metafile, &inside);
}

} // namespace

void DrawArrow(HDC dc, const RECT& rect, bool vertical, bool forward, UINT state, int style)
{
    const UINT form = ArrowForm(vertical, forward);
    if (style != kCoolSBStandard)
        return DrawFlatArrow(dc, rect, form, FlatArrowColors(state, style));
    RECT control = rect;
    DrawFrameControl(dc, &control, DFC_SCROLL, form | StandardArrowState(state));
}

void DrawPageArea(HDC dc, const RECT& rect, bool pressed)
{
    const COLORREF fore = PageAreaFore();
    const COLORREF back = GetSysColor(COLOR_SCROLLBAR);
    if (pressed)
        FillCheckered(dc, rect, Inverse(fore), Inverse(back));
    else
        FillCheckered(dc, rect, fore, back);
}

void DrawThumb(HDC dc, const RECT& rect, int style)
{
    RECT inside = rect;
    DrawEdge(dc, &inside, EDGE_RAISED, BF_RECT | BF_ADJUST);
    FillRect(dc, &inside, GetSysColorBrush(style == kCoolSBHot ? COLOR_3DSHADOW : COLOR_3DFACE));
}

void DrawSizeGrip(HDC dc, RECT rect, bool atLeft)
{
    FillRect(dc, &rect, GetSysColorBrush(COLOR_BTNFACE));
    DrawFrameControl(dc, &rect, DFC_SCROLL,
                     atLeft ? DFCS_SCROLLSIZEGRIPRIGHT : DFCS_SCROLLSIZEGRIP);
}

void DrawInsertedButton(HDC dc, const RECT& rect, const CoolSBButton& button, UINT state, int style)
{
    const UINT type = button.type & kCoolSBTypeMask;
    switch (type)
    {
    case kCoolSBRaisedBlank:
        return DrawButtonFace(dc, rect, CDIS_DEFAULT, kCoolSBStandard);
    case kCoolSBFaceBlank:
        FillRect(dc, &rect, GetSysColorBrush(COLOR_3DFACE));
        return;
    case kCoolSBShadowBlank:
        FillRect(dc, &rect, GetSysColorBrush(COLOR_3DDKSHADOW));
        return;
    default:
        const bool cannotBeHot = type == kCoolSBToggleNotHot && state == CDIS_HOT;
        DrawPushButton(dc, rect, button, cannotBeHot ? CDIS_DEFAULT : state, style);
    }
}
