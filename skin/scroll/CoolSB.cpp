#include "skin/scroll/CoolSB.h"

#include "skin/scroll/CoolSBTracking.h"

#include <algorithm>
#include <initializer_list>

#include <versionhelpers.h>

namespace
{

constexpr UINT kReadAtInit = SIF_ALL; // range, page, position and the dragged position: 23
constexpr int kSystemSize = -1;       // once what the system has
constexpr int kLeastSize = -8;
constexpr int kMostSize = 256;

/// The function behind CoolSB_EnableScrollBar, from the first CoolSB_Init on.
decltype(&EnableScrollBar) realEnableScrollBar = nullptr;

bool Includes(int bars, int bar)
{
    return bars == bar || bars == SB_BOTH;
}

/// Calls `change` for the bars that are meant.
/// @return FALSE when the window is not subclassed or no bar is meant
template <typename Change>
BOOL ForBars(HWND hwnd, int bars, Change change)
{
    CoolSBWindow* window = GetCoolSBWindow(hwnd);
    BOOL done = FALSE;
    for (const int bar : {SB_HORZ, SB_VERT})
        if (window && Includes(bars, bar))
        {
            change(BarOf(*window, bar));
            done = TRUE;
        }
    return done;
}

/// The one bar that is meant, or null.
CoolSBBar* FindBar(HWND hwnd, int bar)
{
    CoolSBWindow* window = GetCoolSBWindow(hwnd);
    return window && (bar == SB_HORZ || bar == SB_VERT) ? &BarOf(*window, bar) : nullptr;
}

void SetFlag(CoolSBBar& bar, UINT flag, bool on)
{
    bar.flags = on ? bar.flags | flag : bar.flags & ~flag;
}

int UsualMinThumb()
{
    return IsWindowsVersionOrGreater(5, 0, 0) ? 6 : 8;
}

void InitBar(HWND hwnd, CoolSBBar& bar, int type, LONG styleBit)
{
    bar.barType = type;
    bar.arrowLength = kSystemSize;
    bar.barWidth = kSystemSize;
    bar.minThumb = UsualMinThumb();
    bar.info.cbSize = sizeof bar.info;
    bar.info.fMask = kReadAtInit;
    GetScrollInfo(hwnd, type, &bar.info);
    SetFlag(bar, kBarWanted, (GetWindowLongA(hwnd, GWL_STYLE) & styleBit) != 0);
}

/// Shows a change at once, but not while a drag goes on, with which it would fight.
void Repaint(HWND hwnd, BOOL redraw)
{
    const CoolSBWindow* window = GetCoolSBWindow(hwnd);
    if (!redraw || !window || window->thumbTracking)
        return;
    if (IsFrameStale(*window))
        ForceFrame(hwnd);
    else
        PaintFrame(hwnd);
}

LONG StyleBit(const CoolSBBar& bar)
{
    return bar.barType == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
}

/// Wants a bar or not, and has the window's style tell so.
void Want(HWND hwnd, CoolSBBar& bar, bool wanted)
{
    if (wanted == ((bar.flags & kBarWanted) != 0))
        return;
    SetFlag(bar, kBarWanted, wanted);
    const QuietStyleChanges quiet(hwnd);
    const LONG style = GetWindowLongA(hwnd, GWL_STYLE);
    SetWindowLongA(hwnd, GWL_STYLE, wanted ? style | StyleBit(bar) : style & ~StyleBit(bar));
}

void StoreInfo(CoolSBBar& bar, const SCROLLINFO& info)
{
    if (info.fMask & SIF_RANGE)
    {
        bar.info.nMin = info.nMin;
        bar.info.nMax = info.nMax;
    }
    ScrollValues values = ValuesOf(bar);
    if (info.fMask & SIF_PAGE)
        StorePage(values, info.nPage);
    if (info.fMask & SIF_POS)
        StorePos(values, info.nPos);
    bar.info.nPage = values.page;
    bar.info.nPos = values.pos;
}

void DecideVisibility(HWND hwnd, CoolSBBar& bar, UINT mask)
{
    if (!(mask & SIF_DISABLENOSCROLL) && !(bar.flags & kBarThumbAlways))
        Want(hwnd, bar, CanScroll(ValuesOf(bar)));
}

bool IsSize(int size)
{
    return size != 0 && size >= kLeastSize && size <= kMostSize;
}

// Inserted buttons

bool IsPlacement(UINT placement)
{
    return placement == kButtonBefore || placement == kButtonAfter;
}

void StoreFields(CoolSBButton& button, const CoolSBButton& given)
{
    if (given.mask & kCoolSBHasPlacement)
        button.placement = given.placement;
    if (given.mask & kCoolSBHasId)
        button.id = given.id;
    if (given.mask & kCoolSBHasType)
        button.type = given.type;
    if (given.mask & kCoolSBHasState)
        button.state = given.state;
    if (given.mask & kCoolSBHasSize)
    {
        button.size = given.size;
        button.defaultSize = given.defaultSize;
        button.minSize = given.minSize;
        button.maxSize = given.maxSize;
    }
    if (given.mask & kCoolSBHasBitmap)
        button.bitmap = given.bitmap;
    if (given.mask & kCoolSBHasMetafile)
        button.metafile = given.metafile;
    if (given.mask & kCoolSBHasCursor)
        button.cursor = given.cursor;
    button.mask |= given.mask;
}

bool IsSound(const CoolSBButton& given)
{
    return !(given.mask & kCoolSBHasPlacement) || IsPlacement(given.placement);
}

CoolSBButton* FindButton(HWND hwnd, int bar, int index)
{
    CoolSBBar* found = FindBar(hwnd, bar);
    return found && index >= 0 && index < found->buttonCount ? &found->buttons[index] : nullptr;
}

void ButtonsChanged(HWND hwnd, CoolSBBar& bar)
{
    StoreButtons(bar, ButtonsOf(bar));
    ForceFrame(hwnd);
}

} // namespace

HRESULT CoolSB_Init(HWND hwnd)
{
    if (!realEnableScrollBar)
        realEnableScrollBar = EnableScrollBar;
    if (CoolSB_IsActive(hwnd))
        return S_OK;
    CoolSBWindow* window = AttachCoolSBWindow(hwnd);
    if (!window)
        return E_FAIL;
    InitBar(hwnd, window->horz, SB_HORZ, WS_HSCROLL);
    InitBar(hwnd, window->vert, SB_VERT, WS_VSCROLL);
    const LONG extendedStyle = GetWindowLongA(hwnd, GWL_EXSTYLE);
    window->leftScrollBar = (extendedStyle & WS_EX_LEFTSCROLLBAR) != 0;
    ForceFrame(hwnd);
    return S_OK;
}

HRESULT CoolSB_Uninit(HWND hwnd)
{
    if (!CoolSB_IsActive(hwnd))
        return E_FAIL;
    AbandonTracking(hwnd);
    DetachCoolSBWindow(hwnd);
    ForceFrame(hwnd);
    return S_OK;
}

BOOL CoolSB_IsActive(HWND hwnd)
{
    return GetCoolSBWindow(hwnd) != nullptr;
}

int CoolSB_SetScrollInfo(HWND hwnd, int bar, const SCROLLINFO* info, BOOL redraw)
{
    if (!info)
        return 0;
    if (!CoolSB_IsActive(hwnd))
        return SetScrollInfo(hwnd, bar, info, redraw);
    int pos = 0;
    ForBars(hwnd, bar,
            [&](CoolSBBar& changed)
            {
                StoreInfo(changed, *info);
                DecideVisibility(hwnd, changed, info->fMask);
                pos = changed.info.nPos;
            });
    Repaint(hwnd, redraw);
    return pos;
}

BOOL CoolSB_GetScrollInfo(HWND hwnd, int bar, SCROLLINFO* info)
{
    if (!info)
        return FALSE;
    if (!CoolSB_IsActive(hwnd))
        return GetScrollInfo(hwnd, bar, info);
    const CoolSBBar* asked = FindBar(hwnd, bar);
    if (!asked)
        return FALSE;
    if (info->fMask & SIF_RANGE)
    {
        info->nMin = asked->info.nMin;
        info->nMax = asked->info.nMax;
    }
    if (info->fMask & SIF_PAGE)
        info->nPage = asked->info.nPage;
    if (info->fMask & SIF_POS)
        info->nPos = asked->info.nPos;
    if (info->fMask & SIF_TRACKPOS)
        info->nTrackPos = asked->info.nTrackPos;
    return TRUE;
}

int CoolSB_SetScrollPos(HWND hwnd, int bar, int pos, BOOL redraw)
{
    if (!CoolSB_IsActive(hwnd))
        return SetScrollPos(hwnd, bar, pos, redraw);
    const int before = CoolSB_GetScrollPos(hwnd, bar);
    SCROLLINFO info = {};
    info.fMask = SIF_POS;
    info.nPos = pos;
    ForBars(hwnd, bar, [&info](CoolSBBar& changed) { StoreInfo(changed, info); });
    Repaint(hwnd, redraw);
    return before;
}

int CoolSB_GetScrollPos(HWND hwnd, int bar)
{
    if (!CoolSB_IsActive(hwnd))
        return GetScrollPos(hwnd, bar);
    const CoolSBBar* asked = FindBar(hwnd, bar);
    return asked ? asked->info.nPos : 0;
}

BOOL CoolSB_SetScrollRange(HWND hwnd, int bar, int min, int max, BOOL redraw)
{
    if (!CoolSB_IsActive(hwnd))
        return SetScrollRange(hwnd, bar, min, max, redraw);
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE;
    info.nMin = min;
    info.nMax = max;
    CoolSB_SetScrollInfo(hwnd, bar, &info, redraw);
    return Includes(bar, SB_HORZ) || Includes(bar, SB_VERT);
}

BOOL CoolSB_GetScrollRange(HWND hwnd, int bar, int* min, int* max)
{
    if (!CoolSB_IsActive(hwnd))
        return GetScrollRange(hwnd, bar, min, max);
    const CoolSBBar* asked = FindBar(hwnd, bar);
    if (!asked || !min || !max)
        return FALSE;
    *min = asked->info.nMin;
    *max = asked->info.nMax;
    return TRUE;
}

BOOL CoolSB_ShowScrollBar(HWND hwnd, int bar, BOOL show)
{
    if (!CoolSB_IsActive(hwnd))
        return ShowScrollBar(hwnd, bar, show);
    const BOOL done =
        ForBars(hwnd, bar, [&](CoolSBBar& shown) { Want(hwnd, shown, show != FALSE); });
    if (IsFrameStale(*GetCoolSBWindow(hwnd)))
        ForceFrame(hwnd);
    return done;
}

BOOL CoolSB_EnableScrollBar(HWND hwnd, int bar, UINT arrows)
{
    if (!CoolSB_IsActive(hwnd))
        return (realEnableScrollBar ? realEnableScrollBar : EnableScrollBar)(hwnd, bar, arrows);
    bool changed = false;
    ForBars(hwnd, bar,
            [&](CoolSBBar& enabled)
            {
                const UINT disabled = arrows & kBarArrowsDisabled;
                changed |= (enabled.flags & kBarArrowsDisabled) != disabled;
                enabled.flags = (enabled.flags & ~kBarArrowsDisabled) | disabled;
            });
    if (changed)
        Repaint(hwnd, TRUE);
    return changed;
}

BOOL CoolSB_SetSize(HWND hwnd, int bar, int length, int width)
{
    if (!IsSize(length) || !IsSize(width))
        return FALSE;
    const BOOL done = ForBars(hwnd, bar,
                              [length, width](CoolSBBar& sized)
                              {
                                  sized.arrowLength = length;
                                  sized.barWidth = width;
                              });
    if (done)
        ForceFrame(hwnd);
    return done;
}

BOOL CoolSB_SetMinThumbSize(HWND hwnd, int bar, int size)
{
    if (size < -1)
        return FALSE;
    const int minThumb = size == -1 ? UsualMinThumb() : size;
    const BOOL done =
        ForBars(hwnd, bar, [minThumb](CoolSBBar& sized) { sized.minThumb = minThumb; });
    Repaint(hwnd, done);
    return done;
}

BOOL CoolSB_SetStyle(HWND hwnd, int bar, int style)
{
    if (style < kCoolSBStandard || style > kCoolSBHot)
        return FALSE;
    const BOOL done = ForBars(hwnd, bar, [style](CoolSBBar& styled) { styled.style = style; });
    Repaint(hwnd, done);
    return done;
}

BOOL CoolSB_SetThumbAlways(HWND hwnd, int bar, BOOL always)
{
    const BOOL done = ForBars(
        hwnd, bar, [always](CoolSBBar& kept) { SetFlag(kept, kBarThumbAlways, always != FALSE); });
    Repaint(hwnd, done);
    return done;
}

BOOL CoolSB_IsThumbTracking(HWND hwnd)
{
    const CoolSBWindow* window = GetCoolSBWindow(hwnd);
    return window && window->thumbTracking;
}

BOOL CoolSB_InsertButton(HWND hwnd, int bar, int index, const CoolSBButton* button)
{
    CoolSBBar* found = FindBar(hwnd, bar);
    if (!found || !button || !IsSound(*button) || found->buttonCount == kMostButtons)
        return FALSE;
    if (index < 0 || index > found->buttonCount)
        return FALSE;
    CoolSBButton inserted = {};
    inserted.placement = kButtonBefore;
    inserted.type = kCoolSBPush;
    StoreFields(inserted, *button);
    CoolSBButton* end = found->buttons + found->buttonCount;
    std::copy_backward(found->buttons + index, end, end + 1);
    found->buttons[index] = inserted;
    ++found->buttonCount;
    ButtonsChanged(hwnd, *found);
    return TRUE;
}

BOOL CoolSB_ModifyButton(HWND hwnd, int bar, int index, const CoolSBButton* button)
{
    CoolSBButton* found = FindButton(hwnd, bar, index);
    if (!found || !button || !IsSound(*button))
        return FALSE;
    StoreFields(*found, *button);
    ButtonsChanged(hwnd, *FindBar(hwnd, bar));
    return TRUE;
}

BOOL CoolSB_RemoveButton(HWND hwnd, int bar, int index)
{
    CoolSBButton* removed = FindButton(hwnd, bar, index);
    if (!removed)
        return FALSE;
    CoolSBBar& from = *FindBar(hwnd, bar);
    std::copy(removed + 1, from.buttons + from.buttonCount, removed);
    --from.buttonCount;
    ButtonsChanged(hwnd, from);
    return TRUE;
}

BOOL CoolSB_GetButton(HWND hwnd, int bar, int index, CoolSBButton* button)
{
    const CoolSBButton* found = FindButton(hwnd, bar, index);
    if (!found || !button)
        return FALSE;
    *button = *found;
    return TRUE;
}
