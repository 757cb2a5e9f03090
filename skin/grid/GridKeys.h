// Works a grid by keyboard. The grid itself knows the mouse only; its page hands it the keys.
#pragma once

#include <afxwin.h>

#include <initializer_list>

class COwerDrawListView;

/// Up, Down, Page Up, Page Down, Home and End move the current row, Left and Right the cell in it;
/// Space and F2 press that cell, Return is a double click on it without the press, so that it opens a
/// row's dialog but no field that takes the next key.
/// @return whether the message was such a key, for the grid itself and not for a control in it
bool WorkGridByKey(COwerDrawListView& grid, const MSG& message);

/// Makes a row the current one and shows it.
void GoToGridRow(COwerDrawListView& grid, int row);

/// Sends the messages of the left button to the grid, over the cell that the keyboard has come to, the
/// first of its row to begin with.
void PressGridCell(COwerDrawListView& grid, std::initializer_list<UINT> messages);

/// Marks the cell that the keyboard has come to, as long as the grid has the focus.
void DrawGridKeyCell(COwerDrawListView& grid, HDC dc);
