// Automatic price chasing, the tab "自动追价": one page in three products.
#pragma once

#include "pages/PageDlg.h"

/// What the page is in one product.
struct ChasePriceFacts
{
    UINT templateId;
    UINT tickEdit;
    UINT repeatEdit;
    ParamField priceKind;
    ParamField tick;
    ParamField interval;
    ParamField repeat;
    ParamField manual;
    ParamField lastCancel;
    int leastRepeat;           // what a smaller repeat count is stored as
    bool restoresWithinLimits; // false: futures, see RestoreInterval
};

class CChasePriceDlg : public CBoundPageDlg
{
public:
    /// Checks interval and repeat count against the limits that the installation ships.
    bool Validate() override;

protected:
    CChasePriceDlg(const ChasePriceFacts& facts, CWnd* parent);

    void SetUpControls() override;
    void DeclareBindings(CBindings& page) override;

private:
    void RestoreInterval();
    void RestoreRepeat();

    const ChasePriceFacts& m_facts;
};

class CFutureChasePriceDlg : public CChasePriceDlg
{
public:
    explicit CFutureChasePriceDlg(CWnd* parent = nullptr);
};

class CStockChasePriceDlg : public CChasePriceDlg
{
public:
    explicit CStockChasePriceDlg(CWnd* parent = nullptr);
};

class COptionsChasePriceDlg : public CChasePriceDlg
{
public:
    explicit COptionsChasePriceDlg(CWnd* parent = nullptr);
};
