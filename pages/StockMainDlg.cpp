#include "pages/StockMainDlg.h"

#include "resources/resource.h"

CStockMainDlg::CStockMainDlg(CWnd* parent)
    : CTabHostDlg(IDD_STOCK_HOST, PageCreation::WithTheHost, parent)
{
    SetPages({
        {ParamPageStockChase, &m_chasePrice, "自动追价", true},
        {ParamPageStock, &m_conventional, "常规", false},
        // Saved with the others, though nothing leads to it. This is meant.
        {kNoPageId, &m_stop, nullptr, false},
        {ParamPageStockSplit, &m_split, "自动拆单", true},
        {ParamPageMarginBuy, &m_marginBuy, "两融买入方式", false},
    });
}
