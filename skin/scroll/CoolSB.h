// Drawn scroll bars for any window.
//
// A window is subclassed by CoolSB_Init; from then on its two standard bars are laid out, painted,
// hit-tested and tracked here, and it gets ordinary WM_HSCROLL and WM_VSCROLL messages. Each function
// stands for the Win32 function of its name and calls that function for a window that is not
// subclassed; those without such a counterpart return 0 for it. User-interface thread only.
//
// `bar` is SB_HORZ, SB_VERT, or, where a value is set, SB_BOTH.
#pragma once

#include <windows.h>

#include <commctrl.h>

/// Code of the WM_NOTIFY by which the parent of a subclassed window may draw its bars; a window
/// without parent gets it itself. The stages are CDDS_PREPAINT, CDDS_POSTPAINT and CDDS_ITEMPREPAINT.
/// Answered with CDRF_SKIPDEFAULT, the first hands all parts of the bar to the parent.
constexpr UINT NM_COOLSB_CUSTOMDRAW = static_cast<UINT>(-4095);

/// The square between two bars, as `item` and `bar` of its notification have it.
constexpr UINT kCoolSBCornerItem = 32;
constexpr UINT kCoolSBCornerBar = SB_BOTH;

struct NMCoolSBCustomDraw
{
    NMHDR hdr; // idFrom is the window's control id, or the id of an owner-drawn inserted button
    DWORD drawStage;
    HDC hdc;
    RECT rect;  // in `hdc`, the whole window's device context
    UINT item;  // a ScrollPart, in item stages
    UINT state; // CDIS_SELECTED pressed, CDIS_HOT, CDIS_DISABLED or CDIS_DEFAULT, in item stages
    UINT bar;
};

/// Looks of a bar.
enum CoolSBStyle
{
    kCoolSBStandard = 0,
    kCoolSBFlat = 1,
    kCoolSBHot = 2 // flat, with an accent under the mouse
};

/// What an inserted button is: the low five bits of its `type`.
enum CoolSBButtonType
{
    kCoolSBPush = 1,
    kCoolSBToggle = 2,       // pressed while its `state` is set
    kCoolSBToggleNotHot = 3, // the same without the look of the mouse above it
    kCoolSBRaisedBlank = 4,
    kCoolSBFaceBlank = 5,
    kCoolSBShadowBlank = 6,
    kCoolSBOwnerDrawn = 7,
    kCoolSBTypeMask = 0x1F,
    kCoolSBDraggable = 0x400 // added to a type: the user can drag its size
};

/// Which fields of a CoolSBButton are meant.
enum CoolSBButtonMask
{
    kCoolSBHasPlacement = 0x01,
    kCoolSBHasId = 0x02,
    kCoolSBHasType = 0x04,
    kCoolSBHasState = 0x08,
    kCoolSBHasSize = 0x10, // size, defaultSize, minSize and maxSize
    kCoolSBHasBitmap = 0x20,
    kCoolSBHasMetafile = 0x40,
    kCoolSBHasCursor = 0x80,
    kCoolSBHasAll = 0xFF
};

/// A button inserted at an end of a bar. Lengths are pixels along the bar, 0 to 32767. Its handles
/// stay the caller's and must outlive it.
struct CoolSBButton
{
    UINT mask;      // CoolSBButtonMask
    UINT placement; // 1 before the bar, 2 after it
    UINT id;        // of its WM_COMMAND
    UINT type;      // CoolSBButtonType
    UINT state;     // not 0: a toggle is pressed
    int size;
    HBITMAP bitmap;
    HENHMETAFILE metafile;
    HCURSOR cursor;
    int defaultSize; // what a draggable button has where there is room
    int minSize;
    int maxSize;
};

/// Subclasses a window; without effect on one that is subclassed already.
/// @return S_OK, or a failure for what is no window
HRESULT CoolSB_Init(HWND hwnd);

/// Gives a window its own procedure and its standard bars back. What was put over this subclass must
/// have been taken off before.
/// @return S_OK, or E_FAIL for a window that is not subclassed
HRESULT CoolSB_Uninit(HWND hwnd);

/// Whether a window is subclassed.
BOOL CoolSB_IsActive(HWND hwnd);

/// Shows a bar that can scroll and hides one that can't, unless SIF_DISABLENOSCROLL says otherwise.
/// @return the bar's position
int CoolSB_SetScrollInfo(HWND hwnd, int bar, const SCROLLINFO* info, BOOL redraw);
BOOL CoolSB_GetScrollInfo(HWND hwnd, int bar, SCROLLINFO* info);
/// @return the position before
int CoolSB_SetScrollPos(HWND hwnd, int bar, int pos, BOOL redraw);
int CoolSB_GetScrollPos(HWND hwnd, int bar);
BOOL CoolSB_SetScrollRange(HWND hwnd, int bar, int min, int max, BOOL redraw);
BOOL CoolSB_GetScrollRange(HWND hwnd, int bar, int* min, int* max);
BOOL CoolSB_ShowScrollBar(HWND hwnd, int bar, BOOL show);
/// @param arrows an ESB_ value
/// @return whether anything changed
BOOL CoolSB_EnableScrollBar(HWND hwnd, int bar, UINT arrows);

/// Sets the length of the arrows and the bar's width, each -8 to 256 but not 0: pixels, or below 0
/// so many times what the system has.
BOOL CoolSB_SetSize(HWND hwnd, int bar, int length, int width);

/// @param size in pixels, or -1 for the usual one
BOOL CoolSB_SetMinThumbSize(HWND hwnd, int bar, int size);

/// @param style a CoolSBStyle
BOOL CoolSB_SetStyle(HWND hwnd, int bar, int style);

/// Keeps the thumb shown even if nothing scrolls.
BOOL CoolSB_SetThumbAlways(HWND hwnd, int bar, BOOL always);

/// Whether the user drags a thumb of this window.
BOOL CoolSB_IsThumbTracking(HWND hwnd);

/// Inserts a button before the one at `index`; at most 16 at a bar. A click on it sends its parent
/// NM_CLICK at the press and the window WM_COMMAND with 1 in the high word at the release.
BOOL CoolSB_InsertButton(HWND hwnd, int bar, int index, const CoolSBButton* button);
/// Sets the fields that the button's mask names.
BOOL CoolSB_ModifyButton(HWND hwnd, int bar, int index, const CoolSBButton* button);
BOOL CoolSB_RemoveButton(HWND hwnd, int bar, int index);
BOOL CoolSB_GetButton(HWND hwnd, int bar, int index, CoolSBButton* button);
