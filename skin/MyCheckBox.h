// A check box drawn from the skin's strip of eight cells.
#pragma once

#include <afxwin.h>

/// Takes over a stock auto check box: the keyboard, the focus and the check itself stay the stock
/// control's, look and mouse are this class's.
class CMyCheckBox_MyCtrl : public CButton
{
public:
    CMyCheckBox_MyCtrl();

    void SetCheck(int check);

    /// Replaces the shared strip by the caller's, of eight cells too. Null draws no cell.
    void SetBitmap(HBITMAP newBitmap);

    /// Pixels between cell and text; 0 leaves a cell's width.
    void SetTextGap(int gap);
    void SetBackColor(COLORREF color);
    void SetTextColor(COLORREF color);

    /// Whether a thin frame runs around the control.
    void SetDrawFrame(bool draw);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* wnd);
    DECLARE_MESSAGE_MAP()

    bool pressed = false; ///< a left down came and its left up has not

private:
    void DrawBackground(HDC dc);
    void DrawCell(HDC dc);
    void DrawCaption(HDC dc);
    void Toggle();
    void Redraw();

    HBITMAP bitmap = nullptr;
    int cellWidth = 0;
    int cellHeight = 0;
    int textGap = 0;
    COLORREF backColor;
    COLORREF textColor;
    bool drawFrame = false;
};
