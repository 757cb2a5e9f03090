#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestBitmap.h"
#include "tests/skin/TestDlg.h"

#include "skin/MyCheckBox.h"
#include "skin/Palette.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr DWORD kCheckStyle = kShown | BS_AUTOCHECKBOX;
constexpr COLORREF kBack = RGB(250, 240, 230);

class MyCheckBox : public testing::Test
{
protected:
    MyCheckBox() { check.SetBackColor(kBack); }

    COLORREF CellColor() const
    {
        const RECT client = ClientOf(check.m_hWnd);
        return PixelAt(check.m_hWnd, kCheckCellSize / 2, client.bottom / 2);
    }

    LPARAM Inside() const { return MAKELPARAM(5, 5); }
    LPARAM Outside() const { return MAKELPARAM(ClientOf(check.m_hWnd).right + 1, 5); }

    void Down(LPARAM where) { check.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where); }
    void Up(LPARAM where) { check.SendMessage(WM_LBUTTONUP, 0, where); }

    int Clicks()
    {
        PumpMessages();
        return dialog.CountCommands(kTestId, BN_CLICKED);
    }

    /// The leftmost column right of the cell in which something is drawn.
    int TextLeft() const
    {
        const RECT client = ClientOf(check.m_hWnd);
        for (int x = kCheckCellSize; x < client.right; ++x)
        {
            const RECT column{x, 0, x + 1, client.bottom};
            if (CountPixels(check.m_hWnd, column, kBack) < client.bottom)
                return x;
        }
        return -1;
    }

    CTestDlg dialog{{{"Button", "HHH", kCheckStyle, kTestId}, {"Edit", "", kShown, 200, 10, 60}}};
    CMyCheckBox_MyCtrl& check = dialog.Drawn<CMyCheckBox_MyCtrl>(kTestId);
};

} // namespace

TEST_F(MyCheckBox, ShowsTheCellOfEachState)
{
    EXPECT_EQ(CheckCellColor(0), CellColor());
    Down(Inside());
    EXPECT_EQ(CheckCellColor(2), CellColor());
    Up(Inside());
    EXPECT_EQ(CheckCellColor(5), CellColor());
    Down(Inside());
    EXPECT_EQ(CheckCellColor(4), CellColor());
    Up(Outside());
    EXPECT_EQ(CheckCellColor(5), CellColor());
    check.EnableWindow(FALSE);
    EXPECT_EQ(CheckCellColor(7), CellColor());
    check.SetCheck(BST_UNCHECKED);
    EXPECT_EQ(CheckCellColor(3), CellColor());
    check.EnableWindow(TRUE);
    EXPECT_EQ(CheckCellColor(0), CellColor());
}

TEST_F(MyCheckBox, CellStandsAtTheLeftInTheMiddle)
{
    const RECT client = ClientOf(check.m_hWnd);
    const int top = (client.bottom - kCheckCellSize) / 2;
    const RECT cell{0, top, kCheckCellSize, top + kCheckCellSize};
    EXPECT_EQ(kCheckCellSize * kCheckCellSize, CountPixels(check.m_hWnd, cell, CheckCellColor(0)));
    EXPECT_EQ(kCheckCellSize * kCheckCellSize,
              CountPixels(check.m_hWnd, client, CheckCellColor(0)));
    EXPECT_EQ(kBack, PixelAt(check.m_hWnd, 0, 0));
}

TEST_F(MyCheckBox, AClickTogglesAndPostsOneCommand)
{
    Down(Inside());
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    Up(Inside());
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
    EXPECT_TRUE(dialog.commands.empty()) << "posted, not sent";
    EXPECT_EQ(1, Clicks());
    EXPECT_EQ(check.m_hWnd, dialog.lastSender);

    Down(Inside());
    Up(Inside());
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    EXPECT_EQ(2, Clicks());
}

TEST_F(MyCheckBox, ReleaseOutsideChangesNothing)
{
    Down(Inside());
    Up(Outside());
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    EXPECT_EQ(0, Clicks());
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(MyCheckBox, EdgesBelongToTheClientArea)
{
    const RECT client = ClientOf(check.m_hWnd);
    Down(Inside());
    Up(MAKELPARAM(client.right, client.bottom));
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
    Down(Inside());
    Up(MAKELPARAM(0, 0));
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    Down(Inside());
    Up(MAKELPARAM(-1, 0));
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
}

TEST_F(MyCheckBox, AReleaseAloneDoesNothing)
{
    Up(Inside());
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    EXPECT_EQ(0, Clicks());
}

TEST_F(MyCheckBox, AQuickDoubleClickTogglesOnce)
{
    Down(Inside());
    Up(Inside());
    check.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, Inside());
    Up(Inside());
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
    EXPECT_EQ(1, Clicks());
    EXPECT_EQ(0, dialog.CountCommands(kTestId, BN_DOUBLECLICKED));
}

TEST_F(MyCheckBox, ADoubleClickAloneDoesNothing)
{
    check.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, Inside());
    EXPECT_EQ(CheckCellColor(0), CellColor());
    EXPECT_EQ(0, Clicks());
}

TEST_F(MyCheckBox, ACaptureTakenAwayEndsTheClick)
{
    Down(Inside());
    EXPECT_EQ(check.m_hWnd, GetCapture());
    SetCapture(dialog.m_hWnd);
    EXPECT_EQ(CheckCellColor(0), CellColor());
    ReleaseCapture();
    Up(Inside());
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
}

TEST_F(MyCheckBox, AClickTakesTheFocus)
{
    SetFocus(dialog.Item(200));
    Down(Inside());
    EXPECT_EQ(check.m_hWnd, GetFocus());
    Up(Inside());
}

TEST_F(MyCheckBox, SpaceTogglesAndTellsTheParent)
{
    check.SetFocus();
    TypeKey(dialog.m_hWnd, VK_SPACE);
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
    EXPECT_EQ(1, Clicks());
    EXPECT_EQ(CheckCellColor(5), CellColor());
    TypeKey(dialog.m_hWnd, VK_SPACE);
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    EXPECT_EQ(2, Clicks());
    EXPECT_EQ(CheckCellColor(0), CellColor());
}

TEST_F(MyCheckBox, AProgrammedClickIsAClick)
{
    check.SendMessage(BM_CLICK);
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
    EXPECT_EQ(1, Clicks());
}

TEST_F(MyCheckBox, KeepsItsLookThroughEveryStockMessage)
{
    const auto looksDrawn = [this]
    {
        return CellColor() == CheckCellColor(5);
    };
    check.UpdateWindow();
    check.SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_TRUE(looksDrawn());
    check.SendMessage(BM_SETSTATE, TRUE);
    EXPECT_TRUE(looksDrawn());
    check.SendMessage(BM_SETSTATE, FALSE);
    EXPECT_TRUE(looksDrawn());
    check.SetWindowText("WWWWWWWWWW");
    EXPECT_TRUE(looksDrawn());
    SetFocus(dialog.Item(200));
    EXPECT_TRUE(looksDrawn());
    check.SetFocus();
    EXPECT_TRUE(looksDrawn());
    check.SendMessage(WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS));
    EXPECT_TRUE(looksDrawn());
}

TEST_F(MyCheckBox, AHiddenOneStaysHidden)
{
    check.ShowWindow(SW_HIDE);
    check.SetCheck(BST_CHECKED);
    check.EnableWindow(FALSE);
    check.SetWindowText("x");
    EXPECT_EQ(0u, check.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
}

TEST_F(MyCheckBox, TextBeginsACellsWidthBehindTheCell)
{
    // The letter's own left bearing is at most two pixels.
    const int left = TextLeft();
    EXPECT_GE(left, 2 * kCheckCellSize);
    EXPECT_LE(left, 2 * kCheckCellSize + 2);
}

TEST_F(MyCheckBox, ATextGapMovesTheText)
{
    check.SetTextGap(40);
    const int left = TextLeft();
    EXPECT_GE(left, kCheckCellSize + 40);
    EXPECT_LE(left, kCheckCellSize + 42);
}

TEST_F(MyCheckBox, TextHasItsColor)
{
    check.SetWindowText(kSolidText);
    EXPECT_GT(CountPixels(check.m_hWnd, ClientOf(check.m_hWnd), kControlText), 0);
    check.SetTextColor(RGB(200, 0, 200));
    EXPECT_GT(CountPixels(check.m_hWnd, ClientOf(check.m_hWnd), RGB(200, 0, 200)), 0);
    EXPECT_EQ(0, CountPixels(check.m_hWnd, ClientOf(check.m_hWnd), kControlText));
}

TEST_F(MyCheckBox, AFrameIsDrawnOnRequest)
{
    const RECT client = ClientOf(check.m_hWnd);
    EXPECT_EQ(kBack, PixelAt(check.m_hWnd, client.right - 1, 0));
    check.SetDrawFrame(true);
    EXPECT_EQ(kThinFrame, PixelAt(check.m_hWnd, client.right - 1, 0));
    EXPECT_EQ(kThinFrame, PixelAt(check.m_hWnd, client.right - 1, client.bottom - 1));
    EXPECT_EQ(kBack, PixelAt(check.m_hWnd, client.right - 2, 1));
}

TEST(MyCheckBoxUndecided, ShowsAsUncheckedAndBecomesIt)
{
    CTestDlg dialog({{"Button", "", kShown | BS_AUTO3STATE, kTestId}});
    CMyCheckBox_MyCtrl check;
    check.SubclassWindow(dialog.Item(kTestId));
    check.SetCheck(BST_INDETERMINATE);
    ASSERT_EQ(BST_INDETERMINATE, check.GetCheck());
    EXPECT_EQ(CheckCellColor(0),
              PixelAt(check.m_hWnd, kCheckCellSize / 2, ClientOf(check.m_hWnd).bottom / 2));
    check.SendMessage(BM_CLICK);
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
}

TEST_F(MyCheckBox, AStripOfOnesOwnReplacesTheSharedOne)
{
    const COLORREF own = RGB(1, 200, 1);
    WriteFileBytes("own.bmp", FlatBitmap(8, 6, 10, std::vector<COLORREF>(8, own)));
    const auto bitmap = static_cast<HBITMAP>(
        LoadImageA(nullptr, "own.bmp", IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    check.SetBitmap(bitmap);
    EXPECT_EQ(60, CountPixels(check.m_hWnd, ClientOf(check.m_hWnd), own));
    EXPECT_LE(TextLeft(), 14 + 2) << "twice the cell of 6, at the left of which TextLeft looks";

    check.SetBitmap(nullptr);
    EXPECT_EQ(0, CountPixels(check.m_hWnd, ClientOf(check.m_hWnd), own));
    DeleteObject(bitmap);
}

TEST_F(MyCheckBox, ALongTextIsNoDanger)
{
    std::string text;
    for (int i = 0; i < 400; ++i)
        text += "中";
    check.SetWindowText(text.c_str());
    EXPECT_EQ(CheckCellColor(0), CellColor());
}

TEST_F(MyCheckBox, ADisabledOneIsDeaf)
{
    check.EnableWindow(FALSE);
    check.SetFocus();
    TypeKey(dialog.m_hWnd, VK_SPACE);
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
}
