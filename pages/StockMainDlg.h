// The entry "证券/融资融券设置".
#pragma once

#include "pages/ChasePriceDlg.h"
#include "pages/MarginBuyStrategyDlg.h"
#include "pages/SplitOrderDlg.h"
#include "pages/StockConventionalDlg.h"
#include "pages/StopProfitLossDlg.h"
#include "pages/TabHostDlg.h"

class CStockMainDlg : public CTabHostDlg
{
public:
    explicit CStockMainDlg(CWnd* parent = nullptr);

private:
    CStockChasePriceDlg m_chasePrice;
    CStockConventionalDlg m_conventional;
    CStockStopProfitLossDlg m_stop;
    CMarginSplitOrderDlg m_split;
    CMarginBuyStrategyDlg m_marginBuy;
};
