// Works the pages of keys as a trader does: their grids, the controls that open over cells, and keys
// with held modifiers.
#pragma once

#include "resources/resource.h"
#include "tests/window/ModuleTest.h"

#include <vector>

/// The grid of the page on show.
class KeyPage
{
public:
    /// @param widths of the columns at 96 dots an inch
    KeyPage(Trader& trader, std::vector<int> widths);

    HWND Grid() const { return m_grid; }
    HWND Page() const { return GetParent(m_grid); }
    HWND Edit() const { return GetDlgItem(m_grid, IDC_CELL_EDIT); }
    HWND Combo() const { return GetDlgItem(m_grid, IDC_CELL_COMBO); }

    bool IsEditOpen() const { return IsWindowVisible(Edit()); }
    bool IsComboOpen() const { return IsWindowVisible(Combo()); }

    /// A cell's place in the grid's client area, as the view is scrolled now.
    RECT Cell(int column, int row) const;
    void ClickCell(int column, int row);
    /// Presses a place of the page where nothing is.
    void ClickElsewhere();
    /// Presses a row of the combo box's open list.
    void PickByMouse(int item);
    /// What the edit, or the combo box's face, says.
    std::string EditText() const { return m_trader.Text(Edit()); }
    int ComboItem() const { return static_cast<int>(SendMessageA(Combo(), CB_GETCURSEL, 0, 0)); }
    std::vector<std::string> ComboItems() const;

    /// How many pixels of a cell are neither white nor the highlight, in a part of its width.
    int Ink(int column, int row, double from = 0, double to = 1) const;
    /// Whether a row has the highlight.
    bool IsHighlighted(int row) const;
    /// How many rows can be scrolled to, as the bar tells.
    int RowsOfBar() const;
    int FirstRow() const;

    /// Holds modifiers while a key is pressed.
    void Press(const std::vector<WORD>& modifiers, WORD key);

    /// Answers a message box "提示" with Return.
    /// @return its text, with " (information)" for the icon and " (no owner)"; empty when none comes
    std::string AnswerBox();

    /// Whether the window's thread is in a menu.
    bool IsMenuOpen() const;

private:
    Trader& m_trader;
    const std::vector<int> m_widths;
    HWND m_grid;
};
