// A window with drawn bars in a frame that listens, and a real mouse to use them with.
#pragma once

#include "skin/scroll/CoolSBWindow.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

/// A scroll message that the window got.
struct ScrollMessage
{
    UINT message = 0;
    int code = 0;
    int pos = 0;
    DWORD time = 0;
};

/// Dispatches what comes within a time, and at least what is there already.
void Pump(DWORD milliseconds = 40);

/// The mouse of the screen.
void MoveMouse(ScrollPoint point);
void PressMouse();
void ReleaseMouse();

/// A pixel of a window, frame included, from its own top left corner.
COLORREF PixelOf(HWND hwnd, int x, int y);

/// A pane of 300 by 200 pixels at (100, 100) of the screen, without any border, in a frame that is
/// larger by 40 on every side. The pane has no bars yet.
class ScrollTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Gives the pane bars of 16 pixels with arrows of 20: range 0 to 99, page 25. A vertical one
    /// alone is 200 long, with a track of 160 and a thumb of 40; a horizontal one alone 300, with a
    /// track of 260 and a thumb of 66.
    void ShowBars(bool horz, bool vert);
    void SetPos(int bar, int pos) { CoolSB_SetScrollPos(pane, bar, pos, TRUE); }
    int Pos(int bar) const { return CoolSB_GetScrollPos(pane, bar); }

    /// A point of the screen `along` pixels from the start of a bar, in the middle of its width.
    ScrollPoint On(int bar, int along) const;

    void MoveTo(int bar, int along) { MoveMouse(On(bar, along)); }
    void PressOn(int bar, int along);

    RECT ClientOf(HWND hwnd) const;

    /// The codes of the scroll messages since the last call.
    std::vector<int> TakeCodes();

    /// The state in which an item was last drawn by notification, or 0.
    UINT LastState(UINT item, UINT bar) const;

    HWND frame = nullptr;
    HWND pane = nullptr;

    // What was received
    std::vector<ScrollMessage> scrolls;
    std::vector<NMCoolSBCustomDraw> draws;
    std::vector<NMHDR> clicks;
    std::vector<WPARAM> commands;
    std::vector<UINT> others; // every other message of the pane

    // What is done
    LRESULT customDrawAnswer = 0;
    bool scrollsItself = true; // the pane moves its bar as a scroll message wants it
    std::function<void(const ScrollMessage&)> onScroll;
    std::function<void(const NMCoolSBCustomDraw&)> onDraw;

private:
    static LRESULT CALLBACK FrameProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK PaneProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnNotify(const NMHDR& header);
    void OnScrollMessage(HWND hwnd, UINT message, WPARAM wParam);
    static void Register(const char* name, WNDPROC procedure);

    static ScrollTest* current;
};
