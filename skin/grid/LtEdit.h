// The in-place edit of the grid.
#pragma once

#include <afxwin.h>

/// An edit over a cell of the COwerDrawListView that is its parent; leaving it commits the edit.
class CLtEdit : public CEdit
{
public:
    CLtEdit();

    CFont font;
    BOOL acceptChars = TRUE; ///< characters are dropped while not set
    int column = -1;         ///< cell being edited; the grid sets it
    int row = -1;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT createStruct);
    afx_msg void OnChar(UINT character, UINT repeatCount, UINT flags);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnKillFocus(CWnd* newWindow);
    DECLARE_MESSAGE_MAP()
};
