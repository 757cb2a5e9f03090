#include "pages/OptionsMainDlg.h"

#include "core/WorkingParam.h"
#include "resources/resource.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

namespace
{

// Around the page that scrolls.
constexpr int kMargin = 16;
constexpr int kMarginTop = 58;

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
        {ParamPageOptions, &m_conventional, "常规", true},
        {ParamPageOptionsChase, &m_chasePrice, "自动追价", true},
        {ParamPageOptionsStop, &m_stop, StopTab(), false},
        {ParamPageOptionsKeys, &m_keys, "键盘下单", false},
        {ParamPageOptionsSplit, &m_split, "自动拆单", true},
        {ParamPageOptionsQuickKeys, &m_quickKeys, "快键下单", false},
    });
}

CRect COptionsMainDlg::PlaceOf(const CPageDlg& page, CSize host) const
{
    if (&page != &m_conventional)
        return CTabHostDlg::PlaceOf(page, host);
    // Stands in a margin, until it is selected anew and fills the host as the others do. This is meant.
    return CRect(kMargin, Scaled(kMarginTop), host.cx - kMargin, host.cy);
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
