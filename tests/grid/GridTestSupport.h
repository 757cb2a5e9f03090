// A parent for grids under test that writes down what they tell it.
#pragma once

#include "skin/grid/OwerDrawListView.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

/// DrawTextA flags that the pages give: centred, on one line.
constexpr UINT kCentred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

/// A grid that counts the messages it gets.
class CountingGrid : public COwerDrawListView
{
public:
    std::map<UINT, int> received;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// A borderless window on the screen.
class GridHost : public CWnd
{
public:
    GridHost();
    ~GridHost() override;

    /// What arrived since the last call: first what was sent, then what lay in the queue, each in
    /// its order. "send 6 (1,2)" and "post 7" stand for the private message, "notify -3" for
    /// WM_NOTIFY. Whatever has unexpected arguments is followed by a "?".
    std::vector<std::string> Take(COwerDrawListView& grid);

    HFONT font = nullptr; ///< answers WM_GETFONT

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    struct Message
    {
        UINT number;
        WPARAM wParam;
        LPARAM lParam;
        NMHDR header;
    };

    static std::string Describe(const Message& message, bool sent, COwerDrawListView& grid);

    std::vector<Message> sent;
};

using Told = std::vector<std::string>;

/// A grid of 300 by 200 pixels on a host, with rows of 20 pixels under a header of 22.
class GridTest : public testing::Test
{
protected:
    GridTest();
    ~GridTest() override;

    /// Columns of the given widths, named after their numbers.
    void AddColumns(const std::vector<int>& widths);
    /// Columns, and stored rows with the texts "r,c".
    void FillStored(const std::vector<int>& widths, int rows);
    /// Columns, and rows that the page paints; nothing is painted unless cellPaintProc is set.
    void FillOwnerData(const std::vector<int>& widths, int rows);

    void SendMouse(UINT message, int x, int y);
    void Click(int x, int y);
    Told Take() { return host.Take(grid); }

    /// Paints now and reads a pixel of the grid's client area from the screen.
    COLORREF PixelAt(int x, int y);
    void PaintNow();

    SCROLLINFO Bar(int bar);
    bool HasBar(LONG style) const { return (grid.GetStyle() & style) != 0; }

    GridHost host;
    CountingGrid grid;
};

/// Handles the messages that wait.
void PumpPending();

/// Moves the real mouse to a point of a window. An edit that begins presses the real button, which
/// would activate whatever else lies under it.
void PointAt(const CWnd& window, int x, int y);

/// Lets go of the mouse button that an edit's beginning pressed.
void ReleaseRealButton();

/// A strip of two cells of the given size, the left one of one colour, the right one of another.
/// The caller deletes it.
HBITMAP MakeCheckStrip(int cellWidth, int height, COLORREF left, COLORREF right);
