// General order behaviour of futures and gold: the tab "常规".
#pragma once

#include "pages/PageDlg.h"

class CFutureConvenDlg : public CBoundPageDlg
{
public:
    explicit CFutureConvenDlg(CWnd* parent = nullptr);

protected:
    void SetUpControls() override;
    void DeclareBindings(CBindings& page) override;
};
