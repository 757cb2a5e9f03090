#include "pages/FutureConvenDlg.h"

#include "pages/OrderPriceList.h"
#include "resources/resource.h"
#include "skin/MyComboBox.h"
#include "skin/SpinValue.h"

CFutureConvenDlg::CFutureConvenDlg(CWnd* parent)
    : CBoundPageDlg(IDD_FUTURE_CONVEN, parent)
{
}

void CFutureConvenDlg::SetUpControls()
{
    SetUpSpin(IDC_FAST_CLOSE_TICK, 1.0, 0, -kMostInField, kMostInField, kIntegerKeys);

    // The record keeps the hedge class as a character.
    auto& hedge = Drawn<CMyComboBox_MyCtrl>(IDC_HEDGE);
    hedge.SetItemData(0, '1');
    hedge.SetItemData(1, '3');

    FillOrderPrices(Drawn<CMyComboBox_MyCtrl>(IDC_INSERT_PRICE), true);
}

void CFutureConvenDlg::DeclareBindings(CBindings& page)
{
    page.ItemData(IDC_HEDGE, FIELD(cFSpeculationHedge));
    page.ItemData(IDC_INSERT_PRICE, FIELD(cFInsertPrice));
    page.Flag(IDC_RESTORE_OPEN, FIELD(bFRestoreOpenFlag));
    page.Index(IDC_FAST_CLOSE, FIELD(cFFastClosePrice), EmptySelection::StoresZero);
    page.Number(IDC_FAST_CLOSE_TICK, FIELD(iFfcPriceTick), kText31);
    page.Flag(IDC_AUTO_CANCEL, FIELD(bFAutoCancelOrder));
    // These keep no selection as it is: 255 in the record.
    page.Index(IDC_SUPER_BUY_1, FIELD(cFSuperBuy1), EmptySelection::StoredAsIs);
    page.Index(IDC_SUPER_BUY_2, FIELD(cFSuperBuy2), EmptySelection::StoredAsIs);
    page.Index(IDC_SUPER_SELL_1, FIELD(cFSuperSell1), EmptySelection::StoredAsIs);
    page.Index(IDC_SUPER_SELL_2, FIELD(cFSuperSell2), EmptySelection::StoredAsIs);
    page.Index(IDC_CLOSE_PRIORITY, FIELD(cFCloseTodayPriority), EmptySelection::StoredAsIs);
}
