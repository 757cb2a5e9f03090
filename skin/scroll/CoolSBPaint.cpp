#include "skin/scroll/CoolSBPaint.h"

#include "skin/SkinCache.h"
#include "skin/scroll/PartDrawing.h"

namespace
{

/// The device context of a whole window, frame included.
class FrameDC
{
public:
    explicit FrameDC(HWND hwnd)
        : hwnd(hwnd)
        , dc(GetWindowDC(hwnd))
    {
    }
    ~FrameDC() { ReleaseDC(hwnd, dc); }
    FrameDC(const FrameDC&) = delete;
    FrameDC& operator=(const FrameDC&) = delete;
    operator HDC() const { return dc; }

private:
    HWND hwnd;
    HDC dc;
};

/// All that painting a bar needs, taken before the first notification: after one, the window's
/// record may be gone.
struct BarPicture
{
    HWND hwnd;
    HDC dc;
    int bar;
    BarShape shape; // on the screen
    POINT origin;   // of the window, on the screen
    int style;
    UINT disabledArrows; // ESB_ value
    int pressedPart;
    int hotPart;
    std::optional<int> draggedThumbPos;
};

POINT WindowOrigin(HWND hwnd)
{
    RECT window = {};
    GetWindowRect(hwnd, &window);
    return {window.left, window.top};
}

bool IsPressOn(HWND hwnd, int bar)
{
    return coolSBTracking.press.window == hwnd && coolSBTracking.press.trackBar == bar;
}

bool IsHoverOn(HWND hwnd, int bar)
{
    return coolSBTracking.hover.window == hwnd && coolSBTracking.hover.hoverBar == bar;
}

BarPicture PictureOf(HWND hwnd, HDC dc, const CoolSBWindow& window, const CoolSBBar& bar)
{
    BarPicture picture = {};
    picture.hwnd = hwnd;
    picture.dc = dc;
    picture.bar = bar.barType;
    picture.shape = ShapeOf(hwnd, window, bar);
    picture.origin = WindowOrigin(hwnd);
    picture.style = bar.style;
    picture.disabledArrows = bar.flags & kBarArrowsDisabled;
    const bool isPressed = IsPressOn(hwnd, bar.barType);
    picture.pressedPart = isPressed ? coolSBTracking.press.pressedPart : kPartNone;
    picture.hotPart = IsHoverOn(hwnd, bar.barType) ? coolSBTracking.hover.hoverPart : kPartNone;
    if (isPressed && window.thumbTracking)
        picture.draggedThumbPos = coolSBTracking.press.thumb.thumbPos;
    return picture;
}

RECT InWindow(const BarPicture& picture, const ScrollBox& box)
{
    RECT rect = RectOf(box);
    OffsetRect(&rect, -picture.origin.x, -picture.origin.y);
    return rect;
}

RECT SpanRect(const BarPicture& picture, ScrollSpan span)
{
    return InWindow(picture, PartBox(picture.shape.box, picture.shape.vertical, span));
}

UINT PartState(const BarPicture& picture, int part)
{
    const bool arrowDisabled =
        (part == kPartArrowBack && (picture.disabledArrows & ESB_DISABLE_LEFT)) ||
        (part == kPartArrowForward && (picture.disabledArrows & ESB_DISABLE_RIGHT));
    if (arrowDisabled || !picture.shape.canScroll)
        return CDIS_DISABLED;
    if (part == picture.pressedPart)
        return CDIS_SELECTED;
    return part == picture.hotPart ? CDIS_HOT : CDIS_DEFAULT;
}

NMCoolSBCustomDraw Notification(HWND hwnd, HDC dc, UINT bar, const RECT& rect)
{
    NMCoolSBCustomDraw draw = {};
    draw.hdr.hwndFrom = hwnd;
    draw.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(hwnd));
    draw.hdr.code = NM_COOLSB_CUSTOMDRAW;
    draw.hdc = dc;
    draw.rect = rect;
    draw.bar = bar;
    return draw;
}

LRESULT NotifyBar(const BarPicture& picture, DWORD stage)
{
    NMCoolSBCustomDraw draw =
        Notification(picture.hwnd, picture.dc, picture.bar, InWindow(picture, picture.shape.box));
    draw.drawStage = stage;
    return NotifyParent(draw.hdr);
}

LRESULT NotifyItem(NMCoolSBCustomDraw& draw, UINT item, UINT state)
{
    draw.drawStage = CDDS_ITEMPREPAINT;
    draw.item = item;
    draw.state = state;
    return NotifyParent(draw.hdr);
}

void DrawPart(const BarPicture& picture, int part, const RECT& rect, UINT state)
{
    switch (part)
    {
    case kPartArrowBack:
    case kPartArrowForward:
        DrawArrow(picture.dc, rect, picture.shape.vertical, part == kPartArrowForward, state,
                  picture.style);
        break;
    case kPartThumb:
        DrawThumb(picture.dc, rect, picture.style);
        break;
    default:
        DrawPageArea(picture.dc, rect, state == CDIS_SELECTED);
    }
}

bool IsArrow(int part)
{
    return part == kPartArrowBack || part == kPartArrowForward;
}

void PaintParts(const BarPicture& picture, bool withArrows)
{
    const bool isCustom = NotifyBar(picture, CDDS_PREPAINT) == CDRF_SKIPDEFAULT;
    for (const PartSpan& item : LayOutParts(picture.shape, picture.draggedThumbPos))
    {
        if (SpanLength(item.span) == 0 || (IsArrow(item.part) && !withArrows))
            continue;
        const RECT rect = SpanRect(picture, item.span);
        const UINT state = PartState(picture, item.part);
        NMCoolSBCustomDraw draw = Notification(picture.hwnd, picture.dc, picture.bar, rect);
        if (isCustom)
            NotifyItem(draw, item.part, state);
        else
            DrawPart(picture, item.part, rect, state);
    }
    NotifyBar(picture, CDDS_POSTPAINT);
}

UINT ButtonState(const BarPicture& picture, const CoolSBButton& button, int index)
{
    const CoolSBTracking& tracking = coolSBTracking;
    const UINT type = button.type & kCoolSBTypeMask;
    const bool isToggle = type == kCoolSBToggle || type == kCoolSBToggleNotHot;
    if (picture.pressedPart == kPartButton && tracking.press.pressedButton == index)
        return CDIS_SELECTED;
    if (isToggle && button.state)
        return CDIS_SELECTED;
    if (picture.hotPart == kPartButton && tracking.hover.hoverButton == index)
        return CDIS_HOT;
    return CDIS_DEFAULT;
}

void PaintButton(const BarPicture& picture, const CoolSBButton& button, const RECT& rect,
                 UINT state)
{
    if ((button.type & kCoolSBTypeMask) != kCoolSBOwnerDrawn)
        return DrawInsertedButton(picture.dc, rect, button, state, picture.style);
    NMCoolSBCustomDraw draw = Notification(picture.hwnd, picture.dc, picture.bar, rect);
    draw.hdr.idFrom = button.id;
    NotifyItem(draw, kPartButton, state);
}

void PaintButtons(const BarPicture& picture, const CoolSBBar& bar)
{
    const CoolSBBar shown = bar; // an owner-drawn button may end the subclass
    const ButtonRow row = ButtonsOf(shown);
    const ScrollSpan whole = AxisSpan(picture.shape.box, picture.shape.vertical);
    for (int i = 0; i < row.Count(); ++i)
    {
        const bool isBefore = row[i].placement == kButtonBefore;
        if (!(isBefore ? shown.buttonsBeforeShown : shown.buttonsAfterShown))
            continue;
        PaintButton(picture, shown.buttons[i], SpanRect(picture, row.Place(i, whole)),
                    ButtonState(picture, shown.buttons[i], i));
    }
}

void UpdateShownButtons(HWND hwnd, const CoolSBWindow& window, CoolSBBar& bar)
{
    const BarShape shape = ShapeOf(hwnd, window, bar);
    const ShownButtons shown =
        FitButtons(ButtonsOf(bar), SpanLength(AxisSpan(shape.box, shape.vertical)));
    bar.buttonsBeforeShown = shown.before;
    bar.buttonsAfterShown = shown.after;
}

/// Whether a window's corner lies in the corner of its parent, where it serves to size the parent.
bool IsAtParentsCorner(HWND hwnd, const ScrollBox& corner, bool atLeft)
{
    const HWND parent = GetAncestor(hwnd, GA_PARENT);
    if (!parent || parent == GetDesktopWindow())
        return false;
    RECT client = {};
    GetClientRect(parent, &client);
    MapWindowPoints(parent, nullptr, reinterpret_cast<POINT*>(&client), 2);
    const bool sideMeets = atLeft ? corner.left == client.left : corner.right == client.right;
    return sideMeets && corner.bottom == client.bottom;
}

} // namespace

void PaintBar(HWND hwnd, int bar)
{
    const CoolSBBar* shown = GetShownBar(hwnd, bar);
    if (!shown)
        return;
    const FrameDC dc(hwnd);
    const BarPicture picture = PictureOf(hwnd, dc, *GetCoolSBWindow(hwnd), *shown);
    PaintButtons(picture, *shown);
    PaintParts(picture, true);
}

void PaintTrack(HWND hwnd, int bar)
{
    const CoolSBBar* shown = GetShownBar(hwnd, bar);
    if (!shown)
        return;
    const FrameDC dc(hwnd);
    PaintParts(PictureOf(hwnd, dc, *GetCoolSBWindow(hwnd), *shown), false);
}

void PaintBars(HWND hwnd)
{
    for (const int bar : {SB_HORZ, SB_VERT})
    {
        if (CoolSBBar* shown = GetShownBar(hwnd, bar))
            UpdateShownButtons(hwnd, *GetCoolSBWindow(hwnd), *shown);
        PaintBar(hwnd, bar);
    }
}

void PaintCorner(HWND hwnd)
{
    if (!GetShownBar(hwnd, SB_HORZ) || !GetShownBar(hwnd, SB_VERT))
        return;
    const CoolSBWindow& window = *GetCoolSBWindow(hwnd);
    const ScrollBox corner = GetCornerRect(FrameOf(hwnd, window));
    const bool atLeft = window.leftScrollBar;
    const POINT origin = WindowOrigin(hwnd);
    RECT rect = RectOf(corner);
    OffsetRect(&rect, -origin.x, -origin.y);

    const FrameDC dc(hwnd);
    NMCoolSBCustomDraw draw = Notification(hwnd, dc, kCoolSBCornerBar, rect);
    if (NotifyItem(draw, kCoolSBCornerItem, CDIS_DEFAULT) == CDRF_SKIPDEFAULT)
        return;
    if (IsAtParentsCorner(hwnd, corner, atLeft))
        DrawSizeGrip(dc, rect, atLeft);
    else
        FillRect(dc, &rect, GetSysColorBrush(COLOR_BTNFACE));
}
