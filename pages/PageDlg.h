// What every page offers to its host.
#pragma once

#include "frame/SubMainDlg.h"
#include "pages/Bindings.h"
#include "skin/SubclassWins.h"

#include <afxwin.h>

/// How far the arrows of a field go that has no limit of its own.
constexpr double kMostInField = 9999999.0;

/// A child dialog below the tab strip of a host.
class CPageDlg : public CChildDlg
{
public:
    explicit CPageDlg(UINT templateId, CWnd* parent = nullptr);

    /// Puts the factory values into the controls; the record is not touched. Nothing without a
    /// window.
    virtual void RestoreDefaults() = 0;
    /// Copies the controls into the working record. Nothing without a window, so that a page never
    /// shown leaves the record's values alone.
    virtual void SaveToParam() = 0;
    /// Whether the page may be left. It tells the trader what is wrong.
    virtual bool Validate();

protected:
    /// Works the page's grids by keyboard, which know the mouse only.
    BOOL PreTranslateMessage(MSG* message) override;

    /// Shows a message in a box "提示" and puts the cursor into the field that is wrong.
    /// @return false, the answer of the check that calls it
    bool Refuse(UINT field, const char* message);
};

/// A page on a white sheet.
class CSheetPageDlg : public CPageDlg
{
public:
    using CPageDlg::CPageDlg;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    DECLARE_MESSAGE_MAP()
};

/// A page of drawn controls on a white sheet, bound to the record line by line.
class CBoundPageDlg : public CSheetPageDlg, public CSubclassWins
{
public:
    explicit CBoundPageDlg(UINT templateId, CWnd* parent = nullptr);
    ~CBoundPageDlg() override;

    void RestoreDefaults() override;
    void SaveToParam() override;

protected:
    /// Binds controls to fields, in the order in which they are walked.
    virtual void DeclareBindings(CBindings& page) = 0;
    /// Gives controls what the template cannot: ranges, items, fonts. The controls are drawn ones
    /// already and still empty.
    virtual void SetUpControls() {}
    /// Record to controls.
    virtual void LoadFromParam();

    /// A numeric edit's spin button: step, decimals and limits. The input mode stays as it is unless
    /// one is given.
    void SetUpSpin(UINT edit, double step, int decimals, double minimum, double maximum);
    void SetUpSpin(UINT edit, double step, int decimals, double minimum, double maximum, int mode);

    BOOL OnInitDialog() override;

    CBindings m_bindings;
};

/// What a page shows beside a static control: its text colour on the white sheet.
HBRUSH ColorStaticOnSheet(CDC& dc);
