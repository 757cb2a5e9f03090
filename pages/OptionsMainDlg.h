// The entry "期权设置".
#pragma once

#include "hotkeys/OptinsKeyHotDlg.h"
#include "hotkeys/OptionKeyHotV1Dlg.h"
#include "pages/ChasePriceDlg.h"
#include "pages/OptionsConventionalDlg.h"
#include "pages/SplitOrderDlg.h"
#include "pages/StopProfitLossDlg.h"
#include "pages/TabHostDlg.h"

class COptionsMainDlg : public CTabHostDlg
{
public:
    explicit COptionsMainDlg(CWnd* parent = nullptr);

protected:
    CRect PlaceOf(const CPageDlg& page, CSize host) const override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnMousePressed(WPARAM point, LPARAM parameter);
    DECLARE_MESSAGE_MAP()

private:
    COptionsConventionalDlg m_conventional;
    COptionsChasePriceDlg m_chasePrice;
    COptionsStopProfitLossDlg m_stop;
    COptinsKeyHotDlg m_keys;
    COptionsSplitOrderDlg m_split;
    COptionKeyHotV1Dlg m_quickKeys;
};
