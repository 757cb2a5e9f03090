// The quick keys of the options order panel, the tab "快键下单".
#pragma once

#include "hotkeys/HotV1Key.h"
#include "hotkeys/KeyGridPageDlg.h"

/// Edits the quick keys, the switch to the net-position rows, and what the Return key walks through
/// when an order is entered.
class COptionKeyHotV1Dlg : public CKeyGridPageDlg
{
public:
    /// Reads the quick keys.
    explicit COptionKeyHotV1Dlg(CWnd* parent = nullptr);

    /// Goes back to the quick keys that were saved last, not to factory values, and to the packaged
    /// cycle of the Return key.
    void RestoreDefaults() override;
    void SaveToParam() override;

protected:
    BOOL OnInitDialog() override;

    void OpenCell() override;
    bool OnEditKey(UINT virtualKey) override;

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnNetPosition();
    afx_msg void OnCycle(UINT box);
    DECLARE_MESSAGE_MAP()

private:
    static void PaintCell(HDC dc, int row, int column, RECT* rect, HFONT boldFont, CWnd* parent,
                          void* userData, COwerDrawListView* grid);
    static std::string CellText(int row, int column, void* userData);
    std::string KeyNameOf(int row);
    CRect GridPlace();
    void ShowKeys();
    void ShowNetPosition();
    void ShowCycle(int mode);
    int CheckedCycle() const;

    CHotV1Key m_keys;
};
