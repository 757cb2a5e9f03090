#include "pages/OptionsMainDlg.h"

#include "core/WorkingParam.h"
#include "resources/resource.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

namespace
{

// Local stops do not run in cloud mode: their tab is left out, the page stays reachable by its id.
const char* StopTab()
{
    return WorkingParam().uUseCloudMode == 1 ? nullptr : "本地止盈止损";
}

} // namespace

BEGIN_MESSAGE_MAP(COptionsMainDlg, CTabHostDlg)
ON_WM_ERASEBKGND()
ON_MESSAGE(kMsgMousePressed, &COptionsMainDlg::OnMousePressed)
END_MESSAGE_MAP()

COptionsMainDlg::COptionsMainDlg(CWnd* parent)
    : CTabHostDlg(IDD_OPTIONS_HOST, PageCreation::AtFirstShowing, parent)
{
    SetPages({
        {ParamPageOptionsChase, &m_chasePrice, "自动追价", true},
        {ParamPageOptionsStop, &m_stop, StopTab(), false},
        {ParamPageOptionsKeys, &m_keys, "键盘下单", false},
        {ParamPageOptionsSplit, &m_split, "自动拆单", true},
        {ParamPageOptionsQuickKeys, &m_quickKeys, "快键下单", false},
    });
}

BOOL COptionsMainDlg::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    FillRect(*dc, &client, GetCachedBrush(kPageSurround));
    return TRUE;
}

LRESULT COptionsMainDlg::OnMousePressed(WPARAM point, LPARAM parameter)
{
    if (VisiblePage())
        VisiblePage()->SendMessage(kMsgMousePressed, point, parameter);
    return 0;
}
