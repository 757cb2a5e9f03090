// A static text with a font and a colour of its own and the hand cursor: a label that looks like a
// link. It draws on what its parent has drawn. Give it SS_NOTIFY, or it never sees the mouse.
#pragma once

#include <afxwin.h>

#include <string>

class COwerDrawStatic : public CStatic
{
public:
    /// @param format flags of DrawTextA. Text wider than the label makes it wrap from then on.
    COwerDrawStatic(COLORREF textColor, COLORREF backColor, UINT format);
    /// @param fontHeight at 96 dots an inch
    COwerDrawStatic(const char* face, int fontHeight, int fontWeight, COLORREF textColor,
                    BOOL underline, UINT format);
    /// A black label in a small serif face.
    COwerDrawStatic(CWnd* parent, UINT format);
    COwerDrawStatic(CWnd* parent, const char* face, int fontHeight, int fontWeight,
                    COLORREF textColor, BOOL underline, UINT format);

    BOOL Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent,
                UINT id = 0xffff) override;

protected:
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    void StoreText(const char* newText);
    LRESULT CopyText(char* buffer, size_t capacity) const;
    void WrapIfTooWide(CDC& dc, int width);

    bool hover = false;
    COLORREF textColor;
    int fontHeight;
    int fontWeight;
    std::string faceName;
    BOOL underline;
    UINT format;
    std::string text;
};
