// When large orders are split and how, the tab "自动拆单": one page in two products.
#pragma once

#include "pages/PageDlg.h"

/// What the page is in one product.
struct SplitOrderFacts
{
    UINT templateId;
    int shown;          // the entry of TOParam::SplitOrder that it shows and saves to
    const char* suffix; // of the keys that it restores from
    const char* zeroVolume;
    const char* minimumAboveVolume;
    const char* minimumAboveMaximum;
};

/// What the fields of one order kind, limit or market, say.
struct SplitInputs
{
    uint32_t randomIf;
    uint32_t randomMinimum;
    uint32_t randomMaximum;
    float randomInterval;
    uint32_t fixedIf;
    uint32_t fixedVolume;
    float fixedInterval;
};

struct SplitControls;

class CSplitOrderDlg : public CBoundPageDlg
{
public:
    /// Checks limit orders, then market orders, whichever method is on.
    bool Validate() override;
    void RestoreDefaults() override;
    void SaveToParam() override;

protected:
    CSplitOrderDlg(const SplitOrderFacts& facts, CWnd* parent);

    void SetUpControls() override;
    void DeclareBindings(CBindings& page) override;
    void LoadFromParam() override;

    afx_msg void OnRandom();
    afx_msg void OnFixed();
    DECLARE_MESSAGE_MAP()

private:
    void ShowType(int type);
    void EnableGroups();
    void EnableGroup(int group, bool enable);

    TSplitOrder ReadInputs();
    SplitInputs ReadLimitInputs();
    SplitInputs ReadMarketInputs();
    bool ValidateInputs(const SplitInputs& inputs, const SplitControls& controls);
    bool RefuseInterval(UINT field, double least);

    const SplitOrderFacts& m_facts;
};

class COptionsSplitOrderDlg : public CSplitOrderDlg
{
public:
    explicit COptionsSplitOrderDlg(CWnd* parent = nullptr);
};

class CMarginSplitOrderDlg : public CSplitOrderDlg
{
public:
    explicit CMarginSplitOrderDlg(CWnd* parent = nullptr);
    void SaveToParam() override;
};
