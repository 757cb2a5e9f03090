#include "pages/OtherListDlg.h"

#include "core/DefaultTables.h"
#include "pages/OtherParamModifyDlg.h"
#include "resources/resource.h"
#include "skin/SkinCache.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

namespace
{

const OtherListFacts kFuture = {IDD_OTHER_FUTURE, StopProduct::Future, "默认手数"};
const OtherListFacts kStock = {IDD_OTHER_STOCK, StopProduct::Stock, "默认数量"};
const OtherListFacts kOptions = {IDD_OTHER_OPTIONS, StopProduct::Options, "默认数量"};

const char* const kStockLabels[] = {"股票", "基金", "债券"};
const char* const kOptionsLabels[] = {"期权"};

constexpr int kGridMargin = 16; // as the page's own
// To be scaled with the type.
constexpr int kRowHeight = 26;
constexpr int kLabelWidth = 80;
constexpr int kVolumeWidth = 100;
constexpr UINT kCentred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

// Cells of a row. The last two stand behind the columns.
constexpr UINT kLabelCell = 0;
constexpr UINT kVolumeCell = 1;
constexpr UINT kTickCell = 2;
constexpr UINT kFlagCell = 3;

template <class Rows, size_t labels>
int LabelledRows(const Rows& rows, const char* const (&)[labels])
{
    return static_cast<int>(std::min(rows.size(), labels));
}

} // namespace

BEGIN_MESSAGE_MAP(COtherListDlg, CSheetPageDlg)
ON_WM_SIZE()
ON_WM_ERASEBKGND()
ON_NOTIFY(NM_DBLCLK, IDC_OTHER_GRID, &COtherListDlg::OnDoubleClick)
END_MESSAGE_MAP()

COtherListDlg::COtherListDlg(const OtherListFacts& facts, CWnd* parent)
    : CSheetPageDlg(facts.templateId, parent)
    , m_facts(facts)
{
}

BOOL COtherListDlg::OnInitDialog()
{
    CSheetPageDlg::OnInitDialog();
    MakeGrid();
    BuildRows();
    return TRUE;
}

void COtherListDlg::MakeGrid()
{
    const RECT empty = {};
    if (!m_grid.Create(empty, this, IDC_OTHER_GRID))
        return;
    m_grid.body->SetHeaderHeight(Scaled(kRowHeight));
    m_grid.body->rowHeight = Scaled(kRowHeight);
    m_grid.AddColumn("合约", Scaled(kLabelWidth), kCentred, kCentred, nullptr, kTextColumn);
    m_grid.AddColumn(m_facts.volumeTitle, Scaled(kVolumeWidth), kCentred, kCentred, nullptr,
                     kTextColumn);
    PlaceGrid();
    m_grid.ModifyStyle(0, WS_TABSTOP);
    m_grid.ShowWindow(SW_SHOW);
}

void COtherListDlg::PlaceGrid()
{
    CRect client;
    GetClientRect(&client);
    m_grid.MoveWindow(kGridMargin, kGridMargin, client.Width() - 2 * kGridMargin,
                      client.Height() - kGridMargin);
}

void COtherListDlg::OnSize(UINT type, int width, int height)
{
    CSheetPageDlg::OnSize(type, width, height);
    if (m_grid.GetSafeHwnd())
        PlaceGrid();
}

BOOL COtherListDlg::OnEraseBkgnd(CDC* dc)
{
    CSheetPageDlg::OnEraseBkgnd(dc);
    m_grid.DrawOuterFrame(0);
    return TRUE;
}

void COtherListDlg::BuildRows()
{
    if (!m_grid.GetSafeHwnd())
        return;
    m_grid.SetRedraw(FALSE);
    for (int row = 0; row < RowCount(); ++row)
    {
        if (row < m_grid.GetRowCount())
            m_grid.SetCellText(row, kLabelCell, Label(row));
        else
            m_grid.AddRow(Label(row));
        FillRow(row);
    }
    m_grid.SetRedraw(TRUE);
    m_grid.Invalidate(FALSE);
}

void COtherListDlg::FillRow(int row)
{
    const StopDefaultValues& values = Values(row);
    m_grid.SetCellText(row, kVolumeCell, std::to_string(values.defaultVolume).c_str());
    GrowRow(row, kTickCell);
    m_grid.SetCellText(row, kTickCell, std::to_string(values.tickVolume).c_str());
}

void COtherListDlg::GrowRow(int row, UINT cell)
{
    m_grid.rows.FindGrown(row, cell, cell + 1, MakeGrownCell());
}

int COtherListDlg::SelectedRow() const
{
    const int row = m_grid.body ? m_grid.body->currentRow : -1;
    return row < std::min(m_grid.GetRowCount(), RowCount()) ? row : -1;
}

void COtherListDlg::OnDoubleClick(NMHDR*, LRESULT* result)
{
    *result = 0;
    const int row = SelectedRow();
    if (row < 0)
        return;
    StopDefaultValues values = Values(row);
    COtherParamModifyDlg editor(m_facts.product, values, this);
    // The host may have loaded fewer contracts while the dialog was open.
    if (editor.DoModal() != IDOK || row >= RowCount())
        return;
    Values(row) = values;
    BuildRows();
    WriteRow(row);
}

void COtherListDlg::RestoreDefaults()
{
    if (!GetSafeHwnd())
        return;
    for (int row = 0; row < RowCount(); ++row)
    {
        RestoreStopValues(m_facts.product, Values(row));
        WriteRow(row);
    }
    BuildRows();
}

void COtherListDlg::SaveToParam() {}

COtherFutureDlg::COtherFutureDlg(CWnd* parent)
    : COtherListDlg(kFuture, parent)
{
}

int COtherFutureDlg::RowCount() const
{
    return static_cast<int>(FutureDefaults.size());
}

const char* COtherFutureDlg::Label(int row) const
{
    return FutureDefaults[row].name;
}

StopDefaultValues& COtherFutureDlg::Values(int row)
{
    return FutureDefaults[row];
}

void COtherFutureDlg::WriteRow(int row)
{
    WriteFutureDefault(FutureDefaults[row]);
}

BEGIN_MESSAGE_MAP(COtherStockDlg, COtherListDlg)
ON_MESSAGE(kGridMessage, &COtherStockDlg::OnGridMessage)
END_MESSAGE_MAP()

COtherStockDlg::COtherStockDlg(CWnd* parent)
    : COtherListDlg(kStock, parent)
{
}

int COtherStockDlg::RowCount() const
{
    return LabelledRows(StockDefaults, kStockLabels);
}

const char* COtherStockDlg::Label(int row) const
{
    return kStockLabels[row];
}

StopDefaultValues& COtherStockDlg::Values(int row)
{
    return StockDefaults[row];
}

void COtherStockDlg::WriteRow(int row)
{
    WriteStockDefault(StockDefaults[row]);
}

void COtherStockDlg::FillRow(int row)
{
    COtherListDlg::FillRow(row);
    GrowRow(row, kFlagCell);
    m_grid.SetCellCheck(row, kFlagCell, Values(row).flag);
}

LRESULT COtherStockDlg::OnGridMessage(WPARAM event, LPARAM)
{
    // No column shows the flag, so that the grid never says this. This is meant.
    const int row = SelectedRow();
    if (event != static_cast<WPARAM>(GridEvent::CheckToggled) || row < 0)
        return 0;
    Values(row).flag = m_grid.GetCellCheck(row, kFlagCell);
    WriteRow(row);
    return 0;
}

COtherOptionsDlg::COtherOptionsDlg(CWnd* parent)
    : COtherListDlg(kOptions, parent)
{
}

BOOL COtherOptionsDlg::OnInitDialog()
{
    LoadOptionsDefaults(false);
    return COtherListDlg::OnInitDialog();
}

int COtherOptionsDlg::RowCount() const
{
    return LabelledRows(OptionsDefaults, kOptionsLabels);
}

const char* COtherOptionsDlg::Label(int row) const
{
    return kOptionsLabels[row];
}

StopDefaultValues& COtherOptionsDlg::Values(int row)
{
    return OptionsDefaults[row];
}

void COtherOptionsDlg::WriteRow(int) {}

void COtherOptionsDlg::RestoreDefaults()
{
    if (!GetSafeHwnd())
        return;
    LoadOptionsDefaults(true);
    COtherListDlg::RestoreDefaults();
}

void COtherOptionsDlg::SaveToParam()
{
    if (GetSafeHwnd() && !OptionsDefaults.empty())
        WriteOptionsDefault(OptionsDefaults.front());
}
