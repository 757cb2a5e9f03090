// A page host with a tab strip on top and the page of the selected tab below it.
#pragma once

#include "frame/SubMainDlg.h"
#include "pages/PageDlg.h"
#include "skin/MyTabCtrl.h"

#include <vector>

/// When a host makes the windows of its pages.
enum class PageCreation
{
    WithTheHost,
    AtFirstShowing,
};

/// A page of a host.
struct HostPage
{
    int id; // its TParamSetPage value, the item data of its tab
    CPageDlg* page;
    const char* tab; // the tab's text; null when no tab leads to the page
    bool isChecked;  // whether its limits are checked when the trader leaves it
};

constexpr int kNoPageId = -1;

class CTabHostDlg : public CSubMainDlg
{
public:
    void RestoreCurrentPage() override;
    void SelectPage(int pageId) override;
    void SavePages() override;

    /// Whether the page of the accepted tab, the one last reached by a change of tab, may be left.
    /// True while the page has no window, so that a page never shown never blocks.
    bool CheckCurrentPage();

    /// Makes the window of each page that has none.
    void EnsurePages();

protected:
    CTabHostDlg(UINT templateId, PageCreation creation, CWnd* parent);

    /// States the pages, members of the derived class, in the order in which they are made and saved.
    /// Tabs stand in the order of their page ids.
    void SetPages(std::vector<HostPage> pages);

    CPageDlg* VisiblePage() { return m_visiblePage; }

    /// Where a page goes when the host gets a size: below the strip, over the whole width.
    virtual CRect PlaceOf(const CPageDlg& page, CSize host) const;

    /// The page id of the current tab, kNoPageId for none. The page on show may be another one, which
    /// no tab leads to.
    int CurrentTabPage() const;

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

    afx_msg int OnCreate(CREATESTRUCT* creation);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnTabSelected(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    bool SwitchTabByKey(const MSG& message);
    void AddTabs();
    int TabWidth(const char* title);
    void SelectTab(int pageId);
    void ShowPage(CPageDlg& page);
    const HostPage* Find(int pageId) const;

    const PageCreation m_creation;
    std::vector<HostPage> m_pages;
    CMyTabCtrl_MyCtrl m_strip;
    CPageDlg* m_visiblePage = nullptr;
    int m_acceptedTab = 0;
};
