// A combo box with a flat face, a skin arrow and a drawn list.
#pragma once

#include <afxwin.h>

#include <vector>

/// Takes over a stock drop-down list. A combo box asks for owner drawing only when it is created, so
/// its template must carry CBS_OWNERDRAWVARIABLE and CBS_HASSTRINGS for the list to be drawn here.
///
/// The items stand in the object as well as in the window, and are drawn from the object: only these
/// operations change them. Indices that are out of range are ignored.
class CMyComboBox_MyCtrl : public CComboBox
{
public:
    CMyComboBox_MyCtrl();

    /// @param text cut to 255 bytes  @return the new index, below 0 when the window refuses it
    int AddString(const char* text);

    /// @return how many items are left, below 0 for a bad index
    int DeleteString(int index);
    void ResetContent();

    void SetItemData(int index, int data);
    int GetItemData(int index) const; ///< 0 for a bad index

    /// @param buffer at least 256 bytes; gets an empty text for a bad index
    /// @return length of the text
    int GetLBText(int index, char* buffer) const;
    void GetLBText(int index, CString& text) const;
    int GetLBTextLen(int index) const; ///< 0 for a bad index

    /// Takes the items over that the window already has.
    void SnapshotItems();

    /// Replaces the shared arrow by the caller's, of two halves too; null brings the shared one back.
    void SetArrowBitmap(HBITMAP newBitmap);

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override;
    int CompareItem(LPCOMPAREITEMSTRUCT items) override;

protected:
    void PreSubclassWindow() override;

    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg BOOL OnSelectionChanged();
    afx_msg BOOL OnDropDown();
    afx_msg BOOL OnCloseUp();
    DECLARE_MESSAGE_MAP()

    bool pressed = false; ///< the left button is down on the face

private:
    struct Item
    {
        char text[256];
        int data;
    };

    bool IsItem(int index) const { return index >= 0 && index < static_cast<int>(items.size()); }
    void DrawPlainRow(const DRAWITEMSTRUCT& item);
    void MoveFocusTo(const DRAWITEMSTRUCT& item);
    void DrawRow(const DRAWITEMSTRUCT& item, COLORREF rowColor, COLORREF rowTextColor);
    void RedrawFocusItem(HDC dc);
    void SetPressed(bool press);

    COLORREF frameColor;
    COLORREF backColor;
    COLORREF selectColor;
    COLORREF textColor;
    std::vector<Item> items;
    DRAWITEMSTRUCT focusItem = {}; ///< row of the list that has the focus look; no context: none
    HBITMAP sharedArrow;
    HBITMAP arrowBitmap = nullptr; ///< stands in for the shared arrow
};
