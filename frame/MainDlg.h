// The settings window "参数设置".
#pragma once

#include "frame/SubMainDlg.h"
#include "pages/FutureMainDlg.h"
#include "pages/OptionsMainDlg.h"
#include "pages/OtherMainDlg.h"
#include "pages/ProgramOpenDlg.h"
#include "pages/PublicMainDlg.h"
#include "pages/StockMainDlg.h"
#include "skin/SubclassWins.h"

#include <zorvane/TOParam.h>

class CMyListBox_MyCtrl;

/// Shows the list of pages, the host of the selected row and three buttons. It owns the flow of
/// confirming, saving and restoring.
class CMainDlg : public CDialog, public CSubclassWins
{
public:
    /// @param startPage the page to open; one without a row opens the first row
    explicit CMainDlg(TParamSetPage startPage, CWnd* parent = nullptr);
    ~CMainDlg() override;

    /// Writes the working record to the package file. Needs no window.
    void SaveAll();

    /// The host on show; null before the first.
    CSubMainDlg* CurrentHost() const { return m_currentHost; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnRestoreDefaults();
    afx_msg void OnPageSelected();
    DECLARE_MESSAGE_MAP()

private:
    struct PageRow;
    static const PageRow kPageRows[];

    CMyListBox_MyCtrl& PageList();
    void AddRows();
    int StartRow();
    void ShowHost(int row);
    void PlaceHost(CSubMainDlg& host);
    void FitListToRows();

    CFutureMainDlg m_futureHost;
    CStockMainDlg m_stockHost;
    CPublicMainDlg m_publicHost;
    CProgramOpenDlg m_indicatorHost;
    COtherMainDlg m_otherHost;
    COptionsMainDlg m_optionsHost;
    CSubMainDlg* m_currentHost = nullptr;
    TParamSetPage m_startPage;
    int m_acceptedRow = 0; // the row last left in good order
};
