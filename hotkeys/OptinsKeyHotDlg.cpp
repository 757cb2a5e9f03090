#include "hotkeys/OptinsKeyHotDlg.h"

#include "core/HostFolder.h"
#include "core/HostHooks.h"
#include "core/Text.h"
#include "hotkeys/HotKeyStores.h"
#include "hotkeys/KeyName.h"
#include "hotkeys/OrderKeyCells.h"
#include "hotkeys/ToggleKey.h"
#include "pages/VolumeSetDlg.h"
#include "resources/resource.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/SkinDraw.h"

namespace
{

/// Posted to itself: the trader has pressed a button outside the open list.
constexpr UINT kMsgListLeft = WM_USER + 6;

constexpr int kFolderCapacity = 260;
constexpr int kSettingCapacity = 124;
constexpr int kTicksCapacity = 32;
constexpr int kFirstVolume = 1;

// The grid in its frame, in pixels to be scaled.
constexpr int kFrameMargin = 8;
constexpr int kFrameTitle = 22;

constexpr int kArrowStates = 4;
constexpr int kArrowGap = 2;

/// The client's own key that turns keyboard ordering on and off.
std::string ReadToggleKey()
{
    char folder[kFolderCapacity] = "";
    CallHost(ZorvaneHostHotKeyFolder, reinterpret_cast<unsigned int>(folder));
    folder[kFolderCapacity - 1] = '\0';
    char setting[kSettingCapacity] = "";
    GetPrivateProfileStringA("Hot", "124_0", "[Ctrl]+[88]", setting, sizeof(setting),
                             (std::string(folder) + "\\HotKey.ini").c_str());
    return ToggleKeyText(setting);
}

/// What may be typed as a number of ticks: digits, the minus sign, and the keys that take a
/// character back.
bool IsTicksKey(UINT key)
{
    const bool isDigit = (key >= '0' && key <= '9') || (key >= VK_NUMPAD0 && key <= VK_NUMPAD9);
    return isDigit || key == VK_SUBTRACT || key == VK_OEM_MINUS || key == VK_INSERT ||
           key == VK_BACK || key == VK_DELETE;
}

bool HasArrow(int column)
{
    return column != kKeyColumn && column != kOverTicksColumn;
}

} // namespace

BEGIN_MESSAGE_MAP(COptinsKeyHotDlg, CKeyGridPageDlg)
ON_WM_DESTROY()
ON_BN_CLICKED(IDC_ADD_KEY, &COptinsKeyHotDlg::OnAdd)
ON_BN_CLICKED(IDC_REMOVE_KEY, &COptinsKeyHotDlg::OnRemove)
ON_MESSAGE(kMsgItemPicked, &COptinsKeyHotDlg::OnItemPicked)
ON_MESSAGE(kMsgMousePressed, &COptinsKeyHotDlg::OnMousePressed)
ON_MESSAGE(kMsgListLeft, &COptinsKeyHotDlg::OnListLeft)
END_MESSAGE_MAP()

COptinsKeyHotDlg::COptinsKeyHotDlg(CWnd* parent)
    : CKeyGridPageDlg(IDD_KEY_ORDER, parent)
{
}

BOOL COptinsKeyHotDlg::OnInitDialog()
{
    CKeyGridPageDlg::OnInitDialog();
    CreateGrid(IDC_KEY_FRAME, GridPlace(),
               {{"快捷键", 140},
                {"买卖", 60},
                {"开平", 60},
                {"价格", 80},
                {"超价", 40},
                {"备兑", 80},
                {"动作", 220}},
               PaintCell, CellText);
    m_combo.Create(&m_grid, IDC_CELL_COMBO, GetFont());
    LoadArrow();
    LoadHotKeys(kStoreType);
    ShowStoredRows();

    m_toggleKey = ReadToggleKey();
    SetDlgItemText(IDC_KEY_FRAME, (m_toggleKey + " 切换键盘下单").c_str());
    SubclassChildren(m_hWnd);
    return TRUE;
}

CRect COptinsKeyHotDlg::GridPlace()
{
    CRect place;
    GetDlgItem(IDC_KEY_FRAME)->GetWindowRect(&place);
    ScreenToClient(&place);
    place.DeflateRect(Scaled(kFrameMargin), Scaled(kFrameTitle), Scaled(kFrameMargin),
                      Scaled(kFrameMargin));
    return place;
}

void COptinsKeyHotDlg::LoadArrow()
{
    const std::string file = HostFolder() + "\\skin\\经典黑色\\Trade\\kbo.bmp";
    const HBITMAP bitmap = GetSkinBitmap(file.c_str());
    m_arrow = GetBitmapSize(bitmap);
    m_arrow.cx /= kArrowStates;
    m_arrowDC.CreateCompatibleDC(nullptr);
    m_arrowDCBitmap = ::SelectObject(m_arrowDC, MakeTransparent(bitmap, kCellArrowGround));
}

void COptinsKeyHotDlg::OnDestroy()
{
    ::DeleteObject(::SelectObject(m_arrowDC, m_arrowDCBitmap));
    m_arrowDC.DeleteDC();
    CKeyGridPageDlg::OnDestroy();
}

void COptinsKeyHotDlg::ShowStoredRows()
{
    ShowRows(GetHotKeyCount(kStoreType));
}

// ---- Painting

void COptinsKeyHotDlg::PaintCell(HDC dc, int row, int column, RECT* rect, HFONT, CWnd*,
                                 void* userData, COwerDrawListView* grid)
{
    HotKeyRecord record;
    if (!GetHotKeyRecord(kStoreType, row, &record))
        return;
    auto& page = *static_cast<COptinsKeyHotDlg*>(userData);
    RECT cell = *rect;
    if (HasArrow(column) && UsesOrderKeyColumn(record, column))
    {
        cell.right -= kArrowGap + page.m_arrow.cx;
        page.DrawArrow(dc, cell);
    }
    DrawCellText(dc, CellText(row, column, userData).c_str(), cell, grid->textColor,
                 column == kOverTicksColumn ? DT_RIGHT : DT_LEFT);
}

std::string COptinsKeyHotDlg::CellText(int row, int column, void*)
{
    HotKeyRecord record;
    if (!GetHotKeyRecord(kStoreType, row, &record))
        return "";
    if (column != kKeyColumn)
        return OrderKeyCellText(record, column);
    char name[kKeyNameSize] = "";
    GetHotKeyName(kStoreType, row, name);
    return name;
}

/// At the right edge of the room that the text has.
void COptinsKeyHotDlg::DrawArrow(HDC dc, const RECT& cell)
{
    const int top = cell.top + (cell.bottom - cell.top - m_arrow.cy) / 2;
    AlphaBlend(dc, cell.right - kArrowGap, top, m_arrow.cx, m_arrow.cy, m_arrowDC, 0, 0, m_arrow.cx,
               m_arrow.cy, {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA});
}

// ---- Opening a cell

void COptinsKeyHotDlg::OpenCell()
{
    HotKeyRecord record;
    if (!GetHotKeyRecord(kStoreType, editRow, &record))
        return;
    if (editColumn == kKeyColumn)
    {
        char name[kKeyNameSize] = "";
        GetHotKeyName(kStoreType, editRow, name);
        OpenEdit(name);
    }
    else if (editColumn == kOverTicksColumn)
        OpenEdit(std::to_string(record.overTicks).c_str());
    else
    {
        m_combo.ResetContent();
        for (const OrderKeyItem& item : OrderKeyItems(editColumn))
            m_combo.SetItemData(m_combo.AddString(item.text), item.value);
        m_combo.SetCurSel(FindOrderKeyItem(record, editColumn));
        OpenCombo();
    }
}

void COptinsKeyHotDlg::OpenCombo()
{
    CRect place = EditedCell();
    place.left += 1;
    if (editColumn == kSideColumn || editColumn == kOpenCloseColumn)
        place.right -= 1;
    m_combo.PlaceOver(place);
}

// ---- Keys in the edit

bool COptinsKeyHotDlg::OnEditKey(UINT key)
{
    if (editColumn == kOverTicksColumn)
        return IsTicksKey(key);
    if (IsModifierKey(key))
        return true;
    Capture(key);
    return false;
}

void COptinsKeyHotDlg::Capture(UINT key)
{
    char name[kKeyNameSize] = "";
    CaptureHotKey(kStoreType, editRow, key, name);
    // A row without a key is in nobody's way, whatever the client's setting holds.
    if (name[0] && _stricmp(name, m_toggleKey.c_str()) == 0)
    {
        MessageBox("与开启/关闭键盘下单快捷键冲突，请重新设置！", "提示", MB_OK);
        CaptureHotKey(kStoreType, editRow, 0, name);
    }
    m_edit.SetWindowText(name);
}

// ---- Closing a cell

bool COptinsKeyHotDlg::OpenControlHolds(CPoint point)
{
    if (IsOpen(m_combo))
        return m_combo.Holds(point);
    return CKeyGridPageDlg::OpenControlHolds(point);
}

/// An open list has the mouse and closes at this press by itself. Closed before, it would open again.
LRESULT COptinsKeyHotDlg::OnMousePressed(WPARAM point, LPARAM parameter)
{
    if (!m_combo.GetDroppedState())
        return CKeyGridPageDlg::OnMousePressed(point, parameter);
    if (!m_combo.Holds(PointOf(point)))
        PostMessage(kMsgListLeft);
    return 0;
}

LRESULT COptinsKeyHotDlg::OnListLeft(WPARAM, LPARAM)
{
    CloseCell();
    return 0;
}

void COptinsKeyHotDlg::CloseCell()
{
    if (IsEditing() && editColumn == kOverTicksColumn)
    {
        char text[kTicksCapacity];
        m_edit.GetWindowText(text, sizeof(text));
        SetHotKeyOverTicks(kStoreType, editRow, ParseInt(text));
    }
    if (IsOpen(m_combo))
    {
        m_combo.PutAway();
        StoreSelection();
    }
    CKeyGridPageDlg::CloseCell();
    ShowStoredRows();
}

void COptinsKeyHotDlg::StoreSelection()
{
    const int selection = m_combo.GetCurSel();
    if (selection < 0)
        return;
    const OrderKeyItem& item = OrderKeyItems(editColumn)[selection];
    switch (editColumn)
    {
    case kSideColumn:
        SetHotKeyBuySell(kStoreType, editRow, static_cast<char>(item.value));
        break;
    case kOpenCloseColumn:
        SetHotKeyOpenClose(kStoreType, editRow, static_cast<char>(item.value));
        break;
    case kPriceColumn:
        SetHotKeyPriceType(kStoreType, editRow, item.text);
        break;
    case kCoveredColumn:
        SetHotKeyCovered(kStoreType, editRow, item.value);
        break;
    case kActionColumn:
        SetHotKeyAction(kStoreType, editRow, item.value);
        break;
    }
}

/// The action itself is stored when the combo box closes.
LRESULT COptinsKeyHotDlg::OnItemPicked(WPARAM, LPARAM)
{
    const bool isAction = IsOpen(m_combo) && editColumn == kActionColumn;
    if (!isAction || !NeedsMultiple(m_combo.GetItemData(m_combo.GetCurSel())))
        return 0;
    const int row = editRow;
    CVolumeSetDlg volume(kFirstVolume, this);
    if (volume.DoModal() == IDOK)
        SetHotKeyMultiple(kStoreType, row, volume.Volume());
    m_grid.Invalidate(FALSE);
    return 0;
}

// ---- Rows

void COptinsKeyHotDlg::OnAdd()
{
    CloseCell();
    const int row = AddHotKeyRow(kStoreType);
    ShowStoredRows();
    m_grid.body->currentRow = row;
    m_grid.ScrollToEnd();
}

void COptinsKeyHotDlg::OnRemove()
{
    CloseCell();
    RemoveHotKeyRow(kStoreType, m_grid.GetRowCount() ? m_grid.body->currentRow : -1);
    ShowStoredRows();
}

void COptinsKeyHotDlg::RestoreDefaults()
{
    if (GetSafeHwnd())
        MessageBox("键盘下单无默认设置!", "提示", MB_OK | MB_ICONINFORMATION);
}

void COptinsKeyHotDlg::SaveToParam()
{
    if (!GetSafeHwnd())
        return;
    CloseCell();
    SaveHotKeys(kStoreType);
}
