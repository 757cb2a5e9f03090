// When local stops fire and how their orders are priced: one page in three products.
#pragma once

#include "pages/PageDlg.h"

/// The fields of one product.
struct StopFields
{
    ParamField lossTimes;
    ParamField lossTrigger;
    ParamField profitTimes;
    ParamField profitTrigger;
    ParamField lossPrice;
    ParamField profitPrice;
    ParamField lossTick;
    ParamField profitTick;
    ParamField chase;
    ParamField forever;
};

/// Whether the count of ticks in a row is taken from its field or is always 1.
enum class StopTimes
{
    Taken,
    AlwaysOne,
};

/// Binds the controls, whose ids are the same in all products.
void BindStops(CBindings& page, const StopFields& fields, StopTimes times);

/// The tab "止盈止损".
class CFutureStopProfitLossDlg : public CBoundPageDlg
{
public:
    explicit CFutureStopProfitLossDlg(CWnd* parent = nullptr);

protected:
    void SetUpControls() override;
    void DeclareBindings(CBindings& page) override;
};

/// The tab "本地止盈止损", which is there only while condition orders run locally.
class COptionsStopProfitLossDlg : public CBoundPageDlg
{
public:
    explicit COptionsStopProfitLossDlg(CWnd* parent = nullptr);

protected:
    BOOL OnInitDialog() override;
    void SetUpControls() override;
    void DeclareBindings(CBindings& page) override;
};

/// The page of securities: plain controls, no tab, never shown, but saved.
class CStockStopProfitLossDlg : public CPageDlg
{
public:
    explicit CStockStopProfitLossDlg(CWnd* parent = nullptr);

    void RestoreDefaults() override;
    void SaveToParam() override;

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnSpin(UINT spin, NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    CBindings m_bindings;
};
