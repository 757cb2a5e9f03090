// The entry "期货/黄金设置".
#pragma once

#include "pages/ChasePriceDlg.h"
#include "pages/FutureConvenDlg.h"
#include "pages/StopProfitLossDlg.h"
#include "pages/TabHostDlg.h"

class CFutureMainDlg : public CTabHostDlg
{
public:
    explicit CFutureMainDlg(CWnd* parent = nullptr);

private:
    CFutureConvenDlg m_conventional;
    CFutureChasePriceDlg m_chasePrice;
    CFutureStopProfitLossDlg m_stop;
};
