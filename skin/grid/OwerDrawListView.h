// The grid of the settings window.
#pragma once

#include "skin/grid/GridAccessible.h"
#include "skin/grid/LtEdit.h"
#include "skin/grid/OwerListBody.h"
#include "skin/grid/OwerRows.h"

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

/// What the grid tells its parent: wParam is a GridEvent, lParam the grid's object unless said
/// otherwise. The parent must not destroy the grid while such a message may be on its way.
constexpr UINT kGridMessage = WM_USER + 3;

enum class GridEvent : WPARAM
{
    RowPressed = 0,     ///< owner data: a button went down on a row or on the blank right below
    CellPressed = 1,    ///< owner data: the left button went down on a cell
    OwnerEditEnded = 2, ///< owner data, sent; lParam: editColumn low, editRow high
    HeaderClicked = 3,  ///< see headerClickColumn
    CellReleased = 4,   ///< owner data, sent: the button went up where it had gone down
    HoverMoved = 5,     ///< see hoverColumn and hoverRow
    EditEnded = 6,      ///< stored data, sent; lParam: editColumn low, editRow high
    StoredPressed = 7,  ///< stored data: a button went down on a cell
    RightReleased = 8,
    CheckToggled = 9
};

/// Values of COwerDrawListView::mouseState.
constexpr int kMousePressed = 2;  ///< on a cell
constexpr int kMouseReleased = 3; ///< on a cell
constexpr int kMouseIdle = 4;

/// Values of OwerColumn::type.
constexpr int kTextColumn = 0;
constexpr int kCheckColumn = 1;

struct OwerColumn
{
    char title[kCellTextCapacity] = "";
    int width = 0; ///< as given; the live width is in OwerListBody::columnWidths
    UINT cellFormat = 0;
    UINT headerFormat = 0;
    HBITMAP bitmap = nullptr; ///< checked and unchecked side by side; the page's
    int type = kTextColumn;
};

/// Paints a cell in owner-data mode. @param rect on the body surface
using OwnerCellPainter = void (*)(HDC dc, int row, int column, RECT* rect, HFONT boldFont,
                                  CWnd* parent, void* userData, COwerDrawListView* grid);

/// Paints over a cell in owner-data mode and watches presses. Besides each painting it is called at
/// a press and at a release, then with a point and a rectangle in client coordinates.
/// @param x,y   while painting: where the button went down on the body surface, below 0 while up
/// @param state a kMouse... value; what is stored at a press or release stays in mouseState
using CellOverlay = void (*)(HDC bodyDC, int x, int y, int column, int row, RECT* rect, int* state,
                             void* userData);

/// Paints behind the cells of a row.
using RowPainter = void (*)(int row, HDC bodyDC, RECT* rect, CWnd* parent);

/// The text of a cell in owner-data mode, for those who have it read aloud.
using CellTextSource = std::string (*)(int row, int column, void* userData);

/// Registers the grid's window class unless it is there. @return whether it is there now
BOOL RegisterOwerListClass();

/// A scrolling table with a fixed header and columns that the user can resize. It either stores its
/// rows or, with `ownerData` set, lets the page draw each cell. Rows and columns out of range are
/// ignored; operations on stored rows do nothing in owner-data mode.
class COwerDrawListView : public CWnd
{
public:
    COwerDrawListView();
    ~COwerDrawListView() override;

    /// Creates the window, hidden. @return whether it worked; the user has been told if not
    BOOL Create(const RECT& rect, CWnd* parent, UINT id);
    BOOL PreTranslateMessage(MSG* message) override;

    /// Does nothing before the window exists.
    /// @param title  up to 255 bytes are kept
    /// @param width  in the unit of the body's widthMode: pixels, or percent of the area's width
    /// @param headerFormat,cellFormat DrawTextA flags
    /// @param bitmap strip of check boxes, checked and unchecked side by side; stays the page's, who
    ///               keeps it as long as the column is there. Null for a column of texts
    /// @param type   kTextColumn or kCheckColumn
    void AddColumn(const char* title, int width, UINT headerFormat, UINT cellFormat, HBITMAP bitmap,
                   int type);
    void ClearColumns();
    /// Draws a line around the grid on its parent; for the parent's WM_ERASEBKGND.
    void DrawOuterFrame(int unused);

    /// A row with a cell a column. @return its number, or -1 when there are no columns
    int AddRow(const char* firstCellText);
    /// The rows below move up.
    void DeleteRow(int row);
    void DeleteAllRows();
    /// Up to 255 bytes are kept. A row that ends before `column` grows to all columns first.
    void SetCellText(int row, UINT column, const char* text);
    /// A second text, for the page's use. Cut and growing as by SetCellText.
    void SetCellSubText(int row, UINT column, const char* text);
    /// @return null when there is no such cell; valid until the rows change
    OwerCell* GetCell(int row, UINT column);
    void SetCellBackColor(int row, UINT column, COLORREF color);
    void SetCellTextColor(int row, UINT column, COLORREF color);
    void SetCellEditable(int row, UINT column, int editable);
    /// A byte for the page's use. The row grows as by SetCellText.
    void SetCellMark(int row, UINT column, BYTE mark);
    /// @return 0 when there is no such cell
    BYTE GetCellMark(int row, UINT column);
    /// The state of a check box: 0 is unchecked. Works on the stored rows whatever the mode.
    void SetCellCheck(UINT row, UINT column, int checked);
    /// @return 0 when there is no such cell
    int GetCellCheck(UINT row, UINT column);
    /// Rows with equal keys come in no particular order. Fractions do not count.
    void SortByNumber(int column, bool ascending);
    void SortByInteger(int column, bool ascending);
    void SortByText(int column, bool ascending);

    int GetRowCount() const;
    int GetFirstVisibleRow() const;
    /// Fits the scroll bars to rows, columns and size; to be called after OwerListBody::SetRowCount.
    void UpdateScrollBars();
    /// Scrolls down as far as the scroll bar goes.
    void ScrollToEnd();
    /// The cell under a point in client coordinates, each number -1 where there is none.
    void HitTestCell(int* column, int* row, int x, int y);
    /// @return the column whose header lies under a point in client coordinates, or -1
    int HitTestHeader(int x, int y) const;

    /// Ends a running edit and opens the edit over a cell; on a cell out of range only the former. The
    /// press that led here goes on as one inside the edit, which places the caret.
    /// @param text copied first, so it may be that of a cell
    /// @param leftInset,rightInset pixels added to the left and to the right edge
    void BeginEdit(int column, int row, const char* text, int leftInset, int rightInset);
    /// Ends a running edit: a stored cell takes the text, the parent is told, the edit is hidden.
    void CommitEdit();
    bool IsEditing() const;

    /// A RowBackPainter that calls rowPaintProc.
    static void PaintRowBack(int row, HDC bodyDC, RECT* rect, COwerDrawListView* owner);

    OwerRows rows;
    CLtEdit edit;
    int editColumn = -1;
    int editRow = -1;
    int firstMove = 1;      ///< cleared by the first mouse move
    DWORD lastMoveTick = 0; ///< GetTickCount of the last mouse move
    int ownerData = 0;
    HDC clientDC = nullptr;
    UINT ctrlId = 0;
    CWnd* parent = nullptr; ///< as given to Create
    int pressedColumn = -1;
    int pressedRow = -1;
    RECT pressedRect = {};
    int downX = -1; ///< where the button went down; -1 while up
    int downY = -1;
    int mouseState = kMouseIdle;
    int clickColumn = -1; ///< cell of the last press or release
    int clickRow = -1;
    int headerClickColumn = -1;
    int hoverColumn = -1;
    int hoverRow = -1;
    COLORREF highlightColor; ///< no drawing of the grid reads it
    COLORREF textColor;      ///< of header and cells
    OwnerCellPainter cellPaintProc = nullptr;
    CellOverlay cellOverlayProc = nullptr;
    RowPainter rowPaintProc = nullptr;
    std::vector<OwerColumn> columns;
    std::unique_ptr<OwerListBody> body; ///< from WM_CREATE to WM_DESTROY
    void* userData = nullptr;
    CellTextSource cellTextProc = nullptr;
    int keyColumn = -1; ///< where the keyboard has come to in the current row; see WorkGridByKey
    CGridAccessible accessible{*this};

protected:
    afx_msg int OnCreate(LPCREATESTRUCT createStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnNcPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* scrollBar);
    afx_msg LRESULT OnAskedForObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    static void PaintHeaderCell(HDC headerDC, HDC bitmapDC, int column, RECT* rect,
                                COwerDrawListView* owner);
    static void PaintCell(HDC bodyDC, HDC bitmapDC, bool isFirstColumn, int row, int column,
                          RECT* rect, COwerDrawListView* owner);
    void PaintOwnerCell(HDC bodyDC, int row, int column, RECT* rect);
    void PaintStoredCell(HDC bodyDC, HDC bitmapDC, int row, int column, const RECT& rect);
    void PaintCellText(HDC bodyDC, const OwerCell& cell, UINT format, RECT rect) const;

    OwerCell* GetGrownCell(int row, UINT column, const OwerCell& newCell);
    void Sort(RowOrder order, int column, bool ascending);
    void FollowRowCount();

    bool SetScrollRanges(RECT& client);
    void SetScrollRange(int bar, const ScrollRange& range);
    bool HasOtherRange(int bar, const ScrollRange& range);
    ScrollState ReadScrollBar(int bar);
    void ScrollTo(int bar, int position);

    void FollowMouse(int x, int y);
    void OnButtonDown(char button, int x, int y);
    void PressOwnerData(char button, int x, int y);
    bool PressStoredCell(int x, int y);
    void EditStoredCell(const GridCell& at);
    bool HitsCheckBox(int column, const OwerCell& cell, int x, int y) const;
    void OnButtonUp(char button, int x, int y);
    void ReleaseOnBody(char button, int x, int y);
    void ReleaseOnHeader(int column);
    void CallOverlay(int x, int y, const GridCell& cell);
    void ClearPressedCell();

    bool IsEditShown() const;
    void OpenEdit(int column, int row, const char* text, const RECT& place);
    void StoreEditedText();

    void PostToParent(GridEvent event);
    void SendToParent(GridEvent event, LPARAM lParam);
    void NotifyParent(UINT code);

    bool settingScrollBars = false;
    bool committing = false;
};
