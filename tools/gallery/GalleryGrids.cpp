#include "tools/gallery/GalleryGrids.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "tools/gallery/resource.h"

#include <string>

namespace
{

constexpr int kWidth = 1200;
constexpr int kHeight = 760;
constexpr int kLeft = 40;
constexpr int kGridWidth = kWidth - 2 * kLeft;
constexpr int kGridHeight = 300;
constexpr int kStoredTop = 60;
constexpr int kOwnerDataTop = 420;
constexpr int kTitleHeight = 30;
constexpr int kFontHeight = 14;
constexpr int kBoxSize = 14;

constexpr UINT kCentred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
constexpr UINT_PTR kEditTimer = 1;
constexpr UINT kEditAfter = 1500; // milliseconds

// Columns of the stored grid.
constexpr int kFixedColumns = 4;
constexpr int kMoreColumns = 20;
constexpr UINT kOnColumn = 1;
constexpr UINT kVolumeColumn = 2;
constexpr UINT kNoteColumn = 3;

// The cell of the owner-data grid that looks pressed, and the column that it is in.
constexpr int kButtonColumn = 4;
constexpr int kPressedRow = 2;

const char* const kContracts[] = {"IF2406", "IC2406", "IH2406", "IM2406", "au2412", "ag2412"};

const char* ContractOf(int row)
{
    return kContracts[row % static_cast<int>(std::size(kContracts))];
}

void DrawBox(HDC dc, const RECT& box, bool checked)
{
    FillRect(dc, &box, GetCachedBrush(checked ? kAccent : kPageSheet));
    FrameRect(dc, &box, GetCachedBrush(kAccent));
    if (!checked)
        return;
    const int size = box.right - box.left;
    const HGDIOBJ oldPen = SelectObject(dc, GetCachedPen(Scaled(2), kWhiteText, PS_SOLID));
    MoveToEx(dc, box.left + size / 4, box.top + size / 2, nullptr);
    LineTo(dc, box.left + size / 2 - 1, box.top + size * 3 / 4);
    LineTo(dc, box.left + size * 4 / 5, box.top + size / 4);
    SelectObject(dc, oldPen);
}

/// Checked and unchecked side by side.
void MakeCheckStrip(CBitmap& strip)
{
    const int size = Scaled(kBoxSize);
    CClientDC screen(nullptr);
    strip.CreateCompatibleBitmap(&screen, 2 * size, size);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    const HGDIOBJ old = SelectObject(dc, strip);
    DrawBox(dc, CRect(0, 0, size, size), true);
    DrawBox(dc, CRect(size, 0, 2 * size, size), false);
    SelectObject(dc, old);
}

std::string OwnerText(int row, int column)
{
    switch (column)
    {
    case 0:
        return std::to_string(row + 1);
    case 1:
        return ContractOf(row);
    case 2:
        return row % 2 ? "卖出" : "买入";
    case 3:
        return std::to_string(3400 + row * 7) + ".2";
    default:
        return "撤单";
    }
}

void PaintOwnerCell(HDC dc, int row, int column, RECT* rect, HFONT boldFont, CWnd*, void*,
                    COwerDrawListView*)
{
    const HGDIOBJ oldFont = column == 1 ? SelectObject(dc, boldFont) : nullptr;
    SetTextColor(dc, column == 2 && row % 2 == 0 ? kAccent : kControlText);
    DrawTextA(dc, OwnerText(row, column).c_str(), -1, rect, kCentred);
    if (oldFont)
        SelectObject(dc, oldFont);
}

/// A button around the last column's text, filled while it is pressed.
void DrawButton(HDC dc, int, int, int column, int row, RECT* rect, int* state, void*)
{
    if (column != kButtonColumn)
        return;
    RECT button = *rect;
    InflateRect(&button, -Scaled(20), -Scaled(3));
    if (*state == kMousePressed)
    {
        FillRect(dc, &button, GetCachedBrush(kAccent));
        SetTextColor(dc, kWhiteText);
        DrawTextA(dc, OwnerText(row, column).c_str(), -1, &button, kCentred);
    }
    FrameRect(dc, &button, GetCachedBrush(kAccent));
}

} // namespace

BEGIN_MESSAGE_MAP(CGridGalleryDlg, CDialog)
ON_WM_ERASEBKGND()
ON_WM_TIMER()
ON_WM_DESTROY()
ON_MESSAGE(WM_GETFONT, OnGetFont)
END_MESSAGE_MAP()

CGridGalleryDlg::CGridGalleryDlg()
    : CDialog(IDD_GALLERY)
{
}

BOOL CGridGalleryDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    font.CreateFont(-Scaled(kFontHeight), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FF_SWISS, "黑体");
    CRect window(0, 0, Scaled(kWidth), Scaled(kHeight));
    AdjustWindowRectEx(window, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOZORDER);
    CenterWindow();

    MakeCheckStrip(checkStrip);
    Create(stored, kStoredTop, 24);
    FillStored();
    Create(ownerData, kOwnerDataTop, 26);
    FillOwnerData();
    // A window that has just been shown may be activated once more, which ends the edit.
    SetTimer(kEditTimer, kEditAfter, nullptr);
    return TRUE;
}

void CGridGalleryDlg::OnDestroy()
{
    // Here and not with the object, since the strip and the font go before the grids do.
    stored.DestroyWindow();
    ownerData.DestroyWindow();
    CDialog::OnDestroy();
}

BOOL CGridGalleryDlg::OnEraseBkgnd(CDC* dc)
{
    FillPageBackground(dc->m_hDC, m_hWnd);
    SetBkMode(dc->m_hDC, TRANSPARENT);
    SetTextColor(dc->m_hDC, kControlText);
    const HGDIOBJ oldFont =
        SelectObject(dc->m_hDC, GetCachedFont("黑体", Scaled(kFontHeight + 3), FW_BOLD));
    for (const auto& [text, top] :
         {std::pair("存储数据的表格", kStoredTop), {"由页面绘制的表格", kOwnerDataTop}})
        TextOutA(dc->m_hDC, Scaled(kLeft), Scaled(top - kTitleHeight), text,
                 static_cast<int>(strlen(text)));
    SelectObject(dc->m_hDC, oldFont);
    for (COwerDrawListView* grid : {&stored, &ownerData})
        grid->DrawOuterFrame(0);
    return TRUE;
}

// What the grids take from their parent: the template's font does not grow with the scale.
LRESULT CGridGalleryDlg::OnGetFont(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(font.GetSafeHandle());
}

void CGridGalleryDlg::OnTimer(UINT_PTR timer)
{
    KillTimer(timer);
    EditACell();
}

void CGridGalleryDlg::Create(COwerDrawListView& grid, int top, int rowHeight)
{
    const CRect place(CPoint(Scaled(kLeft), Scaled(top)),
                      CSize(Scaled(kGridWidth), Scaled(kGridHeight)));
    grid.Create(place, this, 0);
    grid.body->SetHeaderHeight(Scaled(rowHeight));
    grid.body->rowHeight = Scaled(rowHeight);
    grid.body->SetFonts("黑体", -Scaled(kFontHeight), FW_NORMAL, "黑体", -Scaled(kFontHeight),
                        FW_BOLD);
    grid.ShowWindow(SW_SHOW);
}

void CGridGalleryDlg::FillStored()
{
    constexpr int kRows = 40;
    const auto addColumn = [this](const char* title, int width, int type)
    {
        stored.AddColumn(title, Scaled(width), kCentred, kCentred,
                         type == kCheckColumn ? static_cast<HBITMAP>(checkStrip) : nullptr, type);
    };
    addColumn("合约", 90, kTextColumn);
    addColumn("启用", 60, kCheckColumn);
    addColumn("手数", 80, kTextColumn);
    addColumn("说明", 150, kTextColumn);
    for (int column = 1; column <= kMoreColumns; ++column)
        addColumn(("参数 " + std::to_string(column)).c_str(), 70, kTextColumn);

    for (int row = 0; row < kRows; ++row)
    {
        stored.AddRow(ContractOf(row));
        stored.SetCellCheck(row, kOnColumn, row % 3 == 0);
        stored.SetCellText(row, kVolumeColumn, std::to_string(row + 1).c_str());
        stored.SetCellEditable(row, kVolumeColumn, TRUE);
        stored.SetCellText(row, kNoteColumn, row % 2 ? "常规" : "超过一格宽度的说明文字");
        for (int column = 0; column < kMoreColumns; ++column)
            stored.SetCellText(row, kFixedColumns + column,
                               std::to_string(row * (column + 1)).c_str());
    }
    stored.SetCellText(4, kOnColumn, "无"); // shown instead of the box
    stored.SetCellBackColor(6, kFixedColumns, kTipBack);
    stored.SetCellTextColor(6, kFixedColumns, kAccent);
    stored.body->gridLines = true;
    stored.body->currentRow = 3;
}

void CGridGalleryDlg::FillOwnerData()
{
    ownerData.ownerData = 1;
    ownerData.cellPaintProc = PaintOwnerCell;
    ownerData.cellOverlayProc = DrawButton;
    for (const auto& [title, width] :
         {std::pair("序号", 60), {"合约", 140}, {"方向", 100}, {"价格", 140}, {"操作", 160}})
        ownerData.AddColumn(title, Scaled(width), kCentred, kCentred, nullptr, kTextColumn);
    ownerData.body->SetRowCount(100);
    ownerData.UpdateScrollBars();
    ownerData.body->currentRow = 5;

    // As after a press that has not ended.
    ownerData.mouseState = kMousePressed;
    ownerData.pressedColumn = kButtonColumn;
    ownerData.pressedRow = kPressedRow;
}

/// The edit presses the real button again, as inside itself: so the pointer goes there first.
void CGridGalleryDlg::EditACell()
{
    constexpr int kRow = 1;
    CRect cell;
    stored.body->GetCellRect(&cell, kVolumeColumn, kRow);
    CPoint pointer = cell.CenterPoint();
    stored.ClientToScreen(&pointer);
    SetCursorPos(pointer.x, pointer.y);
    stored.BeginEdit(kVolumeColumn, kRow, stored.GetCell(kRow, kVolumeColumn)->text, 1, 0);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    ::HideCaret(stored.edit); // while it blinks no two pictures are alike
}
