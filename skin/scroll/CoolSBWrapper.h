// Drawn scroll bars as an object: a window's two bars with their colours.
#pragma once

#include "skin/scroll/CoolSB.h"

/// The look of a part: while nothing happens, pressed, under the mouse.
enum CoolSBColorColumn
{
    kCoolSBNormal,
    kCoolSBPressed,
    kCoolSBUnderMouse,
    kCoolSBColumns
};

struct CoolSBColors
{
    COLORREF back; // page areas and the corner
    COLORREF arrowBack[kCoolSBColumns];
    COLORREF arrowFore[kCoolSBColumns];
    COLORREF thumb[kCoolSBColumns];
    COLORREF frame; // around arrows and thumb
};

class CoolSBWrapper
{
public:
    /// Draws a stage of a bar in the colours set.
    /// @return CDRF_SKIPDEFAULT for what is drawn here, 0 otherwise and without colours
    virtual LRESULT OnCustomDraw(const NMCoolSBCustomDraw& draw);
    virtual ~CoolSBWrapper() = default;

    /// Puts drawn bars, both with these values, in the place of the window's own.
    /// @param flat whether the bars have the hot style; they are flat otherwise
    void Init(HWND window, bool flat, UINT page, int pos, int min, int max);

    /// Draws the bars in these colours from now on.
    void SetColors(const CoolSBColors& newColors);

    /// The width of the bars, which is also the length of their arrows and the least of their thumbs.
    void SetWidth(int width);

    // As the functions of these names have it, for the window given to Init.
    int SetScrollInfo(int bar, const SCROLLINFO* info, BOOL redraw = TRUE);
    /// @param mask the SIF_ values wanted
    BOOL GetScrollInfo(int bar, SCROLLINFO* info, UINT mask = SIF_ALL);
    int GetScrollPos(int bar) const;
    BOOL GetScrollRange(int bar, int* min, int* max) const;
    int SetScrollPos(int bar, int pos, BOOL redraw = TRUE);
    BOOL SetScrollRange(int bar, int min, int max, BOOL redraw = TRUE);
    BOOL ShowScrollBar(int bar, BOOL show = TRUE);
    BOOL EnableBar(int bar, BOOL enable);
    BOOL IsThumbTracking() const;

    /// Move a bar as a WM_HSCROLL or WM_VSCROLL message wants it.
    /// @param code the message's SB_ code  @param pos its position
    void OnHScroll(UINT code, UINT pos);
    void OnVScroll(UINT code, UINT pos);

protected:
    /// Answers the notification of a drawn bar by OnCustomDraw.
    /// @return false for any other message
    bool AnswerCustomDraw(UINT message, LPARAM lParam, LRESULT* result);

private:
    void ApplyWidth();

    HWND hwnd = nullptr;
    bool customDrawOn = false;
    CoolSBColors colors = {};
    int barWidth = GetSystemMetrics(SM_CXVSCROLL);
};
