// The combo box over a cell of a key grid.
#pragma once

#include "skin/MyComboBox.h"

/// Posted to the page, the parent of the grid, when the trader has picked an item.
constexpr UINT kMsgItemPicked = WM_USER + 5;

/// A drop-down list that is as high as its cell. Hidden until it is placed.
class CCellCombo : public CMyComboBox_MyCtrl
{
public:
    BOOL Create(CWnd* grid, UINT id, CFont* font);

    /// Shows it over a cell with its face filling it, and gives it the focus.
    void PlaceOver(const RECT& cell);

    /// Closes the list and hides the rest. An item that the mouse only passed over is not selected.
    void PutAway();

    /// Whether a point of the screen belongs to it, its open list included.
    bool Holds(CPoint point) const;

protected:
    afx_msg BOOL OnDropDown();
    afx_msg BOOL OnPicked();
    afx_msg BOOL OnPickCancelled();
    DECLARE_MESSAGE_MAP()

private:
    int m_selectionAtDrop = -1;
};
