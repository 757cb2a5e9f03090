// What the two pages of keys have in common.
#pragma once

#include "pages/PageDlg.h"
#include "skin/grid/OwerDrawListView.h"

#include <vector>

/// A page with a row a key in a grid that it paints itself. A press on a cell opens a control over
/// it; a press outside that control, or Alt by itself, closes it again.
class CKeyGridPageDlg : public CSheetPageDlg, public CSubclassWins
{
public:
    ~CKeyGridPageDlg() override;

protected:
    /// Of the stores in HotKeyStores.h: that of options.
    static constexpr int kStoreType = 2;

    struct Column
    {
        const char* title;
        int width; ///< pixels, to be scaled
    };

    CKeyGridPageDlg(UINT templateId, CWnd* parent);

    /// Makes the grid and the hidden edit.
    /// @param before        the control before the grid in the order in which Tab walks
    /// @param painter,texts get the page as userData
    void CreateGrid(UINT before, const RECT& place, const std::vector<Column>& columns,
                    OwnerCellPainter painter, CellTextSource texts);

    /// Shows that many rows as they are now.
    void ShowRows(int count);

    /// A cell has been pressed: `editColumn`, `editRow`. Any other control is closed by now.
    virtual void OpenCell() = 0;
    /// A key has been pressed in the edit. @return whether the edit gets it
    virtual bool OnEditKey(UINT virtualKey) = 0;
    /// Whether a point of the screen lies in an open control, or none is open.
    virtual bool OpenControlHolds(CPoint point);
    /// Takes over what the open control holds, if there is one, and hides it.
    virtual void CloseCell();

    /// The point that comes with kMsgMousePressed.
    static CPoint PointOf(WPARAM point);

    static bool IsModifierKey(UINT virtualKey);

    void OpenEdit(const char* text);
    bool IsEditing() const { return IsOpen(m_edit); }
    /// Whether a control stands over its cell, also while the page itself is hidden.
    static bool IsOpen(const CWnd& control) { return (control.GetStyle() & WS_VISIBLE) != 0; }
    CRect EditedCell() const;

    /// Writes a line of text into a cell. @param format DT_ values beside those of a single line
    static void DrawCellText(HDC dc, const char* text, RECT cell, COLORREF color, UINT format);

    BOOL PreTranslateMessage(MSG* message) override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnGridMessage(WPARAM event, LPARAM parameter);
    afx_msg LRESULT OnMousePressed(WPARAM point, LPARAM parameter);
    DECLARE_MESSAGE_MAP()

    COwerDrawListView m_grid;
    CEdit m_edit;
    int editColumn = -1;
    int editRow = -1;

private:
    bool ScrollsGrid(const MSG& message) const;
    bool WorksByAlt(const MSG& message);
    void LeaveCell();

    bool m_isAltAlone = false; // pressed, and no other key since
};
