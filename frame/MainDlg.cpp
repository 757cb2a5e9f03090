#include "frame/MainDlg.h"

#include "core/ClientRestart.h"
#include "core/HostHooks.h"
#include "core/PackageFile.h"
#include "core/WorkingParam.h"
#include "resources/resource.h"
#include "skin/MyListBox.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <algorithm>
#include <set>

namespace
{

// What is left free below a host for the buttons, and below the white strip of the list.
constexpr int kButtonBar = 56;
constexpr int kStripGap = 8;

bool IsAlwaysListed()
{
    return true;
}

bool IsIndicatorListed()
{
    return GetSpecialUI(SpecialUIIndicator);
}

} // namespace

/// A row of the list: where it leads, and when it is there.
struct CMainDlg::PageRow
{
    const char* text;
    int image;
    std::set<int> pages; // TParamSetPage values
    CSubMainDlg& (*host)(CMainDlg&);
    bool (*isListed)();
};

const CMainDlg::PageRow CMainDlg::kPageRows[] = {
    {"公共设置",
     0,
     {ParamPagePublic, ParamPageConditionMode},
     [](CMainDlg& window) -> CSubMainDlg& { return window.m_publicHost; },
     IsAlwaysListed},
    {"期权设置",
     8,
     {ParamPageOptions, ParamPageOptionsChase, ParamPageOptionsStop, ParamPageOptionsSplit,
      ParamPageOptionsKeys, ParamPageOptionsQuickKeys},
     [](CMainDlg& window) -> CSubMainDlg& { return window.m_optionsHost; },
     IsAlwaysListed},
    {"期货/黄金设置",
     9,
     {ParamPageFuture, ParamPageFutureChase, ParamPageFutureStop},
     [](CMainDlg& window) -> CSubMainDlg& { return window.m_futureHost; },
     IsAlwaysListed},
    {"证券/融资融券设置",
     10,
     {ParamPageStock, ParamPageStockChase, ParamPageStockSplit, ParamPageMarginBuy},
     [](CMainDlg& window) -> CSubMainDlg& { return window.m_stockHost; },
     IsAlwaysListed},
    {"指标策略交易",
     12,
     {ParamPageIndicator},
     [](CMainDlg& window) -> CSubMainDlg& { return window.m_indicatorHost; },
     IsIndicatorListed},
    {"其它",
     11,
     {ParamPageOtherOptions, ParamPageOtherFuture, ParamPageOtherStock},
     [](CMainDlg& window) -> CSubMainDlg& { return window.m_otherHost; },
     IsAlwaysListed},
};

BEGIN_MESSAGE_MAP(CMainDlg, CDialog)
ON_WM_ERASEBKGND()
ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CMainDlg::OnRestoreDefaults)
ON_LBN_SELCHANGE(IDC_PAGE_LIST, &CMainDlg::OnPageSelected)
END_MESSAGE_MAP()

CMainDlg::CMainDlg(TParamSetPage startPage, CWnd* parent)
    : CDialog(IDD_MAIN, parent)
    , m_startPage(startPage)
{
}

CMainDlg::~CMainDlg()
{
    DestroySubclassedCtrls();
}

void CMainDlg::SaveAll()
{
    SaveAllParams(WorkingParam());
}

BOOL CMainDlg::OnInitDialog()
{
    // First of all: whatever is made from here on is laid out by it.
    CClientDC dc(this);
    SetUIScale(static_cast<float>(dc.GetDeviceCaps(LOGPIXELSY) / 96.0));
    CDialog::OnInitDialog();
    SubclassChildren(m_hWnd);
    AddRows();

    // The accepted row stays 0 even when another row is opened: a check that fails at the first
    // change of page goes back to row 0. This is meant.
    const int row = StartRow();
    PageList().SetCurSel(row);
    ShowHost(row);
    if (m_currentHost)
        m_currentHost->SelectPage(m_startPage);
    FitListToRows();
    return TRUE;
}

CMyListBox_MyCtrl& CMainDlg::PageList()
{
    return Drawn<CMyListBox_MyCtrl>(IDC_PAGE_LIST);
}

void CMainDlg::AddRows()
{
    for (const PageRow& row : kPageRows)
        if (row.isListed())
            PageList().AddItem(row.text, row.image);
}

int CMainDlg::StartRow()
{
    int listRow = 0;
    for (const PageRow& row : kPageRows)
    {
        if (!row.isListed())
            continue;
        if (row.pages.count(m_startPage))
            return listRow;
        ++listRow;
    }
    return 0;
}

void CMainDlg::ShowHost(int listRow)
{
    char text[256] = "";
    PageList().GetItemText(listRow, text);
    for (const PageRow& row : kPageRows)
    {
        if (strcmp(row.text, text) != 0)
            continue;
        if (m_currentHost)
            m_currentHost->ShowWindow(SW_HIDE);
        m_currentHost = &row.host(*this);
        m_currentHost->EnsureWindow(this);
        PlaceHost(*m_currentHost);
        m_currentHost->ShowWindow(SW_SHOW);
        return;
    }
}

void CMainDlg::PlaceHost(CSubMainDlg& host)
{
    CRect list;
    PageList().GetWindowRect(&list);
    ScreenToClient(&list);
    CRect client;
    GetClientRect(&client);

    const int left = list.right + 1;
    CRect button;
    GetDlgItem(IDC_RESTORE_DEFAULTS)->GetWindowRect(&button);
    ScreenToClient(&button);
    // A large type makes the buttons higher than the bar.
    const int bar = static_cast<int>(client.bottom - kButtonBar * GetUIScale());
    const int height = std::min<int>(bar, button.top);
    // Behind the list, and so ahead of the buttons, in the order in which Tab walks.
    host.SetWindowPos(&PageList(), left, 0, client.right - left, height, SWP_NOACTIVATE);
}

void CMainDlg::FitListToRows()
{
    CMyListBox_MyCtrl& list = PageList();
    int height = 0;
    for (int row = 0; row < list.GetCount(); ++row)
        height += list.GetItemHeight(row);
    CRect client;
    list.GetClientRect(&client);
    list.MoveWindow(0, 0, client.Width(), height);
}

void CMainDlg::OnPageSelected()
{
    // Hosts are checked whatever is being left, so that a hidden page can keep the trader on the one
    // on show. This is meant.
    if (!m_optionsHost.CheckCurrentPage() || !m_stockHost.CheckCurrentPage() ||
        !m_futureHost.CheckCurrentPage())
    {
        PageList().SetCurSel(m_acceptedRow);
        return;
    }
    m_acceptedRow = PageList().GetCurSel();
    ShowHost(m_acceptedRow);
}

void CMainDlg::OnRestoreDefaults()
{
    // Everything gets a window first, so that each host restores the page of its current tab.
    CSubMainDlg* const hosts[] = {&m_futureHost,    &m_stockHost, &m_publicHost,
                                  &m_indicatorHost, &m_otherHost, &m_optionsHost};
    for (CSubMainDlg* host : hosts)
        host->EnsureWindow(this);
    m_optionsHost.EnsurePages();
    m_futureHost.EnsurePages();
    for (CSubMainDlg* host : hosts)
        host->RestoreCurrentPage();
}

void CMainDlg::OnOK()
{
    // The page of futures is not checked here, unlike at a change of page. This is meant.
    if (!m_optionsHost.CheckCurrentPage() || !m_publicHost.CheckModeSwitch() ||
        !m_stockHost.CheckCurrentPage())
        return;
    const ModeSwitch decision = m_publicHost.ConfirmModeSwitch();
    if (decision == ModeSwitch::CancelSaving)
        return;

    CSubMainDlg* const hosts[] = {&m_futureHost,    &m_stockHost,   &m_publicHost,
                                  &m_indicatorHost, &m_optionsHost, &m_otherHost};
    for (CSubMainDlg* host : hosts)
        host->SavePages();
    SaveAll();
    if (decision == ModeSwitch::RestartNow)
        RestartClient();
    CDialog::OnOK();
}

BOOL CMainDlg::OnEraseBkgnd(CDC* dc)
{
    CRect area;
    GetClientRect(&area);
    FillRect(*dc, &area, GetCachedBrush(kPageSurround));

    CRect list;
    PageList().GetClientRect(&list);
    area.right = list.Width();
    area.bottom -= kStripGap;
    FillRect(*dc, &area, GetCachedBrush(kPageSheet));
    return TRUE;
}
