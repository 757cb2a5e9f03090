// Default volumes by contract or product: one page of a grid for futures, securities and options.
#pragma once

#include "core/StopDefaults.h"
#include "pages/PageDlg.h"
#include "skin/grid/OwerDrawListView.h"

/// What the page is in one product.
struct OtherListFacts
{
    UINT templateId;
    StopProduct product;
    const char* volumeTitle;
};

/// A row of the grid for each row of the product's default table, under the same number. A double
/// click on it opens the dialog "修改".
class COtherListDlg : public CSheetPageDlg
{
public:
    /// Restored rows are written at once where changed ones are.
    void RestoreDefaults() override;
    /// Nothing: rows are written when they change.
    void SaveToParam() override;

protected:
    COtherListDlg(const OtherListFacts& facts, CWnd* parent);

    /// How many rows of the table are shown.
    virtual int RowCount() const = 0;
    virtual const char* Label(int row) const = 0;
    virtual StopDefaultValues& Values(int row) = 0;
    /// Writes a changed row to its file.
    virtual void WriteRow(int row) = 0;
    /// Puts a row's values into its cells.
    virtual void FillRow(int row);

    /// The row that the trader has selected, -1 for none.
    int SelectedRow() const;
    /// Makes a row reach to a cell behind the columns: it holds data and does not show.
    void GrowRow(int row, UINT cell);

    BOOL OnInitDialog() override;

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnDoubleClick(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

    COwerDrawListView m_grid;

private:
    void MakeGrid();
    void PlaceGrid();
    void BuildRows();

    const OtherListFacts& m_facts;
};

class COtherFutureDlg : public COtherListDlg
{
public:
    explicit COtherFutureDlg(CWnd* parent = nullptr);

protected:
    int RowCount() const override;
    const char* Label(int row) const override;
    StopDefaultValues& Values(int row) override;
    void WriteRow(int row) override;
};

class COtherStockDlg : public COtherListDlg
{
public:
    explicit COtherStockDlg(CWnd* parent = nullptr);

protected:
    int RowCount() const override;
    const char* Label(int row) const override;
    StopDefaultValues& Values(int row) override;
    void WriteRow(int row) override;
    void FillRow(int row) override;

    afx_msg LRESULT OnGridMessage(WPARAM event, LPARAM grid);
    DECLARE_MESSAGE_MAP()
};

/// Its row is read anew when the page opens, and written by SaveToParam only.
class COtherOptionsDlg : public COtherListDlg
{
public:
    explicit COtherOptionsDlg(CWnd* parent = nullptr);

    void RestoreDefaults() override;
    void SaveToParam() override;

protected:
    BOOL OnInitDialog() override;
    int RowCount() const override;
    const char* Label(int row) const override;
    StopDefaultValues& Values(int row) override;
    void WriteRow(int row) override;
};
