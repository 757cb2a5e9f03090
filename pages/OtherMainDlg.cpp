#include "pages/OtherMainDlg.h"

#include "resources/resource.h"

COtherMainDlg::COtherMainDlg(CWnd* parent)
    : CTabHostDlg(IDD_OTHER_HOST, PageCreation::WithTheHost, parent)
{
    // Only a start page leads to the first two. This is meant.
    SetPages({
        {ParamPageOtherFuture, &m_future, nullptr, false},
        {ParamPageOtherStock, &m_stock, nullptr, false},
        {ParamPageOtherOptions, &m_options, "期权", false},
    });
}

void COtherMainDlg::SavePages()
{
    if (GetSafeHwnd() && CurrentTabPage() == ParamPageOtherOptions)
        m_options.SaveToParam();
}
