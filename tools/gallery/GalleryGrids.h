// The gallery's page of grids: one with stored rows, one that the page draws. Everything is placed in
// pixels at 96 dots an inch, and scaled.
#pragma once

#include "skin/grid/OwerDrawListView.h"

#include <afxwin.h>

class CGridGalleryDlg : public CDialog
{
public:
    CGridGalleryDlg();

protected:
    BOOL OnInitDialog() override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void Create(COwerDrawListView& grid, int top, int rowHeight);
    void FillStored();
    void FillOwnerData();
    void EditACell();

    CFont font;
    CBitmap checkStrip;
    COwerDrawListView stored;
    COwerDrawListView ownerData;
};
