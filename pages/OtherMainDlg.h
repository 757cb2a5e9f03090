// The entry "其它".
#pragma once

#include "pages/OtherListDlg.h"
#include "pages/TabHostDlg.h"

class COtherMainDlg : public CTabHostDlg
{
public:
    explicit COtherMainDlg(CWnd* parent = nullptr);

    void SavePages() override;

private:
    COtherFutureDlg m_future;
    COtherStockDlg m_stock;
    COtherOptionsDlg m_options;
};
