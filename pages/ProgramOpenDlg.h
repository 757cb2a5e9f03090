// How orders of the client's indicator strategies behave: the entry "指标策略交易".
#pragma once

#include "frame/SubMainDlg.h"
#include "pages/Bindings.h"
#include "skin/SubclassWins.h"

/// Host and page at once: it has no tabs, and nothing on it can be refused.
class CProgramOpenDlg : public CSubMainDlg, public CSubclassWins
{
public:
    explicit CProgramOpenDlg(CWnd* parent = nullptr);
    ~CProgramOpenDlg() override;

    void RestoreCurrentPage() override;
    void SavePages() override;

protected:
    BOOL OnInitDialog() override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    CBindings m_bindings;
};
