// The window of the gallery. Everything is placed in pixels at 96 dots an inch, and scaled.
#pragma once

#include "skin/SubclassWins.h"
#include "skin/ToolTip.h"

#include <afxwin.h>

#include <memory>
#include <vector>

class CGalleryDlg : public CDialog, public CSubclassWins
{
public:
    CGalleryDlg();
    ~CGalleryDlg() override;

protected:
    BOOL OnInitDialog() override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT type);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    HWND Add(const char* className, const char* text, DWORD style, int x, int y, int width,
             int height, int id = 0);
    void AddTitle(const char* text, int x, int y);
    void AddLabel(const char* text, int x, int y);

    /// A control that this window keeps, attached to a stock one.
    template <typename Control>
    Control& Keep(HWND window)
    {
        auto control = std::make_unique<Control>();
        control->SubclassWindow(window);
        Control& result = *control;
        kept.push_back(std::move(control));
        return result;
    }

    void AddCheckBoxes();
    void AddComboBoxes();
    void AddImageList();
    void AddCheckList();
    void AddIconList();
    void AddDialogButtons();
    void AddDarkButtons();
    void AddFields();
    void AddTabStrips();
    void AddTexts();
    void ShowTip();

    CFont font;
    CBitmap icons;
    CComboBox* openCombo = nullptr;
    CToolTip tip;
    std::vector<std::unique_ptr<CWnd>> kept;
};
