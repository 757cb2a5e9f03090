#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestBitmap.h"
#include "tests/skin/TestDlg.h"

#include "skin/IconListBox.h"
#include "skin/Palette.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr COLORREF kFirstIcon = RGB(255, 0, 0);
constexpr COLORREF kSecondIcon = RGB(0, 255, 0);
constexpr int kRowHeight = 20;

class IconListBox : public testing::Test
{
protected:
    IconListBox()
    {
        WriteFileBytes("icons.bmp", FlatBitmap(2, 16, 16, {kFirstIcon, kSecondIcon}));
        icons = static_cast<HBITMAP>(LoadImageA(nullptr, "icons.bmp", IMAGE_BITMAP, 0, 0,
                                                LR_LOADFROMFILE | LR_CREATEDIBSECTION));
        // No page has such a list, and no walk over a dialog makes one.
        const CDialogTemplate stock(WS_POPUP | WS_VISIBLE, 0, 0, 300, 200,
                                    {{"ListBox", "", kListStyle, kTestId, 0, 0, 280, 100}});
        dialog.CreateIndirect(stock.Get());
        list.SubclassWindow(::GetDlgItem(dialog.m_hWnd, kTestId));
        list.SetItemHeight(0, kRowHeight);
        list.AddString(kSolidText);
        list.AddString(kSolidText);
        list.SetItemData(1, 1);
    }
    ~IconListBox() override
    {
        dialog.DestroyWindow();
        DeleteObject(icons);
    }

    RECT Row(int index) const { return {0, index * kRowHeight, 80, (index + 1) * kRowHeight}; }

    CDialog dialog;
    CMyListBox list;
    HBITMAP icons;
};

} // namespace

TEST_F(IconListBox, RowsAreWhiteOrGrey)
{
    list.SetCurSel(1);
    EXPECT_EQ(kPageSheet, PixelAt(list.m_hWnd, 70, 5));
    EXPECT_EQ(kSelectedIconListBack, PixelAt(list.m_hWnd, 70, kRowHeight + 5));
    EXPECT_EQ(kSelectedIconListBack, PixelAt(list.m_hWnd, 10, kRowHeight + 1));
    EXPECT_EQ(kPageSheet, PixelAt(list.m_hWnd, 9, kRowHeight + 1));
    EXPECT_EQ(kPageSheet, PixelAt(list.m_hWnd, 70, ClientOf(list.m_hWnd).bottom - 1));
    EXPECT_GT(CountPixels(list.m_hWnd, Row(0), kBlackText), 0);
}

TEST_F(IconListBox, TheRowCoversTheIcon)
{
    list.SetIconBitmap(icons);
    EXPECT_EQ(0, CountPixels(list.m_hWnd, Row(0), kFirstIcon));
    EXPECT_EQ(0, CountPixels(list.m_hWnd, Row(1), kSecondIcon));
}

TEST_F(IconListBox, IconsAreDrawnBeforeTheRow)
{
    list.SetIconBitmap(icons);
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    const HBITMAP canvas = CreateCompatibleBitmap(screen, 80, 40);
    ReleaseDC(nullptr, screen);
    const HGDIOBJ old = SelectObject(dc, canvas);
    DRAWITEMSTRUCT item{};
    item.itemID = 1;
    item.hDC = dc;
    // A row of no width ends before its fill begins, and the icon stays.
    item.rcItem = {0, 0, 10, kRowHeight};
    list.DrawItem(&item);
    EXPECT_EQ(kSecondIcon, GetPixel(dc, 15, 2));
    EXPECT_EQ(kSecondIcon, GetPixel(dc, 30, 17));
    EXPECT_NE(kSecondIcon, GetPixel(dc, 14, 10));
    EXPECT_NE(kSecondIcon, GetPixel(dc, 31, 10));
    SelectObject(dc, old);
    DeleteObject(canvas);
    DeleteDC(dc);
}

TEST_F(IconListBox, ALongTextIsCutAt64Bytes)
{
    const LONG right = ClientOf(list.m_hWnd).right;
    const auto ink = [this, right](int row)
    {
        const RECT area{10, row * kRowHeight, right, (row + 1) * kRowHeight};
        return (area.right - area.left) * kRowHeight - CountPixels(list.m_hWnd, area, kPageSheet);
    };
    const std::string blanks(60, ' ');
    list.ResetContent();
    for (const int letters : {3, 4, 5})
        list.AddString((blanks + std::string(letters, 'H')).c_str());
    EXPECT_LT(ink(0), ink(1));
    EXPECT_EQ(ink(1), ink(2));
}

TEST_F(IconListBox, AnEmptyListDrawsNothing)
{
    DRAWITEMSTRUCT item{};
    item.itemID = static_cast<UINT>(-1);
    const HDC dc = GetDC(list.m_hWnd);
    item.hDC = dc;
    item.rcItem = Row(0);
    list.DrawItem(&item);
    ReleaseDC(list.m_hWnd, dc);
    EXPECT_GT(CountPixels(list.m_hWnd, Row(0), kBlackText), 0) << "the first item is still there";
}
