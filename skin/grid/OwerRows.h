// The stored rows of the grid. Free of windows.h.
#pragma once

#include "skin/grid/GridRect.h"
#include "skin/grid/GridText.h"

#include <cstdint>
#include <memory>
#include <vector>

/// A cell's colour that stands for "none set".
constexpr uint32_t kNoCellColor = 0x1000000;

struct OwerCell
{
    char text[kCellTextCapacity] = "";
    uint32_t backColor = 0;               ///< 0x00BBGGRR or kNoCellColor
    bool editable = false;                ///< a press opens the in-place edit
    GridRect rect;                        ///< as last painted, in coordinates of the body surface
    GridRect checkRect;                   ///< the check box as last painted, likewise
    uint8_t mark = 0;                     ///< for the page's use
    uint32_t textColor = 0;               ///< 0x00BBGGRR or kNoCellColor for the grid's own
    char subText[kCellTextCapacity] = ""; ///< for the page's use
    int checked = 0;
};

/// One cell a column at the time the row was made; a write further right makes it longer.
using OwerRow = std::vector<OwerCell>;

/// A cell as a row gets it when it grows to a write of text or of a mark. Only the background is
/// set to none: such a cell's text is black whatever the grid's colour is. This is meant.
OwerCell MakeGrownCell();

enum class RowOrder
{
    Number,  ///< the whole part of a decimal number; fractions do not count
    Integer, ///< a whole number
    Text     ///< bytes
};

/// Rows on the heap, so that sorting and deleting move pointers only. Rows and columns out of range
/// are ignored.
class OwerRows
{
public:
    int Count() const { return static_cast<int>(rows.size()); }

    /// Appends a row of `columns` cells without colours. @return its index; -1 when there are no
    /// columns or no memory
    int Add(size_t columns, const char* firstCellText);
    /// @return whether there was such a row
    bool Delete(int row);
    void Clear() { rows.clear(); }

    /// @return null when there is no such cell
    OwerCell* Find(int row, size_t column);

    /// As Find, but a row that ends before `column` grows to `columns` cells first.
    OwerCell* FindGrown(int row, size_t column, size_t columns, const OwerCell& newCell);

    /// Orders the rows by the text of a column, a missing cell counting as empty. Rows with equal
    /// keys come in no particular order.
    void Sort(RowOrder order, int column, bool ascending);

private:
    std::vector<std::unique_ptr<OwerRow>> rows;
};
