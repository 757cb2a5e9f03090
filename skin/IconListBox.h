// A small list of icons of 16 pixels and texts. Its file is not named MyListBox: that one holds
// CMyListBox_MyCtrl, the list of the drawn dialogs.
#pragma once

#include <afxwin.h>

#include <string>

/// An owner-drawn list box with a string store. An item's data is the number of its icon.
class CMyListBox : public CListBox
{
public:
    ~CMyListBox() override;

    /// A strip of icons, 16 by 16 pixels each; stays the caller's. Null shows none.
    void SetIconBitmap(HBITMAP newBitmap);

    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    void DrawIcon(const DRAWITEMSTRUCT& item);
    std::string ItemText(int index) const;

    HDC memDC = nullptr;
    HBITMAP iconBitmap = nullptr;
};
