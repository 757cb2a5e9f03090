#include "hotkeys/OptionKeyHotV1Dlg.h"

#include "core/PackageFile.h"
#include "core/ParamField.h"
#include "core/WorkingParam.h"
#include "hotkeys/KeyName.h"
#include "hotkeys/QuickKeys.h"
#include "resources/resource.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <iterator>

namespace
{

constexpr int kFunctionColumn = 0;
constexpr int kQuickKeyColumn = 1;

// The grid below its label, in pixels to be scaled.
constexpr int kGridGap = 12;
constexpr int kGridMargins = 64;
constexpr int kGridHeight = 200;

// The place is the value in the record.
constexpr UINT kCycleBoxes[] = {IDC_PRICE_VOLUME_ORDER, IDC_VOLUME_PRICE_ORDER, IDC_PRICE_ORDER,
                                IDC_VOLUME_ORDER};

} // namespace

BEGIN_MESSAGE_MAP(COptionKeyHotV1Dlg, CKeyGridPageDlg)
ON_WM_SIZE()
ON_BN_CLICKED(IDC_NET_POSITION, &COptionKeyHotV1Dlg::OnNetPosition)
ON_COMMAND_RANGE(IDC_PRICE_VOLUME_ORDER, IDC_VOLUME_PRICE_ORDER, &COptionKeyHotV1Dlg::OnCycle)
END_MESSAGE_MAP()

COptionKeyHotV1Dlg::COptionKeyHotV1Dlg(CWnd* parent)
    : CKeyGridPageDlg(IDD_QUICK_KEYS, parent)
    , m_keys(kStoreType)
{
    m_keys.Load();
}

BOOL COptionKeyHotV1Dlg::OnInitDialog()
{
    CKeyGridPageDlg::OnInitDialog();
    CreateGrid(IDC_NET_POSITION, GridPlace(), {{"功能", 140}, {"快捷键", 100}}, PaintCell,
               CellText);
    ShowKeys();
    SubclassChildren(m_hWnd);
    ShowCycle(WorkingParam().iOptionQuickBSMode);
    ShowNetPosition();
    return TRUE;
}

CRect COptionKeyHotV1Dlg::GridPlace()
{
    CRect label;
    GetDlgItem(IDC_STATIC)->GetWindowRect(&label);
    ScreenToClient(&label);
    CRect client;
    GetClientRect(&client);
    return CRect(CPoint(label.left, label.bottom + Scaled(kGridGap)),
                 CSize(client.Width() - Scaled(kGridMargins), Scaled(kGridHeight)));
}

void COptionKeyHotV1Dlg::OnSize(UINT type, int width, int height)
{
    CKeyGridPageDlg::OnSize(type, width, height);
    if (m_grid.GetSafeHwnd())
        m_grid.MoveWindow(GridPlace());
}

void COptionKeyHotV1Dlg::ShowKeys()
{
    ShowRows(m_keys.GetCount());
}

void COptionKeyHotV1Dlg::ShowNetPosition()
{
    CheckDlgButton(IDC_NET_POSITION, m_keys.HasNetRows() ? BST_CHECKED : BST_UNCHECKED);
}

void COptionKeyHotV1Dlg::OnNetPosition()
{
    CloseCell();
    m_keys.SetNetMode(IsDlgButtonChecked(IDC_NET_POSITION) == BST_CHECKED);
    ShowKeys();
}

// ---- Cells

void COptionKeyHotV1Dlg::PaintCell(HDC dc, int row, int column, RECT* rect, HFONT, CWnd*,
                                   void* userData, COwerDrawListView* grid)
{
    DrawCellText(dc, CellText(row, column, userData).c_str(), *rect,
                 column == kFunctionColumn ? kDarkText : grid->textColor, DT_LEFT);
}

std::string COptionKeyHotV1Dlg::CellText(int row, int column, void* userData)
{
    auto& page = *static_cast<COptionKeyHotV1Dlg*>(userData);
    const HotKeyRecord* const record = page.m_keys.GetRecord(row);
    if (!record)
        return "";
    return column == kFunctionColumn ? QuickKeyText(record->action) : page.KeyNameOf(row);
}

std::string COptionKeyHotV1Dlg::KeyNameOf(int row)
{
    char name[kKeyNameSize] = "";
    m_keys.GetKeyName(row, name);
    return name;
}

void COptionKeyHotV1Dlg::OpenCell()
{
    if (editColumn == kQuickKeyColumn)
        OpenEdit(KeyNameOf(editRow).c_str());
}

/// No key reaches the edit.
bool COptionKeyHotV1Dlg::OnEditKey(UINT key)
{
    if (editColumn != kQuickKeyColumn || IsModifierKey(key) || !CanBeQuickKey(key))
        return false;
    // The row's own key is found as well. This is meant.
    if (m_keys.FindHeldKey(key))
    {
        MessageBox("快捷键重复，请重新设置", "提示", MB_OK);
        return false;
    }
    m_keys.SetKeyCode(editRow, key);
    m_edit.SetWindowText(KeyNameOf(editRow).c_str());
    return false;
}

// ---- What the Return key walks through

/// The boxes are check boxes of which one is on. Without a valid mode it is the first.
void COptionKeyHotV1Dlg::ShowCycle(int mode)
{
    const bool isMode = mode >= 0 && mode < static_cast<int>(std::size(kCycleBoxes));
    const UINT checked = kCycleBoxes[isMode ? mode : 0];
    for (UINT box : kCycleBoxes)
        CheckDlgButton(box, box == checked ? BST_CHECKED : BST_UNCHECKED);
}

void COptionKeyHotV1Dlg::OnCycle(UINT clicked)
{
    for (UINT box : kCycleBoxes)
        CheckDlgButton(box, box == clicked ? BST_CHECKED : BST_UNCHECKED);
}

int COptionKeyHotV1Dlg::CheckedCycle() const
{
    for (size_t mode = 0; mode < std::size(kCycleBoxes); ++mode)
        if (IsDlgButtonChecked(kCycleBoxes[mode]) == BST_CHECKED)
            return static_cast<int>(mode);
    return 0;
}

// ---- Restore and save

void COptionKeyHotV1Dlg::RestoreDefaults()
{
    if (!GetSafeHwnd())
        return;
    CloseCell();
    MessageBox("快捷键设置恢复为上次保存的设置", "提示", MB_OK | MB_ICONINFORMATION);
    m_keys.Load();
    ShowKeys();
    ShowNetPosition();
    ShowCycle(PackagedInt(FIELD(iOptionQuickBSMode).name));
}

void COptionKeyHotV1Dlg::SaveToParam()
{
    if (!GetSafeHwnd())
        return;
    m_keys.Save();
    StorePackageKey(FIELD(iOptionQuickBSMode).name, std::to_string(CheckedCycle()));
}
