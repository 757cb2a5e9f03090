// A hint of several lines in a small window. Who shows it also hides it; the mouse passing over it
// hides it too.
#pragma once

#include "skin/Accessible.h"
#include "skin/TipText.h"

#include <afxwin.h>

class CToolTip : public CDialog, private AccessibleSource
{
public:
    CToolTip();

    /// Makes the window, hidden. Nothing shows before that.
    BOOL Create(CWnd* parent);

    /// Shows a text 20 pixels below a point of the screen. The text's lines each end in "\r\n"; what
    /// stands behind the last one is not shown. At most 4095 bytes are taken. A null or empty text
    /// hides the tip, the text that is already shown changes nothing.
    /// @param pt          moved to the left where the tip would pass `screenRight`
    /// @param screenRight the rightmost place for the tip, or 0 for none
    void ShowAt(const char* newText, POINT* pt, int screenRight);

    /// @param align 2 puts the tip at the left of the point, which moves with it
    void ShowAligned(const char* newText, POINT* pt, int align);

    void Hide();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    HWND DrawnWindow() const override { return m_hWnd; }
    AccessibleKind Kind() const override;
    std::string SpokenName() const override;

    bool TakeText(const char* newText);
    TipSize MeasureText();
    void Place(const POINT& pt, const TipSize& size);
    void Paint();
    void DrawLines(HDC dc) const;

    // Owned by the object. Nothing outside ever sees the buffer, so nothing can tell how it ends.
    std::string text;
    HFONT font;
    CRect clientRect;
    int lineHeight = 0;
    bool visible = false;
    CAccessibleLink accessible{*this};
};
