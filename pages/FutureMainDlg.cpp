#include "pages/FutureMainDlg.h"

#include "resources/resource.h"

CFutureMainDlg::CFutureMainDlg(CWnd* parent)
    : CTabHostDlg(IDD_FUTURE_HOST, PageCreation::AtFirstShowing, parent)
{
    SetPages({
        {ParamPageFuture, &m_conventional, "常规", false},
        {ParamPageFutureChase, &m_chasePrice, "自动追价", true},
        {ParamPageFutureStop, &m_stop, "止盈止损", false},
    });
}
