// The row of tabs at the top of a page host: a small window of its own that tells its parent of a
// change as a stock tab control does.
#pragma once

#include "skin/Accessible.h"
#include "skin/Palette.h"

#include <afxwin.h>

#include <string>
#include <vector>

/// With the focus on it, which the parent may allow by WS_TABSTOP, the arrow keys, Home and End select
/// tabs as clicks do.
class CMyTabCtrl_MyCtrl : public CWnd, private AccessibleSource
{
public:
    /// What all tabs of a strip share.
    struct Look
    {
        COLORREF backColor = kPageSheet;
        COLORREF textColor = kListText;
        COLORREF activeTextColor = kAccent;
        COLORREF activeBackColor = kPageSheet;
        COLORREF lineColor = kPageSheet; ///< of the boxes or separators between tabs
        bool barAtTop = false;           ///< where the bar of the selected tab stands
        bool boxed = true;               ///< boxes around the tabs; otherwise separators
    };

    void SetLook(const Look& newLook);

    /// Makes the strip, empty and without a size: the parent places it.
    BOOL Create(int id, CWnd* parent);

    /// Appends a tab. The title is cut to 31 bytes; width in pixels; `data` is the parent's to use.
    /// @return the tab's index
    int AddItem(const char* title, int width, int data, COLORREF color);
    int AddItem(const char* title, int width, COLORREF color);
    /// @param activeColor the bar of this tab while it is selected
    int AddItem(const char* title, int width, COLORREF activeColor, COLORREF inactiveColor);

    int GetItemCount() const;

    /// Selects a tab without telling the parent.
    void SetCurSel(int index);
    /// @return -1 as long as no tab is selected
    int GetCurSel() const;
    /// Selects a tab as a click on it does: tells the parent, which may put the selection back.
    void Press(int index);

    void SetItemData(int index, int value);
    /// @return -1 for an index out of range
    int GetItemData(int index) const;
    void SetItemTitle(int index, const char* title);

    /// The tab under a point of the client area, or -1.
    int HitTest(int x, int y) const;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg void OnSetFocus(CWnd* oldFocus);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg LRESULT OnCuesChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAskedForObject(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct MyTabItem
    {
        std::string title;
        int width;
        int data;
        COLORREF activeColor;
        COLORREF inactiveColor;
    };

    HWND DrawnWindow() const override { return m_hWnd; }
    AccessibleKind Kind() const override;
    int PartCount() const override { return GetItemCount(); }
    AccessiblePart Part(int index) const override;
    int PartAt(CPoint point) const override { return HitTest(point.x, point.y); }
    int SelectedPart() const override { return current; }
    void SelectPart(int index) override { Press(index); }
    void PressPart(int index) override { Press(index); }

    int Append(const MyTabItem& item);
    bool HasItem(int index) const;
    CRect TabPlace(int index) const;
    bool ShowsFocus() const;
    void Redraw();
    void TellParent();
    void DrawTab(CDC& dc, int index, const CRect& tab, bool selected, COLORREF bar);
    void DrawBox(CDC& dc, CRect tab, bool isFirst, bool selected);
    void DrawSeparator(CDC& dc, const CRect& tab);
    void DrawBar(CDC& dc, const CRect& tab, COLORREF color);
    void DrawFocus(CDC& dc, CRect tab);
    void DrawTitle(CDC& dc, CRect tab, const std::string& title, bool selected);

    std::vector<MyTabItem> items;
    Look look;
    int current = -1;
    int ctrlId = 0;
    CAccessibleLink accessible{*this};
};
