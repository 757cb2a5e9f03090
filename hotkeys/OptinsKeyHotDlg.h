// Orders by a single key, the options' tab "键盘下单".
#pragma once

#include "hotkeys/CellCombo.h"
#include "hotkeys/KeyGridPageDlg.h"

/// Edits the rows of the key store of type 2, each a key bound to a whole order.
class COptinsKeyHotDlg : public CKeyGridPageDlg
{
public:
    explicit COptinsKeyHotDlg(CWnd* parent = nullptr);

    /// Tells the trader that there are no defaults.
    void RestoreDefaults() override;
    void SaveToParam() override;

protected:
    BOOL OnInitDialog() override;

    void OpenCell() override;
    bool OnEditKey(UINT virtualKey) override;
    bool OpenControlHolds(CPoint point) override;
    void CloseCell() override;

    afx_msg void OnDestroy();
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    afx_msg LRESULT OnItemPicked(WPARAM, LPARAM);
    afx_msg LRESULT OnMousePressed(WPARAM point, LPARAM parameter);
    afx_msg LRESULT OnListLeft(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    static void PaintCell(HDC dc, int row, int column, RECT* rect, HFONT boldFont, CWnd* parent,
                          void* userData, COwerDrawListView* grid);
    static std::string CellText(int row, int column, void* userData);
    void LoadArrow();
    void DrawArrow(HDC dc, const RECT& cell);
    CRect GridPlace();

    void OpenCombo();
    void Capture(UINT virtualKey);
    void StoreSelection();
    void ShowStoredRows();

    CCellCombo m_combo;
    CDC m_arrowDC;
    HGDIOBJ m_arrowDCBitmap = nullptr; // what stood in the context before the arrow
    SIZE m_arrow = {};                 // of the one state that is drawn
    std::string m_toggleKey;
};
