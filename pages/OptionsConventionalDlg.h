// General order behaviour of options: the tab "常规". The one page that scrolls.
#pragma once

#include "pages/PageDlg.h"
#include "pages/ShippedSettings.h"
#include "skin/scroll/CoolSBDialog.h"

class COptionsConventionalDlg : public CoolSBDialog<CBoundPageDlg>
{
public:
    explicit COptionsConventionalDlg(CWnd* parent = nullptr);

    /// Checks the threshold of options far out of the money, and the ratios of the reminder where that
    /// is offered.
    bool Validate() override;

protected:
    void SetUpControls() override;
    void DeclareBindings(CBindings& page) override;
    void LoadFromParam() override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnMeasureSelected();
    afx_msg void OnNoticeClicked(UINT box);
    DECLARE_MESSAGE_MAP()

private:
    int SelectedMeasure();
    ShippedLimits ReadLimits();
    void EnableByLimits(const ShippedLimits& limits);
    void RestoreThreshold();
    void ShowCostPrompt();

    void LeaveReminderOut();
    void SetUpScrollBar();
    void ScrollContents(int oldPos);
    void ScrollIntoView(const CWnd& control);

    bool ValidateThreshold();
    bool ValidateRatio(UINT edit, bool (*isInRange)(double), const char* outOfRange);
    bool RefuseField(UINT field, const char* message);

    bool m_scrolls = false;
};
