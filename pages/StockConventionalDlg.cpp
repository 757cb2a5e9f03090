#include "pages/StockConventionalDlg.h"

#include "pages/OrderPriceList.h"
#include "resources/resource.h"
#include "skin/MyComboBox.h"
#include "skin/SpinValue.h"

CStockConventionalDlg::CStockConventionalDlg(CWnd* parent)
    : CBoundPageDlg(IDD_STOCK_CONVEN, parent)
{
}

void CStockConventionalDlg::SetUpControls()
{
    // One nine less below than on the page of futures. This is meant.
    SetUpSpin(IDC_STOCK_FAST_CLOSE_TICK, 1.0, 0, -999999.0, kMostInField, kIntegerKeys);
    FillOrderPrices(Drawn<CMyComboBox_MyCtrl>(IDC_STOCK_INSERT_PRICE), false);
}

void CStockConventionalDlg::DeclareBindings(CBindings& page)
{
    page.ItemData(IDC_STOCK_INSERT_PRICE, FIELD(cSInsertPrice));
    page.Number(IDC_STOCK_VOLUME_LIMIT, FIELD(uSVolumeLimit), kText63);
    page.Index(IDC_FAST_CLOSE, FIELD(cSFastClosePrice), EmptySelection::StoresZero);
    page.Number(IDC_STOCK_FAST_CLOSE_TICK, FIELD(iSfcPriceTick), kText63);
}
