// General order behaviour of securities: the tab "常规".
#pragma once

#include "pages/PageDlg.h"

class CStockConventionalDlg : public CBoundPageDlg
{
public:
    explicit CStockConventionalDlg(CWnd* parent = nullptr);

protected:
    void SetUpControls() override;
    void DeclareBindings(CBindings& page) override;
};
