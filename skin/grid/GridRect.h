// Places in the grid. Free of windows.h.
#pragma once

/// A rectangle in pixels; right and bottom edges lie outside.
struct GridRect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// A cell; -1 for no column or no row.
struct GridCell
{
    int column = -1;
    int row = -1;

    bool IsValid() const { return column >= 0 && row >= 0; }
    bool operator==(const GridCell& other) const
    {
        return column == other.column && row == other.row;
    }
};
