// The drawing half of the grid: geometry, fonts and the two surfaces off screen.
#pragma once

#include "skin/grid/OwerListGeometry.h"

#include <afxwin.h>

class COwerDrawListView;

/// Paints one header cell. @param rect on the header surface; the painter may change it
using HeaderCellPainter = void (*)(HDC headerDC, HDC bitmapDC, int column, RECT* rect,
                                   COwerDrawListView* owner);

/// Paints one cell. @param rect on the body surface; the painter may change it
using CellPainter = void (*)(HDC bodyDC, HDC bitmapDC, bool isFirstColumn, int row, int column,
                             RECT* rect, COwerDrawListView* owner);

/// Paints behind the cells of a row that is not the current one. Also called for every row above
/// the view, so the cost of a frame grows with the number of rows once one is set.
using RowBackPainter = void (*)(int row, HDC bodyDC, RECT* rect, COwerDrawListView* owner);

/// What COwerDrawListView makes at its creation. Pages set the painters, the row height and the
/// colours directly.
class OwerListBody : public OwerListGeometry
{
public:
    /// @param owner handed to the painters  @param dc the owner's, which outlives this object
    OwerListBody(COwerDrawListView* owner, HDC dc, const RECT& area, int widthMode);
    ~OwerListBody();
    OwerListBody(const OwerListBody&) = delete;
    OwerListBody& operator=(const OwerListBody&) = delete;

    /// Sets the area; makes new surfaces when its size changes.
    void Resize(int x, int y, int cx, int cy);
    /// Pages set `rowHeight` after it.
    void SetHeaderHeight(int height);
    /// Replaces both fonts. @param height,boldHeight,weight,boldWeight as CreateFontA takes them:
    /// pixels of a line, or of a character if below 0; 400 normal, 700 bold
    void SetFonts(const char* face, int height, int weight, const char* boldFace, int boldHeight,
                  int boldWeight);

    /// In window client coordinates; empty for a column that does not exist.
    void GetCellRect(RECT* out, int column, int row) const;

    /// OwerListGeometry::HitRowOrDivider with the pointer's shape.
    int HitRowOrDivider(int x, int y);
    /// Moves the divider that is being dragged, or shows where one can be.
    /// @return whether a width has changed
    bool TrackMouse(int x, int y);

    /// Draws everything off screen and copies it to `dc`. An area narrower than 20 pixels is left
    /// as it is.
    void Paint();

    COwerDrawListView* owner;
    HFONT font = nullptr;
    COLORREF lineColor; ///< no drawing reads it
    HDC dc;
    HDC headerDC;
    HDC bodyDC;
    HDC bitmapDC; ///< for bitmaps that painters copy from
    HBITMAP headerBitmap = nullptr;
    HBITMAP bodyBitmap = nullptr;
    HBITMAP oldHeaderBitmap = nullptr;
    HBITMAP oldBodyBitmap = nullptr;
    HFONT boldFont = nullptr; ///< for pages that paint their cells themselves
    COLORREF backColor;
    COLORREF selectColor; ///< of `currentRow`
    HeaderCellPainter paintHeaderCell = nullptr;
    CellPainter paintCell = nullptr;
    RowBackPainter paintRowBack = nullptr;

private:
    void ReplaceHeaderSurface(int width);
    void ReplaceBodySurface(int width, int height);
    void PaintHeader(const std::vector<ColumnSpan>& columns);
    void PaintRows(const std::vector<ColumnSpan>& columns);
    void PaintRowBackground(int row, int rowTop);
    void PaintCells(const std::vector<ColumnSpan>& columns, int row, int rowTop);
    void CopyToScreen();
};
