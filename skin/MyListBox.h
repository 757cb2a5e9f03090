// A list box drawn with an image or a check mark before each item.
#pragma once

#include "skin/SkinLayout.h"

#include <afxwin.h>

#include <vector>

/// Takes over a stock list box, whose template must carry LBS_OWNERDRAWFIXED and LBS_HASSTRINGS.
///
/// The window holds blanks only; the items stand in the object, which also answers who asks the window
/// for their texts, as screen readers do. In check mode the space bar checks the selected item. Indices that are out of range are
/// ignored.
class CMyListBox_MyCtrl : public CListBox
{
public:
    CMyListBox_MyCtrl();
    ~CMyListBox_MyCtrl() override;

    /// @param text  cut to 255 bytes
    /// @param image column of the skin's strip, below 0 for none; not kept in check mode
    /// @return the new index, below 0 when the window refuses it
    int AddItem(const char* text, int image = 0);
    void DeleteItem(int index);

    /// @param buffer at least 256 bytes; gets an empty text for a bad index
    /// @return length of the text
    int GetItemText(int index, char* buffer) const;
    int GetItemTextLen(int index) const;  ///< 0 for a bad index
    int GetItemImage(int index) const;    ///< -1 for a bad index
    BYTE GetItemChecked(int index) const; ///< 0 for a bad index
    void SetItemChecked(int index, BYTE checked);

    /// Shows check marks in place of images from now on.
    void EnableCheckMode();

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override;

protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    struct Item
    {
        char text[256];
        int image; ///< in check mode its low byte is the check
        RECT rect; ///< where it was last painted
    };

    bool IsItem(int index) const { return index >= 0 && index < static_cast<int>(items.size()); }
    void SetStrip(HBITMAP newBitmap, int columns);
    void KeepRect(int index, const RECT& rect);
    void RedrawFocusItem(HDC dc);
    void DrawRowBackground(const DRAWITEMSTRUCT& item, bool selected);
    void DrawSeparators(const DRAWITEMSTRUCT& item);
    int DrawMark(const DRAWITEMSTRUCT& item, bool selected);
    void DrawRowText(const DRAWITEMSTRUCT& item, int left, bool selected);
    int ItemAt(CPoint point) const;

    DRAWITEMSTRUCT focusItem = {}; ///< item that got the focus last; no context: none
    COLORREF backColor;
    COLORREF selectBackColor;
    COLORREF selectBarColor;
    COLORREF textColor;
    COLORREF selectTextColor;
    HBITMAP bitmap = nullptr;
    HBITMAP ownBitmap = nullptr; ///< the check strip that this object loaded for itself
    int bitmapWidth = 0;
    int bitmapHeight = 0;
    int cellCount = 1;
    std::vector<Item> items;
    BYTE checkMode = 0;
    int itemHeight;
};
