// How a buy in a margin account is placed, the tab "两融买入方式".
#pragma once

#include "pages/PageDlg.h"
#include "skin/OwerDrawStatic.h"

#include <memory>
#include <vector>

class CStrategyCheckBox;

/// Check boxes that act as radio buttons, one a strategy that the installation offers. They are made
/// at run time on an empty template.
class CMarginBuyStrategyDlg : public CSheetPageDlg
{
public:
    explicit CMarginBuyStrategyDlg(CWnd* parent = nullptr);
    ~CMarginBuyStrategyDlg() override;

    void RestoreDefaults() override;
    void SaveToParam() override;
    /// Whether exactly one strategy is on. No host asks: the boxes can't get out of order.
    bool Validate() override;

protected:
    BOOL OnInitDialog() override;

    afx_msg int OnCreate(CREATESTRUCT* creation);
    afx_msg void OnChoice(UINT control);
    DECLARE_MESSAGE_MAP()

private:
    void BuildChoices();
    void AddChoice(const std::string& value, const char* label);
    void SelectChoice(size_t index);

    std::vector<std::unique_ptr<CStrategyCheckBox>> m_choices;
    COwerDrawStatic m_explanation;
};
