#include "pages/TabHostDlg.h"

#include "resources/resource.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <commctrl.h>

#include <algorithm>

namespace
{

constexpr int kTabWidth = 100;
constexpr int kTabPadding = 4;
constexpr int kStripTop = 2;
constexpr int kStripHeight = 40;
constexpr int kPageTop = 42;

CRect BelowStrip(CSize host)
{
    return CRect(0, Scaled(kPageTop), host.cx, host.cy);
}

/// How many tabs on a key leads that any window with tabs knows; 0 for another key.
int TabStep(const MSG& message)
{
    if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) >= 0)
        return 0;
    switch (message.wParam)
    {
    case VK_TAB:
        return GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
    case VK_NEXT:
        return 1;
    case VK_PRIOR:
        return -1;
    default:
        return 0;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(CTabHostDlg, CSubMainDlg)
ON_WM_CREATE()
ON_WM_SIZE()
ON_NOTIFY(TCN_SELCHANGE, IDC_TAB_STRIP, &CTabHostDlg::OnTabSelected)
END_MESSAGE_MAP()

CTabHostDlg::CTabHostDlg(UINT templateId, PageCreation creation, CWnd* parent)
    : CSubMainDlg(templateId, parent)
    , m_creation(creation)
{
}

void CTabHostDlg::SetPages(std::vector<HostPage> pages)
{
    m_pages = std::move(pages);
}

int CTabHostDlg::OnCreate(CREATESTRUCT* creation)
{
    if (CSubMainDlg::OnCreate(creation) == -1)
        return -1;
    m_strip.Create(IDC_TAB_STRIP, this);
    m_strip.ModifyStyle(0, WS_TABSTOP);
    if (m_creation == PageCreation::WithTheHost)
        EnsurePages();
    return 0;
}

BOOL CTabHostDlg::OnInitDialog()
{
    CSubMainDlg::OnInitDialog();
    AddTabs();
    m_strip.SetCurSel(m_acceptedTab);
    SelectPage(m_strip.GetItemData(m_acceptedTab));
    return TRUE;
}

BOOL CTabHostDlg::PreTranslateMessage(MSG* message)
{
    return SwitchTabByKey(*message) || CSubMainDlg::PreTranslateMessage(message);
}

bool CTabHostDlg::SwitchTabByKey(const MSG& message)
{
    const int step = TabStep(message);
    const int tabs = m_strip.GetItemCount();
    if (step == 0 || tabs == 0)
        return false;
    m_strip.Press((m_strip.GetCurSel() + step + tabs) % tabs);
    return true;
}

void CTabHostDlg::AddTabs()
{
    std::vector<HostPage> tabs;
    std::copy_if(m_pages.begin(), m_pages.end(), std::back_inserter(tabs),
                 [](const HostPage& page) { return page.tab != nullptr; });
    std::sort(tabs.begin(), tabs.end(),
              [](const HostPage& a, const HostPage& b) { return a.id < b.id; });
    for (const HostPage& page : tabs)
        m_strip.SetItemData(m_strip.AddItem(page.tab, TabWidth(page.tab), kAccent, kListText),
                            page.id);
}

/// A tab is wider than the others only where its title needs it, in a type larger than the usual one.
int CTabHostDlg::TabWidth(const char* title)
{
    CClientDC dc(this);
    CFont* const old = dc.SelectObject(GetFont());
    const int width = dc.GetTextExtent(title, static_cast<int>(strlen(title))).cx;
    dc.SelectObject(old);
    return std::max(Scaled(kTabWidth), width + kTabPadding);
}

const HostPage* CTabHostDlg::Find(int pageId) const
{
    const auto found = std::find_if(m_pages.begin(), m_pages.end(),
                                    [pageId](const HostPage& page) { return page.id == pageId; });
    return found == m_pages.end() || pageId == kNoPageId ? nullptr : &*found;
}

void CTabHostDlg::EnsurePages()
{
    for (const HostPage& page : m_pages)
        page.page->EnsureWindow(this);
}

void CTabHostDlg::SelectPage(int pageId)
{
    if (!GetSafeHwnd())
        return;
    SelectTab(pageId);
    if (const HostPage* const page = Find(pageId))
        ShowPage(*page->page);
}

void CTabHostDlg::SelectTab(int pageId)
{
    for (int tab = 0; tab < m_strip.GetItemCount(); ++tab)
    {
        if (m_strip.GetItemData(tab) != pageId)
            continue;
        m_strip.SetCurSel(tab);
        return;
    }
}

void CTabHostDlg::ShowPage(CPageDlg& page)
{
    CPageDlg* const last = m_visiblePage;
    m_visiblePage = &page;
    // A field that is no longer seen must not go on taking what the trader types.
    if (last && last != &page && ::IsChild(last->GetSafeHwnd(), ::GetFocus()))
        m_strip.SetFocus();
    if (last)
        last->ShowWindow(SW_HIDE);
    page.EnsureWindow(this);
    CRect client;
    GetClientRect(&client);
    page.MoveWindow(BelowStrip(client.Size()));
    page.ShowWindow(SW_SHOW);
}

CRect CTabHostDlg::PlaceOf(const CPageDlg&, CSize host) const
{
    return BelowStrip(host);
}

void CTabHostDlg::OnSize(UINT type, int width, int height)
{
    CSubMainDlg::OnSize(type, width, height);
    if (!m_strip.GetSafeHwnd())
        return;
    m_strip.MoveWindow(0, kStripTop, width, Scaled(kStripHeight));
    for (const HostPage& page : m_pages)
        if (page.page->GetSafeHwnd())
            page.page->MoveWindow(PlaceOf(*page.page, CSize(width, height)));
}

void CTabHostDlg::OnTabSelected(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (!CheckCurrentPage())
    {
        m_strip.SetCurSel(m_acceptedTab);
        return;
    }
    m_acceptedTab = m_strip.GetCurSel();
    SelectPage(m_strip.GetItemData(m_acceptedTab));
}

bool CTabHostDlg::CheckCurrentPage()
{
    if (!GetSafeHwnd())
        return true;
    const HostPage* const accepted = Find(m_strip.GetItemData(m_acceptedTab));
    if (!accepted || !accepted->isChecked || !accepted->page->GetSafeHwnd())
        return true;
    return accepted->page->Validate();
}

void CTabHostDlg::RestoreCurrentPage()
{
    if (!GetSafeHwnd())
        return;
    if (const HostPage* const page = Find(CurrentTabPage()))
        page->page->RestoreDefaults();
}

int CTabHostDlg::CurrentTabPage() const
{
    return m_strip.GetItemData(m_strip.GetCurSel());
}

void CTabHostDlg::SavePages()
{
    if (!GetSafeHwnd())
        return;
    for (const HostPage& page : m_pages)
        page.page->SaveToParam();
}
