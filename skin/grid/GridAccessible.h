// What assistive software hears of the grid: a list of rows, as a stock list view tells it.
#pragma once

#include "skin/Accessible.h"

class COwerDrawListView;

/// A row is named by the text of its first cell, or of the one that the keyboard has come to; the
/// others describe it.
class CGridAccessible : private AccessibleSource
{
public:
    explicit CGridAccessible(COwerDrawListView& grid);

    /// The answer to WM_GETOBJECT; 0 leaves it to the system.
    LRESULT Answer(WPARAM wParam, LPARAM lParam) { return link.Answer(wParam, lParam); }
    /// Tells that another row or cell is the current one.
    void TellSelection() const { link.TellSelection(); }

private:
    HWND DrawnWindow() const override;
    AccessibleKind Kind() const override;
    int PartCount() const override;
    AccessiblePart Part(int row) const override;
    int PartAt(CPoint point) const override;
    int SelectedPart() const override;
    void SelectPart(int row) override;
    void PressPart(int row) override;

    std::string CellText(int row, int column) const;
    std::string TitledText(int row, int column) const;

    COwerDrawListView& grid;
    CAccessibleLink link{*this};
};
